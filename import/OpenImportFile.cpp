#include "app/CFG_2015.h"
#include "import/ReadingGuard.h"
#include "import/UpdFieldFile.h"
#include "import/frmImport_SU.h"
#include "platform/Desktop.h"

#include <algorithm>
#include <utility>

// What frmImport_SU does with the import file: choosing, opening, counting, paging.

namespace {

constexpr int FullBar = 1000;

} // namespace

void frmImport_SU::OpenImportFile() {
    preview->imgLoading->hide();
    QString path = ProgramConfig.ImportStudentsFile;
    if ((path.isEmpty() || forceDialog) && !AskForImportFile(path)) {
        return;
    }
    if (path.contains(QChar(u'\\'))) {
        ReadUpdFieldCFG(path);
    }
    importFile = ImportFile(path);
    BeginReading();
    lblFileName->setText(path);
    ProgramConfig.ImportStudentsFile = path;
    ReadImportFile();
    if (std::exchange(closeAsked, false)) {
        reject();
    }
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

void frmImport_SU::ReadUpdFieldCFG(const QString& path) {
    ImportSetup setup{ProgramConfig.ImportFieldLast, ProgramConfig.ImportFields, ImportUpdateOptions};
    const QString folder = path.left(path.lastIndexOf(QChar(u'\\')) + 1);
    const SetupReading result = ::ReadUpdFieldCFG(folder + setupFileName, matching.Fields(), setup);
    ProgramConfig.ImportFieldLast = setup.ActiveFields;
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
void frmImport_SU::ReadImportFile() {
    ImportRecord first;
    if (!SplitFirstRecord(first)) {
        return;
    }
    ShowFirstRecord(first);
    const ImportFile::Result result = CountRecords();
    EndReading();
    recordCount = std::max(importFile.RecordCount(), std::int64_t{1});
    cmdClearAll_Click();
    currentRecord = 1;
    preview->ShowRecordNumber(currentRecord, recordCount);
    ShowFileNotice(result.What);
    if (ProgramConfig.ImportFieldLast > 0) {
        ShowFieldMatches();
    }
    if (result.What == ImportFile::Outcome::Failed) {
        TellReadingFailure(result.Error);
    }
}

bool frmImport_SU::SplitFirstRecord(ImportRecord& record) {
    const SystemError error = importFile.ReadFirst(record);
    if (!error) {
        return true;
    }
    EndReading();
    preview->spnRecords->hide();
    preview->lblRecordCount->hide();
    preview->grdImport->SetRows(0);
    matching.SetRowCount(0);
    cmdClearAll_Click();
    preview->lblNotice->clear();
    TellReadingFailure(error);
    return false;
}

void frmImport_SU::ShowFirstRecord(const ImportRecord& record) {
    const int fields = static_cast<int>(record.Fields.size());
    ProgramConfig.ImportFieldLast = std::min(ProgramConfig.ImportFieldLast, static_cast<std::int16_t>(fields));
    matching.SetRowCount(fields);
    preview->grdImport->SetRows(fields);
    preview->grdImport->ShowFields(record.Fields);
}

// The loading picture comes up; the window stays alive, but only Cancel, Escape and the close button do something.
void frmImport_SU::BeginReading() {
    reading = true;
    stopAsked = false;
    focusBefore = focusWidget();
    guard = std::make_unique<ReadingGuard>(*this, *cmdExitImport);
    connect(guard.get(), &ReadingGuard::EscapePressed, this, &frmImport_SU::reject);
    preview->ShowLoading(true);
    TheDesktop().ProcessPendingEvents();
}

void frmImport_SU::EndReading() {
    preview->ShowLoading(false);
    TheDesktop().ProcessPendingEvents();
    guard.reset();
    reading = false;
    preview->lblRecordCount->show();
    preview->spnRecords->show();
    preview->lblMatched->show();
    preview->grdImport->show();
    if (focusBefore != nullptr && focusBefore->isVisible()) {
        focusBefore->setFocus();
    }
}

ImportFile::Result frmImport_SU::CountRecords() {
    preview->prgLoading->setMaximum(FullBar);
    return importFile.Count([this](std::int64_t read, std::int64_t size) {
        preview->prgLoading->setValue(static_cast<int>(size > read ? read * FullBar / size : FullBar));
        TheDesktop().ProcessPendingEvents();
        return !stopAsked;
    });
}

void frmImport_SU::ShowFieldMatches() {
    const int format = DobFormatOf(ProgramConfig.ImportFields[0]);
    cboDOB->setCurrentIndex(format);
    matching.ShowStored(ProgramConfig.ImportFields, ProgramConfig.ImportFieldLast);
    ShowMatches();
}

void frmImport_SU::GoToRecord(std::int64_t record) {
    ShowImportRecord(std::clamp(record, std::int64_t{1}, recordCount));
}

void frmImport_SU::ShowImportRecord(std::int64_t wanted) {
    ImportRecord record;
    const ImportFile::Result result = importFile.Read(wanted, record);
    if (result.What == ImportFile::Outcome::Done) {
        ShowRecord(wanted, record);
    } else if (result.What == ImportFile::Outcome::Changed) {
        FileHasChanged(wanted);
    } else {
        TellReadingFailure(result.Error);
    }
}

// Somebody wrote to the file: the places of its lines are counted again before a record is shown.
void frmImport_SU::FileHasChanged(std::int64_t wanted) {
    BeginReading();
    const ImportFile::Result counted = CountRecords();
    EndReading();
    ImportRecord record;
    ImportFile::Result result = counted;
    if (counted.What != ImportFile::Outcome::Failed && importFile.RecordCount() > 0) {
        recordCount = importFile.RecordCount();
        wanted = std::min(wanted, recordCount);
        result = importFile.Read(wanted, record);
    } else if (counted.What != ImportFile::Outcome::Failed) {
        result = {ImportFile::Outcome::Failed, MakeError(ErrorNumber::InputPastEnd)};
    }
    if (result.What == ImportFile::Outcome::Done) {
        ShowRecord(wanted, record);
        ShowFileNotice(counted.What);
        ShowNotice(MessageIcon::Critical, QStringLiteral("IMPORT ERROR"),
                   QStringLiteral("The import file has changed since it was opened.\n\nNumber of records now: %1")
                       .arg(recordCount));
    } else if (result.What == ImportFile::Outcome::Failed) {
        TellReadingFailure(result.Error);
    }
    if (std::exchange(closeAsked, false)) {
        reject();
    }
}

void frmImport_SU::ShowRecord(std::int64_t number, const ImportRecord& record) {
    currentRecord = number;
    preview->grdImport->ShowFields(record.Fields);
    if (record.Separator != '\0') {
        preview->ShowMatchCount(0, static_cast<int>(record.Fields.size()));
    }
    preview->ShowRecordNumber(currentRecord, recordCount);
}

void frmImport_SU::TellReadingFailure(const SystemError& error) {
    const bool empty = error == MakeError(ErrorNumber::InputPastEnd);
    const QString what = empty ? QStringLiteral("The import file is empty: ")
                               : QStringLiteral("Unexpected Error while trying to read: ");
    ShowNotice(MessageIcon::Critical, QStringLiteral("IMPORT ERROR: %1").arg(error.Number),
               what + lblFileName->text() + QStringLiteral("\n\n") + error.Description);
}

// The line under the grid. It changes no byte: the gradebook will read what the preview shows.
void frmImport_SU::ShowFileNotice(ImportFile::Outcome outcome) {
    QString notice;
    if (importFile.LooksLikeUtf8()) {
        notice = QStringLiteral("This file looks like UTF-8. Accented letters will be wrong unless it is saved as "
                                "Windows-1252.");
    }
    if (outcome == ImportFile::Outcome::Stopped) {
        notice = QStringLiteral("The reading was stopped: only the first %1 records can be shown. ").arg(recordCount) +
                 notice;
    }
    preview->lblNotice->setText(notice);
}

void frmImport_SU::cmdOpen_Click() {
    forceDialog = true;
    OpenImportFile();
}
