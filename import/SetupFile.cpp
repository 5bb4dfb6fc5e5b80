#include "import/SetupFile.h"

#include "import/LeadingNumber.h"
#include "platform/CodePage.h"

#include <algorithm>
#include <bitset>

UpdateOptions ImportUpdateOptions;

namespace {

constexpr std::array<const char*, UpdateActionCount> ActionKeys = {"AddNames", "ReActivate", "DeleteNames",
                                                                   "ConfirmDelete"};
constexpr std::array<const char*, UpdateFieldCount> FieldKeys = {
    "LastName", "FirstName", "Gender",       "Program",     "HomeForm",      "DateOfBirth",
    "Phone1",   "Phone2",    "StudentEMail", "ParentEMail", "Miscellaneous", "SpecialUse"};

using UsedFields = std::bitset<FieldCount + 1>;

void AddLine(QByteArray& bytes, const QByteArray& line) {
    bytes.append(line).append("\r\n");
}

template <std::size_t count>
void AddNumbers(QByteArray& bytes, const std::array<const char*, count>& keys,
                const std::array<std::int16_t, count>& values) {
    for (std::size_t i = 0; i < count; ++i) {
        AddLine(bytes, QByteArray(keys[i]) + '=' + QByteArray::number(values[i]));
    }
}

template <std::size_t count>
std::int16_t* NumberOf(const QString& key, const std::array<const char*, count>& keys,
                       std::array<std::int16_t, count>& values) {
    for (std::size_t i = 0; i < count; ++i) {
        if (key.compare(QLatin1String(keys[i]), Qt::CaseInsensitive) == 0) {
            return &values[i];
        }
    }
    return nullptr;
}

// The number of a key "FIELD1" to "FIELD24"; 0 for any other.
std::size_t MatchOf(const QString& key) {
    const QString start = QStringLiteral("FIELD");
    if (!key.startsWith(start)) {
        return 0;
    }
    const QStringView digits = QStringView(key).mid(start.size());
    const int number = digits.toInt();
    const bool plain = digits == QString::number(number); // no sign, no zero before it
    return plain && number >= 1 && number <= MatchLimit ? static_cast<std::size_t>(number) : 0;
}

bool TakeLine(const QString& line, ImportSetup& setup) {
    const qsizetype equals = line.indexOf(QChar(u'='));
    if (equals < 1 || line[0] == QChar(u'[') || line[0] == QChar(u';')) {
        return true;
    }
    const QString key = UpperCase(line.left(equals));
    const QString value = line.mid(equals + 1);
    if (const std::size_t match = MatchOf(key)) {
        setup.Matches[match] = value;
        return true;
    }
    std::int16_t* number = key == QStringLiteral("ACTIVEFIELDS") ? &setup.ActiveFields : nullptr;
    number = number != nullptr ? number : NumberOf(key, ActionKeys, setup.Options.Actions);
    number = number != nullptr ? number : NumberOf(key, FieldKeys, setup.Options.Fields);
    return number == nullptr || LeadingNumber(value, *number);
}

SetupFault EntryFault(const QString& what, int match) {
    return {QStringLiteral("FIELD MATCH ERROR"),
            what + QStringLiteral("\n\nMatch Field #%1 has been changed to 'Ignore this field'.").arg(match)};
}

// The check of one birth date entry; its format is the text after "DOB (", with the closing parenthesis.
void CheckDobEntry(ImportSetup& setup, int match, const FieldList& fields, std::vector<SetupFault>& faults) {
    QString& entry = setup.Matches[static_cast<std::size_t>(match)];
    const QString format = entry.mid(fields.DobPrefix.size() + 2);
    for (int code = 0; code < DobFormatCount; ++code) {
        if (format == fields.DobFormats[code] + QChar(u')')) {
            setup.Matches[0] = QString::number(code);
            return;
        }
    }
    faults.push_back(EntryFault(QStringLiteral("Invalid DOB format: ") + entry, match));
    entry = fields.Captions[IgnoreField];
}

int FieldNamed(const QString& entry, const FieldList& fields) {
    const QString wanted = UpperCase(entry);
    for (int field = 1; field <= FieldCount; ++field) {
        const QString& caption = fields.Captions[static_cast<std::size_t>(field)];
        // One character for one: a name of another length is another name.
        if (field != DobField && caption.size() == wanted.size() && UpperCase(caption) == wanted) {
            return field;
        }
    }
    return 0;
}

void CheckEntry(ImportSetup& setup, int match, const FieldList& fields, UsedFields& used,
                std::vector<SetupFault>& faults) {
    QString& entry = setup.Matches[static_cast<std::size_t>(match)];
    entry = TrimBlanks(entry);
    if (IsDobEntry(entry, fields.DobPrefix)) {
        CheckDobEntry(setup, match, fields, faults);
        return;
    }
    const auto field = static_cast<std::size_t>(FieldNamed(entry, fields));
    if (field == 0) {
        faults.push_back(EntryFault(entry + QStringLiteral(" is not a valid field name."), match));
        entry = fields.Captions[IgnoreField];
    } else if (used[field]) {
        faults.push_back(EntryFault(QStringLiteral("Duplicate Match Fields: ") + entry, match));
        entry = fields.Captions[IgnoreField];
    } else {
        used[field] = field != IgnoreField;
        entry = fields.Captions[field];
    }
}

} // namespace

QByteArray WriteSetup(const ImportSetup& setup) {
    QByteArray bytes;
    AddLine(bytes, "[Gradewell Import - Setup File]");
    AddLine(bytes, ";");
    AddLine(bytes, "[Field Matches]");
    AddLine(bytes, "ActiveFields=" + QByteArray::number(setup.ActiveFields));
    for (int i = 1; i <= std::min<int>(setup.ActiveFields, MatchLimit); ++i) {
        AddLine(bytes,
                "Field" + QByteArray::number(i) + '=' + BytesFromText(setup.Matches[static_cast<std::size_t>(i)]));
    }
    AddLine(bytes, ";");
    AddLine(bytes, "[Update Actions: 0 = No, 1 = Yes]");
    AddNumbers(bytes, ActionKeys, setup.Options.Actions);
    AddLine(bytes, ";");
    AddLine(bytes, "[Update Fields: 0 = No, 1 = Yes]");
    AddNumbers(bytes, FieldKeys, setup.Options.Fields);
    return bytes;
}

bool ReadSetup(const QByteArray& bytes, ImportSetup& setup) {
    qsizetype start = 0;
    while (start < bytes.size()) {
        const auto ends = [](char byte) { return byte == '\r' || byte == '\n'; };
        const qsizetype end = std::find_if(bytes.cbegin() + start, bytes.cend(), ends) - bytes.cbegin();
        if (!TakeLine(TextFromBytes(bytes.mid(start, end - start)), setup)) {
            return false;
        }
        start = end + 1;
    }
    return true;
}

std::vector<SetupFault> CheckMatches(ImportSetup& setup, const FieldList& fields) {
    std::vector<SetupFault> faults;
    if (setup.ActiveFields < 0 || setup.ActiveFields > MatchLimit) {
        faults.push_back({QStringLiteral("FIELD MATCH COUNT ERROR"),
                          QStringLiteral("The number of fields to be matched must be from 0 to 24")});
        setup.ActiveFields = 0;
        setup.Matches.fill(QString());
    }
    UsedFields used;
    for (int match = 1; match <= setup.ActiveFields; ++match) {
        CheckEntry(setup, match, fields, used, faults);
    }
    return faults;
}

void KeepYesOrNo(UpdateOptions& options) {
    const auto keep = [](std::int16_t& value) { value = value == 1 ? value : std::int16_t{0}; };
    std::for_each(options.Actions.begin(), options.Actions.end(), keep);
    std::for_each(options.Fields.begin(), options.Fields.end(), keep);
}

QString SetupFileBeside(const QString& importPath, const QString& name) {
    const qsizetype backslash = importPath.lastIndexOf(QChar(u'\\'));
    return backslash < 1 ? QString() : importPath.left(backslash + 1) + name;
}
