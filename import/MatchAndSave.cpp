#include "app/CFG_2015.h"
#include "import/ImportCaptions.h"
#include "import/UpdFieldFile.h"
#include "import/frmImport_SU.h"
#include "platform/Desktop.h"

// What frmImport_SU does with the matches: making, undoing and saving them.

void frmImport_SU::lblFieldList_MouseDown(int field) {
    matching.Choose(field);
}

// Every double click begins with a press on the label; Enter and Space do the same from the keyboard.
void frmImport_SU::lblFieldList_DblClick(int field) {
    lblFieldList_MouseDown(field);
    if (matching.MatchChosen()) {
        ShowMatches();
    }
}

void frmImport_SU::lblFieldList_Drag() {
    preview->pnlFieldList->Drag(matching.Chosen());
}

void frmImport_SU::grdImport_DragDrop() {
    if (matching.Drop()) {
        ShowMatches();
    }
}

void frmImport_SU::ShowMatches() {
    preview->ShowMatching(matching);
    preview->ShowMatchCount(matching.MatchCount(), matching.RowCount());
    cmdSave->setEnabled(true);
}

void frmImport_SU::cboDOB_Click(int format) {
    if (format < 0) {
        return; // the list is being filled
    }
    matching.SetDobFormat(format);
    preview->ShowMatching(matching);
    lblDOBInstr->setText(DobInstructions(format));
}

void frmImport_SU::cmdClearMatch_Click() {
    if (!matching.ClearLast()) {
        return;
    }
    ShowMatches();
    cmdSave->setEnabled(matching.MatchCount() > 0);
}

// Save stays as it is, so that a setup can be removed.
void frmImport_SU::cmdClearAll_Click() {
    matching.ClearAll();
    preview->ShowMatching(matching);
    preview->ShowMatchCount(0, matching.RowCount());
}

void frmImport_SU::cmdSave_Click() {
    ProgramConfig.ImportFields.fill(QString());
    if (matching.MatchCount() < 1) {
        SaveWithoutMatches();
        return;
    }
    TakeOverSetup();
    if (!matching.HasMatch(LastNameField) || !matching.HasMatch(FirstNameField)) {
        ShowNotice(MessageIcon::Critical, QStringLiteral("IMPORT ERROR"),
                   QStringLiteral("You must specify the field for Last Name and First Name."));
        return;
    }
    if (SaveUpdFieldCFG()) {
        SaveProgramConfig();
        accept();
    }
}

void frmImport_SU::SaveWithoutMatches() {
    const MessageAnswer answer = TheDesktop().ShowMessage(
        {QStringLiteral("DO NOT SETUP IMPORT FILE"),
         QStringLiteral("Warning! Since no Field Matches have been made, the import file will not be 'Setup' for "
                        "teachers.\n\nDo you want to exit any way?"),
         MessageButtons::YesNo, MessageIcon::Critical});
    if (answer != MessageAnswer::Yes) {
        return;
    }
    DeleteUpdFieldCFG(lblFileName->text(), setupFileName);
    ProgramConfig.ImportStudentsFile.clear();
    SaveProgramConfig();
    accept();
}

void frmImport_SU::TakeOverSetup() {
    ProgramConfig.ImportFieldLast = static_cast<std::int16_t>(matching.MatchCount());
    ProgramConfig.ImportFields[0] = QString::number(cboDOB->currentIndex());
    for (int row = 1; row <= matching.MatchCount(); ++row) {
        ProgramConfig.ImportFields[static_cast<std::size_t>(row)] = matching.Name(row);
    }
    ImportUpdateOptions = pnlUpdateOpts->Options();
}

// A failure leaves the old setup file whole and the window open.
bool frmImport_SU::SaveUpdFieldCFG() {
    const ImportSetup setup{ProgramConfig.ImportFieldLast, ProgramConfig.ImportFields, ImportUpdateOptions};
    const SystemError error = ::SaveUpdFieldCFG(lblFileName->text(), setupFileName, setup);
    if (error) {
        ShowNotice(MessageIcon::Critical, setupFileName + QStringLiteral(" SAVE ERROR: %1").arg(error.Number),
                   QStringLiteral("Unexpected Error while trying to save: ") + setupFileName + QStringLiteral("\n\n") +
                       error.Description);
    }
    return !error;
}
