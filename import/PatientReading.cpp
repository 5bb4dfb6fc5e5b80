#include "import/ReadingGuard.h"
#include "import/frmImport_SU.h"
#include "platform/BackgroundWork.h"
#include "platform/Desktop.h"

#include <utility>

// How frmImport_SU reads: whatever may hang is done by a thread of its own, and the window stays alive meanwhile. Only
// Cancel, Escape and the close button then do something: they stop the reading, even one that hangs.

namespace {

constexpr int ShortReading = 100; // milliseconds; a longer one is seen and can be stopped
constexpr int BetweenEvents = 10; // milliseconds
constexpr int FullBar = 1000;

} // namespace

// Runs work that reads; false when the user stopped it. It is then left to itself, so it owns all that it needs.
bool frmImport_SU::ReadPatiently(const std::function<void()>& work) {
    if (reading && stopAsked) {
        return false;
    }
    const BackgroundWork running(work);
    if (running.Wait(ShortReading)) {
        return true;
    }
    BeginReading();
    while (!running.Wait(BetweenEvents)) {
        TheDesktop().ProcessPendingEvents();
        if (stopAsked) {
            return false;
        }
    }
    return true;
}

ImportFile::RecordReading frmImport_SU::ReadRecord(const ImportFile::Reader& reader) {
    const auto record = std::make_shared<ImportFile::RecordReading>();
    if (ReadPatiently([record, reader] { *record = reader(); })) {
        return *record;
    }
    return {{ImportFile::Outcome::Stopped, {}}, {}};
}

ImportFile::Result frmImport_SU::CountRecords() {
    return importFile.Count([this](std::int64_t read, std::int64_t size) {
        if (size > 0) {
            preview->prgLoading->setMaximum(FullBar);
            preview->prgLoading->setValue(static_cast<int>(size > read ? read * FullBar / size : FullBar));
        }
        TheDesktop().ProcessPendingEvents();
        return !stopAsked;
    });
}

// The loading picture comes up in place of the spinner and the record's number.
void frmImport_SU::BeginReading() {
    if (reading) {
        return;
    }
    reading = true;
    stopAsked = false;
    focusBefore = focusWidget();
    guard = std::make_unique<ReadingGuard>(*this, *cmdExitImport);
    connect(guard.get(), &ReadingGuard::EscapePressed, this, &frmImport_SU::reject);
    preview->ShowLoading(true);
    TheDesktop().ProcessPendingEvents();
}

void frmImport_SU::EndReading() {
    if (!reading) {
        return;
    }
    preview->ShowLoading(false);
    TheDesktop().ProcessPendingEvents();
    guard.reset();
    reading = false;
    const bool hasRecord = recordCount > 0;
    preview->lblRecordCount->setVisible(hasRecord);
    preview->spnRecords->setVisible(hasRecord);
    preview->lblMatched->show();
    preview->grdImport->show();
    if (focusBefore != nullptr && focusBefore->isVisible()) {
        focusBefore->setFocus();
    }
}

// The close button stops a reading first; the window goes when that is over.
void frmImport_SU::LeaveIfAsked() {
    if (std::exchange(closeAsked, false)) {
        reject();
    }
}
