#include "platform/MappedVolumes.h"

#include "platform/NativeText.h"
#include "platform/OpenFile.h"
#include "platform/ProgramPath.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <utility>

namespace {

constexpr qsizetype DriveLength = 2;

// 0 for a folder (a symbolic link to one, too: "." looks through it), ENOTDIR for anything else, or what failed.
int FolderFailure(SystemCalls& calls, const NativePath& path) {
    SystemCalls::FileStatus status;
    const NativePath inside = path / ".";
    const int failure = -Retried([&] { return calls.Status(inside, status); });
    return failure == 0 && !status.IsFolder ? ENOTDIR : failure;
}

NativePath Normal(const NativePath& path) {
    const NativePath normal = path.lexically_normal();
    return normal.has_filename() || !normal.has_relative_path() ? normal : normal.parent_path();
}

// The components below the drive, "." and ".." resolved (the root's ".." is the root). Fails for a name that no file
// can have.
bool SplitComponents(const QString& below, QStringList& components) {
    const QStringList parts = below.split(u'\\', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (part.contains(QChar(u'\0'))) {
            return false;
        }
        if (part == QStringLiteral("..")) {
            if (!components.isEmpty()) {
                components.removeLast();
            }
        } else if (part != QStringLiteral(".")) {
            components.append(part);
        }
    }
    return true;
}

enum class Lookup { Found, Missing, Failed };

// Makes `path` the entry of that name in the folder `path`: the exact name, or else the first in order that differs
// only in case. A missing one is taken as it stands.
Lookup Descend(SystemCalls& calls, NativePath& path, const QString& name, int& failure) {
    const NativePath folder = std::exchange(path, path / NativeFromText(name));
    SystemCalls::FileStatus status;
    failure = -Retried([&] { return calls.Status(path, status); });
    if (failure == 0) {
        return Lookup::Found;
    }
    if (failure != ENOENT) {
        return Lookup::Failed;
    }
    std::vector<NativePath> names;
    failure = -Retried([&] { return calls.ListNames(folder, names); });
    std::sort(names.begin(), names.end());
    for (const NativePath& candidate : names) {
        const auto text = TextFromNative(candidate);
        if (text && text->compare(name, Qt::CaseInsensitive) == 0) {
            path = folder / candidate;
            return Lookup::Found;
        }
    }
    return failure == 0 || failure == ENOENT ? Lookup::Missing : Lookup::Failed;
}

SystemError FolderError(int failure) {
    return failure == ENOENT || failure == ENOTDIR ? MakeError(ErrorNumber::PathNotFound) : ErrorFromErrno(failure);
}

// How many components of `path` the folder `drive` takes; -1 when it does not contain the path.
std::ptrdiff_t ContainedBy(const NativePath& drive, const NativePath& path) {
    const auto ends = std::mismatch(drive.begin(), drive.end(), path.begin(), path.end());
    return ends.first == drive.end() ? std::distance(drive.begin(), drive.end()) : -1;
}

} // namespace

MappedVolumes::MappedVolumes(SystemCalls& callsToUse, const DriveTable& drivesToUse) : calls(callsToUse) {
    for (auto drive = drivesToUse.constBegin(); drive != drivesToUse.constEnd(); ++drive) {
        drives.insert(drive.key().toLower(), Normal(drive.value()));
    }
}

QStringList MappedVolumes::Drives() const {
    QStringList names;
    for (const QChar letter : drives.keys()) {
        names.append(QString(letter) + QChar(u':'));
    }
    return names;
}

Volumes::NativeResult MappedVolumes::ToNative(const QString& path) const {
    const QString whole = WholePath(path);
    const QString drive = DriveOf(whole);
    if (drive.isEmpty()) {
        return {{}, MakeError(ErrorNumber::BadFileName)};
    }
    const auto root = drives.constFind(drive[0]);
    if (root == drives.constEnd()) {
        return {{}, MakeError(ErrorNumber::DeviceUnavailable)};
    }
    QStringList components;
    if (!SplitComponents(whole.mid(DriveLength), components)) {
        return {{}, MakeError(ErrorNumber::BadFileName)};
    }
    if (FolderFailure(calls, *root) != 0) {
        return {{}, MakeError(ErrorNumber::DiskNotReady)};
    }
    NativePath native = *root;
    for (qsizetype i = 0; i < components.size(); ++i) {
        const bool last = i + 1 == components.size();
        int failure = 0;
        const Lookup found = Descend(calls, native, components[i], failure);
        if (found == Lookup::Failed && !(last && failure == EACCES)) {
            return {{}, FolderError(failure)};
        }
        if (const int notFolder = last ? 0 : FolderFailure(calls, native)) {
            return {{}, FolderError(notFolder)};
        }
    }
    return {native, {}};
}

Volumes::ProgramResult MappedVolumes::FromNative(const NativePath& path) const {
    const NativePath native = Normal(path);
    std::ptrdiff_t longest = 0;
    QChar letter;
    for (auto drive = drives.constBegin(); drive != drives.constEnd(); ++drive) {
        const std::ptrdiff_t contained = ContainedBy(drive.value(), native);
        if (contained > longest) {
            longest = contained;
            letter = drive.key();
        }
    }
    if (longest == 0) {
        return {{}, MakeError(ErrorNumber::DeviceUnavailable)};
    }
    QString result = QString(letter) + QStringLiteral(":\\");
    for (auto part = std::next(native.begin(), longest); part != native.end(); ++part) {
        const auto name = TextFromNative(*part);
        if (!name || !NameFitsProgramPath(*name)) {
            return {{}, MakeError(ErrorNumber::BadFileName)};
        }
        result = JoinPath(result, *name);
    }
    return {result, {}};
}

Volumes::FolderResult MappedVolumes::ListFolders(const QString& path) const {
    const NativeResult folder = ToNative(path);
    if (folder.Error) {
        return {{}, folder.Error};
    }
    std::vector<NativePath> names;
    if (const int failure = -Retried([&] { return calls.ListNames(folder.Path, names); })) {
        const bool root = drives.value(DriveOf(WholePath(path))[0]) == folder.Path;
        return {{}, root ? MakeError(ErrorNumber::DiskNotReady) : FolderError(failure)};
    }
    QStringList folders;
    for (const NativePath& name : names) {
        const auto text = TextFromNative(name);
        if (text && !text->startsWith(u'.') && NameFitsProgramPath(*text) &&
            FolderFailure(calls, folder.Path / name) == 0) {
            folders.append(*text);
        }
    }
    std::sort(folders.begin(), folders.end(), [](const QString& left, const QString& right) {
        const int order = left.compare(right, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : left < right;
    });
    return {folders, {}};
}
