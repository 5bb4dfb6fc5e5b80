#include "transfer/TransferFile.h"

#include "platform/CodePage.h"

namespace {

constexpr char LockedLine[] = "Program Config Lock=ON";
constexpr char UnlockedLine[] = "Program Config Lock=OFF";

// A field too short to end in ON or OFF counts as locked.
std::int16_t LockFrom(const QString& field) {
    return field.size() < 2 || UpperCase(field).endsWith(QStringLiteral("ON")) ? 1 : 0;
}

bool ReadLock(ItemReader& reader, TransferSettings& settings) {
    QString field;
    if (!reader.Skip(2) || !reader.ReadText(field)) {
        return false;
    }
    settings.TransferLock = LockFrom(field);
    return true;
}

// The older layout has another section in this place, a title and a value like this one.
bool ReadReportPath(ItemReader& reader, TransferSettings& settings) {
    QString title;
    QString value;
    if (!reader.ReadText(title) || !reader.ReadText(value)) {
        return false;
    }
    settings.ReportPath = UpperCase(title).contains(QStringLiteral("REPORT")) ? value : QString();
    return true;
}

bool ReadBoardType(ItemReader& reader, TransferSettings& settings) {
    std::int16_t value = 0;
    if (!reader.Skip(2) || !reader.ReadNumber(value)) {
        return false;
    }
    settings.BoardType = value > HighestBoardType ? std::int16_t(0) : value;
    return true;
}

bool ReadSystemNumber(ItemReader& reader, TransferSettings& settings) {
    std::int16_t value = 0;
    if (!reader.Skip(2) || !reader.ReadNumber(value)) {
        return false;
    }
    settings.SystemNumber = value < 1 || value > HighestSystemNumber ? std::int16_t(1) : value;
    return true;
}

} // namespace

ItemError ReadTransferText(const QByteArray& bytes, TransferSettings& settings) {
    ItemReader reader(bytes);
    const bool whole = ReadLock(reader, settings) && ReadReportPath(reader, settings) &&
                       ReadBoardType(reader, settings) && ReadSystemNumber(reader, settings) && reader.Skip();
    if (!whole) {
        settings.TransferLock = 1;
    }
    return reader.Error();
}

QByteArray WriteTransferText(const TransferSettings& settings, const QString& titleLine, const QString& versionText,
                             const QString& systemName) {
    ItemWriter writer;
    writer.PlainLine(titleLine);
    writer.PlainLine(QLatin1Char('[') + versionText + QLatin1Char(']'));
    writer.PlainLine(QString::fromUtf8(settings.TransferLock == 1 ? LockedLine : UnlockedLine));
    writer.PlainLine(QStringLiteral("[Path to Report Folder (may be blank)]"));
    writer.QuotedLine({settings.ReportPath});
    writer.Separator();
    writer.PlainLine(QStringLiteral("[Type of Board: 0 = Pub Elem | 1 = RC Elem | 2 = Pub Sec | 3 = RC Sec]"));
    writer.QuotedLine({settings.BoardType});
    writer.Separator();
    writer.PlainLine(QStringLiteral("[SIS Code Number]"));
    writer.QuotedLine({settings.SystemNumber});
    writer.Separator();
    writer.PlainLine(QStringLiteral("[SIS Name]"));
    writer.QuotedLine({systemName});
    return writer.Bytes();
}
