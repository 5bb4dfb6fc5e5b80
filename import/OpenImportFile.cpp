#include "app/CFG_2015.h"
#include "import/UpdFieldFile.h"
#include "import/frmImport_SU.h"
#include "platform/Desktop.h"
#include "platform/Volumes.h"

#include <algorithm>

// How frmImport_SU chooses and opens the import file.

void frmImport_SU::OpenImportFile() {
    preview->imgLoading->hide();
    QString path = ProgramConfig.ImportStudentsFile;
    if ((path.isEmpty() || forceDialog) && !AskForImportFile(path)) {
        return;
    }
    if (path.contains(QChar(u'\\'))) {
        ReadUpdFieldCFG(path);
    }
    BeginReading();
    lblFileName->setText(path);
    ProgramConfig.ImportStudentsFile = path;
    ReadImportFile(path);
    LeaveIfAsked();
}

bool frmImport_SU::AskForImportFile(QString& path) {
    forceDialog = false;
    FileDialog dialog;
    dialog.DialogKind = FileDialog::Kind::Open;
    dialog.Title = QStringLiteral("Open an Import File");
    dialog.Filter = QStringLiteral("All Files (*.*)|*.*");
    dialog.FileName = lblFileName->text();
    dialog.FileMustExist = true;
    const FileDialogAnswer answer = TheDesktop().AskForFile(dialog);
    if (answer.Error) {
        return false;
    }
    ProgramConfig.ImportFields.fill(QString());
    ProgramConfig.ImportFieldLast = 0;
    matching.ClearAll();
    path = answer.FileName;
    return true;
}

// A file that cannot be read, or whose reading was stopped, says nothing.
void frmImport_SU::ReadUpdFieldCFG(const QString& path) {
    const QString folder = path.left(path.lastIndexOf(QChar(u'\\')) + 1);
    const QString setupFile = TheDesktop().TheVolumes().WholePath(folder + setupFileName);
    const auto read = std::make_shared<SetupBytes>();
    const bool ended = ReadPatiently([read, setupFile] { *read = ReadSetupBytes(setupFile); });
    ImportSetup setup{0, ProgramConfig.ImportFields, ImportUpdateOptions};
    const SetupReading result = TakeSetupBytes(ended ? *read : SetupBytes(), matching.Fields(), setup);
    // An unchecked count may be anything; the settings have room for the list's entries only.
    ProgramConfig.ImportFieldLast = std::clamp<std::int16_t>(setup.ActiveFields, 0, MatchLimit);
    ProgramConfig.ImportFields = setup.Matches;
    ImportUpdateOptions = setup.Options;
    for (const SetupFault& fault : result.Faults) {
        ShowNotice(MessageIcon::Critical, fault.Title, fault.Text);
    }
    if (result.Complete) {
        LoadUpdateOptions();
    }
}

void frmImport_SU::LoadUpdateOptions() {
    KeepYesOrNo(ImportUpdateOptions);
    pnlUpdateOpts->ShowOptions(ImportUpdateOptions);
}

// The first record, the number of records, the stored matches; a failure leaves what was read before it.
void frmImport_SU::ReadImportFile(const QString& path) {
    importFile = ImportFile(path);
    recordCount = 0;
    const ImportFile::RecordReading first = ReadRecord(importFile.ReaderOfFirst());
    if (first.Came.What != ImportFile::Outcome::Done) {
        ShowNoRecord(first.Came);
        return;
    }
    ShowFirstRecord(first.Record);
    const ImportFile::Result counted = CountRecords();
    recordCount = std::max(importFile.RecordCount(), std::int64_t{1});
    cmdClearAll_Click();
    currentRecord = 1;
    preview->ShowRecordNumber(currentRecord, recordCount);
    EndReading();
    ShowFileNotice(counted);
    if (ProgramConfig.ImportFieldLast > 0) {
        ShowFieldMatches();
    }
    if (counted.What == ImportFile::Outcome::Failed) {
        TellReadingFailure(counted.Error);
    }
}

void frmImport_SU::ShowFirstRecord(const ImportRecord& record) {
    const int fields = static_cast<int>(record.Fields.size());
    ProgramConfig.ImportFieldLast = std::min(ProgramConfig.ImportFieldLast, static_cast<std::int16_t>(fields));
    matching.SetRowCount(fields);
    preview->grdImport->SetRows(fields);
    preview->grdImport->ShowFields(record.Fields);
}

void frmImport_SU::ShowNoRecord(const ImportFile::Result& why) {
    preview->grdImport->SetRows(0);
    matching.SetRowCount(0);
    cmdClearAll_Click();
    EndReading();
    ShowFileNotice(why);
    if (why.What == ImportFile::Outcome::Failed) {
        TellReadingFailure(why.Error);
    }
}

void frmImport_SU::ShowFieldMatches() {
    const int format = DobFormatOf(ProgramConfig.ImportFields[0]);
    cboDOB->setCurrentIndex(format);
    matching.ShowStored(ProgramConfig.ImportFields, ProgramConfig.ImportFieldLast);
    ShowMatches();
}

// The line under the grid. It changes no byte: the gradebook will read what the preview shows.
void frmImport_SU::ShowFileNotice(const ImportFile::Result& counted) {
    QStringList notices;
    if (counted.What == ImportFile::Outcome::Stopped) {
        notices.append(
            recordCount > 0
                ? QStringLiteral("The reading was stopped: only the first %1 records can be shown.").arg(recordCount)
                : QStringLiteral("The reading was stopped before the first record came."));
    }
    if (importFile.LooksLikeUtf8()) {
        notices.append(QStringLiteral("This file looks like UTF-8. Accented letters will be wrong unless it is saved "
                                      "as Windows-1252."));
    }
    preview->ShowNotice(notices.join(QChar(u' ')));
}

void frmImport_SU::cmdOpen_Click() {
    forceDialog = true;
    OpenImportFile();
}
