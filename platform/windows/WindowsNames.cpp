#include "platform/windows/WindowsNames.h"

#include "platform/ProgramPath.h"

namespace {

constexpr qsizetype LongestName = 255;
constexpr qsizetype DriveRootLength = 3;
const QString ShareStart = QStringLiteral("\\\\");

// The root of a share's path and where it ends; empty for a server alone.
QString ShareRoot(const QString& path) {
    const qsizetype server = path.indexOf(u'\\', ShareStart.size());
    if (server <= ShareStart.size() || server + 1 >= path.size()) {
        return {};
    }
    const qsizetype share = path.indexOf(u'\\', server + 1);
    const QString root = path.left(share);
    const QString name = root.mid(server + 1);
    const QString host = root.mid(ShareStart.size(), server - ShareStart.size());
    return IsPlainName(name) && IsPlainName(host) && host != QStringLiteral("?") ? root : QString();
}

bool IsDevice(const QString& name) {
    const QString base = name.section(u'.', 0, 0).trimmed().toUpper();
    if (base.size() == 4 && (base.startsWith(QStringLiteral("COM")) || base.startsWith(QStringLiteral("LPT")))) {
        return QStringLiteral("123456789\u00B9\u00B2\u00B3").contains(base[3]);
    }
    static const QStringList devices = {QStringLiteral("CON"),   QStringLiteral("PRN"),    QStringLiteral("AUX"),
                                        QStringLiteral("NUL"),   QStringLiteral("CONIN$"), QStringLiteral("CONOUT$"),
                                        QStringLiteral("CLOCK$")};
    return devices.contains(base);
}

} // namespace

QString WindowsPath::Text() const {
    const QString root = OnShare() || !Components.isEmpty() ? WithoutTrailingBackslash(Root) : Root;
    return Components.isEmpty() ? root : root + QChar(u'\\') + Components.join(u'\\');
}

QString WindowsPath::FolderText() const {
    WindowsPath folder = *this;
    if (!folder.Components.isEmpty()) {
        folder.Components.removeLast();
    }
    return folder.Text();
}

WindowsPath SplitWindowsPath(const QString& path) {
    WindowsPath split;
    const QString drive = DriveOf(path);
    if (!drive.isEmpty() && path.mid(drive.size(), 1) == QStringLiteral("\\")) {
        split.Root = drive + QChar(u'\\');
    } else if (path.startsWith(ShareStart)) {
        split.Root = ShareRoot(path);
    }
    const qsizetype rootLength = split.OnShare() ? split.Root.size() : DriveRootLength;
    const QStringList parts =
        split.Root.isEmpty() ? QStringList() : path.mid(rootLength).split(u'\\', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (part == QStringLiteral("..")) {
            if (!split.Components.isEmpty()) {
                split.Components.removeLast();
            }
        } else if (part != QStringLiteral(".")) {
            split.Components.append(part);
        }
    }
    return split;
}

bool IsPlainName(const QString& name) {
    static const QString refused = QStringLiteral("<>:\"/\\|?*");
    for (const QChar character : name) {
        if (character < u' ' || refused.contains(character)) {
            return false;
        }
    }
    return !name.isEmpty() && name.size() <= LongestName && !name.endsWith(u'.') && !name.endsWith(u' ') &&
           !IsDevice(name);
}
