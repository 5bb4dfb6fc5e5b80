#include "import/frmImport_SU.h"
#include "platform/Desktop.h"

#include <algorithm>

// How frmImport_SU pages through the records of the import file.

void frmImport_SU::GoToRecord(std::int64_t record) {
    ShowImportRecord(std::clamp(record, std::int64_t{1}, recordCount));
}

void frmImport_SU::ShowImportRecord(std::int64_t wanted) {
    ImportFile::RecordReading found = ReadRecord(importFile.ReaderOf(wanted));
    const bool changed = found.Came.What == ImportFile::Outcome::Changed;
    if (changed) {
        found.Came = FileHasChanged(wanted, found.Record);
    }
    EndReading();
    if (found.Came.What == ImportFile::Outcome::Done) {
        ShowRecord(wanted, found.Record);
    } else if (found.Came.What == ImportFile::Outcome::Failed) {
        TellReadingFailure(found.Came.Error);
    }
    if (changed && found.Came.What == ImportFile::Outcome::Done) {
        ShowNotice(MessageIcon::Critical, QStringLiteral("IMPORT ERROR"),
                   QStringLiteral("The import file has changed since it was opened.\n\nNumber of records now: %1")
                       .arg(recordCount));
    }
    LeaveIfAsked();
}

// Somebody wrote to the file: the places of its lines are counted again before a record is read.
ImportFile::Result frmImport_SU::FileHasChanged(std::int64_t& wanted, ImportRecord& record) {
    BeginReading();
    ImportFile::Result counted = CountRecords();
    if (counted.What == ImportFile::Outcome::Failed) {
        return counted;
    }
    if (importFile.RecordCount() == 0) {
        const bool stopped = counted.What == ImportFile::Outcome::Stopped;
        return stopped ? counted
                       : ImportFile::Result{ImportFile::Outcome::Failed, MakeError(ErrorNumber::InputPastEnd)};
    }
    recordCount = importFile.RecordCount();
    wanted = std::min(wanted, recordCount);
    ShowFileNotice(counted);
    stopAsked = false; // the stop was meant for the counting
    const ImportFile::RecordReading found = ReadRecord(importFile.ReaderOf(wanted));
    record = found.Record;
    return found.Came;
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
