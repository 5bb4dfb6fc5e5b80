#include "platform/ProgramPath.h"

namespace {

constexpr QChar Backslash(u'\\');

} // namespace

QString JoinPath(const QString& folder, const QString& name) {
    return WithoutTrailingBackslash(folder) + Backslash + name;
}

QString WithoutTrailingBackslash(const QString& path) {
    return path.endsWith(Backslash) ? path.chopped(1) : path;
}

QString DriveOf(const QString& path) {
    const bool named = path.size() >= 2 && path[1] == u':' && path[0].toLower() >= u'a' && path[0].toLower() <= u'z';
    return named ? path.left(2).toLower() : QString();
}

QString FolderOf(const QString& path) {
    const qsizetype backslash = path.lastIndexOf(Backslash);
    return backslash < 0 ? QString() : path.left(backslash);
}

QString NameOf(const QString& path) {
    return path.mid(path.lastIndexOf(Backslash) + 1);
}
