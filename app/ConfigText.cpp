#include "app/ConfigFile.h"

#include "app/ProductTexts.h"
#include "app/SettingsTable.h"
#include "platform/CodePage.h"

namespace {

constexpr char16_t LockedLine[] = u"Program Config Lock=ON";
constexpr char16_t UnlockedLine[] = u"Program Config Lock=OFF";

class ConfigReader {
public:
    ConfigReader(const QByteArray& bytes, ProgramConfigRecord& configToFill) : reader(bytes), config(configToFill) {}

    ItemError ReadFile() {
        if (!ReadAll()) {
            config.ConfigLock = 1;
        }
        return reader.Error();
    }

    bool HasLaterSections() {
        return ReadToSectionCount() && sectionCount > static_cast<int>(CountedSections().size());
    }

private:
    ItemReader reader;
    ProgramConfigRecord& config;
    std::int16_t sectionCount = 0;
    std::int16_t pairLast = 0; // the highest bar code pair that this file holds

    bool ReadToSectionCount() {
        return reader.Skip(2) && ReadLock() && ReadFixedSections() && reader.Skip() && reader.ReadNumber(sectionCount);
    }

    bool ReadAll() {
        if (!ReadToSectionCount()) {
            return false;
        }
        const auto& sections = CountedSections();
        for (std::size_t i = 0; i < sections.size() && sectionCount > static_cast<int>(i); ++i) {
            if (!reader.Skip() || !ReadSection(sections[i])) {
                return false;
            }
        }
        return true;
    }

    bool ReadLock() {
        QString line;
        if (!reader.ReadText(line)) {
            return false;
        }
        config.ConfigLock = line.size() < 2 || UpperCase(line.right(2)) == u"ON" ? 1 : 0;
        return true;
    }

    // No separator stands before the first of them. The stored start month never survives a read.
    bool ReadFixedSections() {
        const auto& sections = FixedSections();
        const bool read = ReadSection(sections[0]) && reader.Skip() && ReadSection(sections[1]);
        config.SchoolYearStartMonth = 1;
        return read;
    }

    bool ReadSection(const SettingsSection& section) {
        bool read = reader.Skip(); // its title
        for (const SettingsLine& line : section.Lines) {
            for (int i = 0; read && i <= LastIndexOf(line.Repeat); ++i) {
                read = ReadLine(line, static_cast<std::size_t>(i));
            }
        }
        return read;
    }

    int LastIndexOf(LineRepeat repeat) const {
        switch (repeat) {
        case LineRepeat::BarCodePairs:
            return pairLast;
        case LineRepeat::ImportFields:
            return config.ImportFieldLast;
        default:
            return HighestIndex(repeat);
        }
    }

    bool ReadLine(const SettingsLine& line, std::size_t index) {
        for (const SettingsField& field : line.Fields) {
            if (!std::visit([&](const auto& kind) { return ReadField(kind, index); }, field.Kind)) {
                return false;
            }
        }
        return true;
    }

    bool ReadField(const TextField& field, std::size_t index) { return reader.ReadText(field.Value(config, index)); }

    bool ReadField(const NumberField& field, std::size_t index) {
        return ReadCount(field.Value(config, index), field.Highest);
    }

    bool ReadField(const PairCountField&, std::size_t) { return ReadCount(pairLast, LastBarCodePair); }

    bool ReadField(const ObsoleteField&, std::size_t) { return reader.Skip(); }

    bool ReadCount(std::int16_t& value, std::int16_t highest) {
        std::int16_t number = 0;
        if (!reader.ReadNumber(number)) {
            return false;
        }
        if (number > highest) {
            return reader.Fail(ErrorNumber::SubscriptOutOfRange);
        }
        value = number;
        return true;
    }
};

class ConfigWriter {
public:
    explicit ConfigWriter(const ProgramConfigRecord& configToWrite) : config(configToWrite) {}

    QByteArray WriteFile(const QString& titleLine) {
        writer.PlainLine(titleLine);
        writer.Separator();
        writer.PlainLine(QString::fromUtf16(config.ConfigLock == 1 ? LockedLine : UnlockedLine));
        WriteSection(FixedSections()[0]);
        writer.Separator();
        WriteSection(FixedSections()[1]);
        writer.Separator();
        writer.PlainNumber(static_cast<std::int16_t>(CountedSections().size()));
        for (const SettingsSection& section : CountedSections()) {
            writer.Separator();
            WriteSection(section);
        }
        return writer.Bytes();
    }

private:
    ItemWriter writer;
    ProgramConfigRecord config; // a copy: the table gives access to what may be changed

    void WriteSection(const SettingsSection& section) {
        const bool french = ProgramEdition == Edition::French && section.FrenchTitle != nullptr;
        const QString title = QString::fromLatin1(french ? section.FrenchTitle : section.Title);
        if (section.TitleForm == LineForm::Plain) {
            writer.PlainLine(title);
        } else {
            writer.QuotedLine({title});
        }
        for (const SettingsLine& line : section.Lines) {
            const int last =
                line.Repeat == LineRepeat::ImportFields ? config.ImportFieldLast : HighestIndex(line.Repeat);
            for (int i = 0; i <= last; ++i) {
                WriteLine(line, static_cast<std::size_t>(i));
            }
        }
    }

    void WriteLine(const SettingsLine& line, std::size_t index) {
        std::vector<Item> items;
        for (const SettingsField& field : line.Fields) {
            items.push_back(std::visit([&](const auto& kind) { return ItemOf(kind, index); }, field.Kind));
        }
        if (line.Form == LineForm::Plain) {
            writer.PlainNumber(std::get<std::int16_t>(items.front())); // plain values are single numbers
        } else {
            writer.QuotedLine(items);
        }
    }

    Item ItemOf(const TextField& field, std::size_t index) { return field.Value(config, index); }
    Item ItemOf(const NumberField& field, std::size_t index) { return field.Value(config, index); }
    Item ItemOf(const PairCountField&, std::size_t) { return LastBarCodePair; }
    Item ItemOf(const ObsoleteField&, std::size_t) { return QString(); }
};

} // namespace

ItemError ReadConfigText(const QByteArray& bytes, ProgramConfigRecord& config) {
    return ConfigReader(bytes, config).ReadFile();
}

bool HasLaterSections(const QByteArray& bytes) {
    ProgramConfigRecord unused;
    return ConfigReader(bytes, unused).HasLaterSections();
}

QByteArray WriteConfigText(const ProgramConfigRecord& config, const QString& titleLine) {
    return ConfigWriter(config).WriteFile(titleLine);
}
