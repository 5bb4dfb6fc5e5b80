#include "transfer/TransferStore.h"

#include "app/DamagedFile.h"
#include "app/ProductTexts.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/ProgramPath.h"

std::int16_t TransferLock = 0;

namespace {

// The path of the file whose last reading failed before its end; empty when there is none.
QString& DamagedPath() {
    static QString path;
    return path;
}

} // namespace

bool LoadTransferFile(const QString& name, TransferSettings& settings) {
    const QString path = JoinPath(ProgramFolder, name);
    DamagedPath().clear();
    settings.TransferLock = TransferLock;
    const FileContents file = ReadWholeFile(path);
    bool failed = bool(file.Error);
    if (!failed) {
        failed = bool(ReadTransferText(file.Bytes, settings));
    }
    TransferLock = failed ? std::int16_t(1) : settings.TransferLock;
    settings.TransferLock = TransferLock;
    if (failed) { // a missing file needs no copy, but one that was only out of reach may be back by then
        DamagedPath() = path;
    }
    return !failed;
}

namespace {

SystemError SaveSettings(const QString& name, const TransferSettings& settings, const QString& systemName) {
    const QString path = JoinPath(ProgramFolder, name);
    if (DamagedPath() == path) {
        if (SystemError error = CopyDamagedFile(path)) {
            return error;
        }
        DamagedPath().clear();
    }
    TransferSettings saved = settings;
    saved.TransferLock = TransferLock;
    if (SystemError error = SaveWholeFile(path, WriteTransferText(saved, TitleLine, VersionText, systemName))) {
        return error;
    }
    DeleteWholeFile(JoinPath(ProgramFolder, QString::fromUtf16(DestinationPathFile))); // it may well not be there
    return {};
}

} // namespace

SystemError SaveTransferFile(const QString& name, const TransferSettings& settings, const QString& systemName) {
    return RunSave([&] { return SaveSettings(name, settings, systemName); });
}
