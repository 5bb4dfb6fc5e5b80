#include "import/frmImport_SU.h"

#include "app/CFG_2015.h"
#include "import/ImportCaptions.h"
#include "import/ImportParts.h"
#include "platform/widgets/ProgramStyle.h"

#include <QCloseEvent>
#include <QVBoxLayout>
#include <utility>

namespace {

constexpr int SmallGap = 6;

} // namespace

frmImport_SU::frmImport_SU(QWidget* parent)
    : OptionsWindow("frmImport_SU", parent), cmdOpen(NewImportButton(this, "cmdOpen")),
      lblFileName(new PathLabel(this)), preview(new PreviewPanel(this)), pnlUpdateOpts(new UpdateOptionsPanel(this)),
      pnlDOB(new QGroupBox(this)), cboDOB(new DropDownList(pnlDOB)), lblDOBInstr(NewImportLabel(pnlDOB, "lblDOBInstr")),
      lblHelp2(NewImportLabel(this, "lblHelp2")), cmdSave(NewImportButton(this, "cmdSave")),
      cmdExitImport(NewImportButton(this, "cmdExitImport")) {
    lblFileName->setObjectName(QStringLiteral("lblFileName"));
    pnlDOB->setObjectName(QStringLiteral("pnlDOB"));
    cboDOB->setObjectName(QStringLiteral("cboDOB"));
    lblHelp2->setWordWrap(true);
    cboDOB->setAccessibleName(QStringLiteral("Format of the birth dates"));
    BuildLayout();
    ConnectControls();
    Form_Load();
}

// Hidden while it is still whole: the focus that leaves the field list raises a signal that this window answers.
frmImport_SU::~frmImport_SU() {
    hide();
}

void frmImport_SU::BuildLayout() {
    auto* top = new QHBoxLayout;
    top->setSpacing(Spacing::Gap);
    top->addWidget(cmdOpen);
    top->addWidget(lblFileName, 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(Spacing::Margin, Spacing::Margin, Spacing::Margin, Spacing::Margin);
    rows->setSpacing(SmallGap);
    rows->addLayout(top);
    rows->addWidget(preview);
    rows->addWidget(pnlUpdateOpts, 1);
    rows->addLayout(BuildBottom());
}

QLayout* frmImport_SU::BuildBottom() {
    auto* dob = new QHBoxLayout(pnlDOB);
    dob->setContentsMargins(Spacing::Gap, 2, Spacing::Gap, SmallGap);
    dob->setSpacing(Spacing::Gap);
    dob->addWidget(cboDOB);
    dob->addWidget(lblDOBInstr, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Spacing::Gap);
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdExitImport);
    auto* side = new QVBoxLayout;
    side->setSpacing(SmallGap);
    side->addWidget(lblHelp2, 1);
    side->addLayout(buttons);
    auto* bottom = new QHBoxLayout;
    bottom->setSpacing(Spacing::Gap);
    bottom->addWidget(pnlDOB);
    bottom->addLayout(side, 1);
    return bottom;
}

void frmImport_SU::ConnectControls() {
    connect(cmdOpen, &QPushButton::clicked, this, &frmImport_SU::cmdOpen_Click);
    connect(cmdSave, &QPushButton::clicked, this, &frmImport_SU::cmdSave_Click);
    connect(cmdExitImport, &QPushButton::clicked, this, &frmImport_SU::reject);
    connect(preview->cmdClearMatch, &QPushButton::clicked, this, &frmImport_SU::cmdClearMatch_Click);
    connect(preview->cmdClearAll, &QPushButton::clicked, this, &frmImport_SU::cmdClearAll_Click);
    connect(preview->grdImport, &ImportGrid::FieldDropped, this, &frmImport_SU::grdImport_DragDrop);
    connect(cboDOB, &QComboBox::currentIndexChanged, this, &frmImport_SU::cboDOB_Click);
    connect(cboDOB, &QComboBox::activated, this, &frmImport_SU::cboDOB_Click); // the same entry chosen again

    FieldListPanel* list = preview->pnlFieldList;
    connect(list, &FieldListPanel::Pressed, this, &frmImport_SU::lblFieldList_MouseDown);
    connect(list, &FieldListPanel::DoubleClicked, this, &frmImport_SU::lblFieldList_DblClick);
    connect(list, &FieldListPanel::Entered, this, &frmImport_SU::lblFieldList_DblClick);
    connect(list, &FieldListPanel::Dragged, this, &frmImport_SU::lblFieldList_Drag);
    connect(list, &FieldListPanel::AimChanged, this, [this] { preview->MarkNextRow(matching); });

    RecordSpinner* spinner = preview->spnRecords;
    connect(spinner, &RecordSpinner::NextClicked, this, [this] { GoToRecord(currentRecord + 1); });
    connect(spinner, &RecordSpinner::PreviousClicked, this, [this] { GoToRecord(currentRecord - 1); });
    connect(spinner, &RecordSpinner::FirstAsked, this, [this] { GoToRecord(1); });
    connect(spinner, &RecordSpinner::LastAsked, this, [this] { GoToRecord(recordCount); });
}

void frmImport_SU::Form_Load() {
    SpeakEnglish_ImportSU();
    cboDOB->setCurrentIndex(DobFormatOf(ProgramConfig.ImportFields[0]));
    LoadUpdateOptions();
}

void frmImport_SU::SpeakEnglish_ImportSU() {
    SpeakImportSU(CaptionLanguage::English, EnglishFieldList());
}

void frmImport_SU::SpeakFrench_ImportSU() {
    SpeakImportSU(CaptionLanguage::French, FrenchFieldList());
}

void frmImport_SU::SpeakImportSU(CaptionLanguage language, FieldList fields) {
    ApplyCaptions(*this, ImportCaptions(), language);
    setWindowTitle(WindowTitle + ImportTitleSuffix(language));
    setupFileName = SetupFileNameOf(language);
    cboDOB->clear();
    matching = FieldMatching(std::move(fields));
    cboDOB->addItems(matching.Fields().DobFormats);
    preview->ShowMatching(matching);
}

// The window became active: it starts from an empty path and reads the set-up file or asks for one.
void frmImport_SU::Form_Activate() {
    forceDialog = false;
    lblFileName->clear();
    matching.ClearAll();
    preview->ShowLoading(false);
    preview->spnRecords->hide();
    preview->lblRecordCount->hide();
    OpenImportFile();
    if (lblFileName->text().isEmpty()) {
        reject();
    }
}

void frmImport_SU::showEvent(QShowEvent* event) {
    OptionsWindow::showEvent(event);
    if (!event->spontaneous()) {
        QMetaObject::invokeMethod(this, &frmImport_SU::Form_Activate, Qt::QueuedConnection);
    }
}

void frmImport_SU::reject() {
    if (reading) {
        stopAsked = true;
        return;
    }
    OptionsWindow::reject();
}

void frmImport_SU::closeEvent(QCloseEvent* event) {
    if (reading) {
        stopAsked = true;
        closeAsked = true;
        event->ignore();
        return;
    }
    OptionsWindow::closeEvent(event);
}
