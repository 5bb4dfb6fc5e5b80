#include "platform/windows/WindowsVolumes.h"

#include "platform/NativeText.h"
#include "platform/OpenFile.h"
#include "platform/ProgramPath.h"
#include "platform/windows/NativeNames.h"
#include "platform/windows/WindowsNames.h"

#include <algorithm>
#include <cerrno>

namespace {

NativePath NativeOf(const QString& text) {
    return NativePath(text.toStdWString());
}

SystemError FolderError(int failure) {
    return failure == ENOENT || failure == ENOTDIR ? MakeError(ErrorNumber::PathNotFound) : ErrorFromErrno(failure);
}

// 0 for a folder, links followed; else why it is none.
int FolderFailure(SystemCalls& calls, const NativePath& folder) {
    SystemCalls::FileStatus status;
    const NativePath inside = folder / "."; // "." looks through a link
    const int failure = -Retried([&] { return calls.Status(inside, status); });
    return failure == 0 && !status.IsFolder ? ENOTDIR : failure;
}

// Whether the drive or the share can be used; a root that this user may not look at can have folders that he may.
SystemError RootError(SystemCalls& calls, const WindowsPath& path, const QString& letters) {
    if (!path.OnShare() && !letters.contains(path.Root[0])) {
        return MakeError(ErrorNumber::DeviceUnavailable);
    }
    const int failure = FolderFailure(calls, NativeOf(path.Root));
    if (failure == 0 || failure == EACCES) {
        return {};
    }
    const bool gone = path.OnShare() && failure != NoDiskInDrive;
    return MakeError(gone ? ErrorNumber::DeviceUnavailable : ErrorNumber::DiskNotReady);
}

} // namespace

WindowsVolumes::WindowsVolumes(SystemCalls& callsToUse, const WindowsDisks& disksToUse)
    : calls(callsToUse), disks(disksToUse) {}

QStringList WindowsVolumes::Drives() const {
    QStringList names;
    for (const QChar letter : disks.Letters()) {
        names.append(QString(letter) + QChar(u':'));
    }
    return names;
}

Volumes::NativeResult WindowsVolumes::ToNative(const QString& path) const {
    const WindowsPath split = SplitWindowsPath(WholePath(path));
    if (split.Root.isEmpty() || !std::all_of(split.Components.begin(), split.Components.end(), IsPlainName)) {
        return {{}, MakeError(ErrorNumber::BadFileName)};
    }
    if (const SystemError error = RootError(calls, split, disks.Letters())) {
        return {{}, error};
    }
    const NativePath folder = NativeOf(split.FolderText());
    const int failure = split.Components.size() > 1 ? FolderFailure(calls, folder) : 0;
    if (failure != 0 && failure != EACCES) {
        return {{}, FolderError(failure)};
    }
    return {NativeOf(split.Text()), {}};
}

Volumes::ProgramResult WindowsVolumes::FromNative(const NativePath& path) const {
    const std::wstring name = WithoutPrefix(NativePath(path).make_preferred().native()).native();
    const WindowsPath split = SplitWindowsPath(QString::fromStdWString(name));
    if (split.Root.isEmpty()) {
        return {{}, MakeError(ErrorNumber::DeviceUnavailable)};
    }
    const bool fits = std::all_of(split.Components.begin(), split.Components.end(), NameFitsProgramPath);
    const bool rootFits = !split.OnShare() || NameFitsProgramPath(NameOf(split.Root));
    return fits && rootFits ? ProgramResult{split.Text(), {}} : ProgramResult{{}, MakeError(ErrorNumber::BadFileName)};
}

Volumes::FolderResult WindowsVolumes::ListFolders(const QString& path) const {
    const NativeResult folder = ToNative(path);
    if (folder.Error) {
        return {{}, folder.Error};
    }
    QStringList names;
    int failure = FolderFailure(calls, folder.Path);
    if (failure == 0 || failure == EACCES) {
        failure = -Retried([&] { return disks.VisibleFolders(folder.Path, names); });
    }
    if (failure != 0) {
        return {{}, FolderError(failure)};
    }
    FolderResult result;
    std::copy_if(names.begin(), names.end(), std::back_inserter(result.Names), NameFitsProgramPath);
    std::sort(result.Names.begin(), result.Names.end(), [](const QString& left, const QString& right) {
        const int order = left.compare(right, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : left < right;
    });
    return result;
}

QString WindowsVolumes::FirstFolder(const QString& drive) const {
    const WindowsPath current = SplitWindowsPath(disks.CurrentFolder(drive));
    return current.Root.isEmpty() ? Volumes::FirstFolder(drive) : current.Text();
}
