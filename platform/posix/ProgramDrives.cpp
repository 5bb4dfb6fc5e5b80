#include "platform/ProgramDrives.h"

#include "platform/DrivesConf.h"
#include "platform/OpenFile.h"

ProgramDrives OpenProgramDrives(SystemCalls& calls, const NativePath& executableFolder, CaptionLanguage language) {
    ProgramDrives result;
    NativePath file = executableFolder / "drives.conf";
    SystemCalls::FileStatus status;
    QByteArray bytes;
    int failure = FollowLinks(calls, file, status);
    if (failure == 0) {
        failure = status.IsRegularFile ? ReadFile(calls, file, bytes) : EISDIR;
    }
    if (failure != 0 && failure != ENOENT) {
        const SystemError error = ErrorFromErrno(failure);
        result.Complaints.append(InLanguage(language, "The drive table drives.conf cannot be read.\n\nError %1: %2.",
                                            "La table des lecteurs drives.conf ne peut pas être lue.\n\n"
                                            "Erreur %1 : %2.")
                                     .arg(QString::number(error.Number), error.Description));
    }
    DrivesConf conf = ReadDrivesConf(bytes, language);
    result.Complaints += BadLineTexts(conf, language);
    QString complaint;
    result.ProgramFolder = DriveForProgramFolder(calls, conf.Drives, executableFolder, complaint, language);
    if (!complaint.isEmpty()) {
        result.Complaints.append(complaint);
    }
    result.TheVolumes = std::make_unique<MappedVolumes>(calls, conf.Drives);
    return result;
}
