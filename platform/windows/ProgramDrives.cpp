#include "platform/ProgramDrives.h"

#include "platform/ProgramPath.h"
#include "platform/windows/WindowsVolumes.h"

// The drives are the system's own. A program folder whose name the code page cannot write goes by its short name; where
// the disk keeps none, by its own, which serves as long as no file has to name it.
ProgramDrives OpenProgramDrives(SystemCalls& calls, const NativePath& executableFolder, CaptionLanguage) {
    ProgramDrives result;
    result.TheVolumes = std::make_unique<WindowsVolumes>(calls, RealDisks());
    Volumes::ProgramResult folder = result.TheVolumes->FromNative(executableFolder);
    if (folder.Error) {
        folder = result.TheVolumes->FromNative(RealDisks().ShortName(executableFolder));
    }
    const QString own = QString::fromStdWString(NativePath(executableFolder).make_preferred().native());
    result.ProgramFolder = WithoutTrailingBackslash(folder.Error ? own : folder.Path);
    return result;
}
