#include "options/frmSetUp_SU.h"

#include "app/CFG_2015.h"
#include "options/BarCodePanel.h"
#include "options/EmailPanel.h"
#include "options/HtmlPanel.h"
#include "options/PanelButton.h"
#include "options/PathsPanel.h"
#include "options/PrinterPanel.h"
#include "options/SchemePanel.h"
#include "options/SchoolYearPanel.h"
#include "options/SetupCaptions.h"
#include "platform/Desktop.h"
#include "platform/widgets/Pictures.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

// Logical pixels; a pixel is 15 twips. The margins put the panels at 8, 8 with 609 x 557 in the window of 800 x 600.
constexpr int Margin = 8;
constexpr int SideWidth = 167;
constexpr int ButtonRowHeight = 27;
constexpr int SideSpacing = 4;
constexpr int ButtonWidth = 80; // two and the gap are as wide as the side
constexpr int PictureSize = 24;

} // namespace

frmSetUp_SU::frmSetUp_SU(QWidget* parent) : OptionsWindow("frmSetUp_SU", parent) {
    MakePanels();
    ArrangeControls();
    Form_Load();
}

void frmSetUp_SU::MakePanels() {
    paths = new PathsPanel(this);
    schoolYear = new SchoolYearPanel(this);
    email = new EmailPanel(this);
    barCodes = new BarCodePanel(this);
    printer = new PrinterPanel(this);
    html = new HtmlPanel(this);
    scheme = new SchemePanel(this);
    p3dSetup = {paths, schoolYear, email, barCodes, printer, html, scheme};
    for (std::int16_t i = 0; i <= LastPanel; ++i) {
        auto* button = NewControl<PanelButton>(IndexedName("cmdSetup", i), this);
        cmdSetup.at(static_cast<std::size_t>(i)) = button;
        connect(button, &QPushButton::clicked, this, [this, i] { cmdSetup_Click(i); });
    }
    imgSave = NewControl<QLabel>("imgSave", this);
    imgSave->setPixmap(Picture(QStringLiteral("disk")).pixmap(QSize(PictureSize, PictureSize), devicePixelRatioF()));
    cmdPrefSave = NewButton("cmdPrefSave", this);
    cmdPrefCancel = NewButton("cmdPrefCancel", this);
    connect(cmdPrefSave, &QPushButton::clicked, this, &frmSetUp_SU::cmdPrefSave_Click);
    connect(cmdPrefCancel, &QPushButton::clicked, this, &frmSetUp_SU::reject);
}

// The panels share one cell; the list of panels stands beside it, Save and Cancel below.
void frmSetUp_SU::ArrangeControls() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(Margin, Margin, Margin, Margin);
    grid->setHorizontalSpacing(Margin);
    grid->setVerticalSpacing(0);
    auto* side = new QVBoxLayout;
    side->setSpacing(SideSpacing);
    for (PanelButton* button : cmdSetup) {
        button->setFixedWidth(SideWidth);
        side->addWidget(button);
    }
    side->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(SideWidth - 2 * ButtonWidth);
    buttons->addStretch();
    buttons->addWidget(imgSave);
    buttons->addWidget(cmdPrefSave);
    buttons->addWidget(cmdPrefCancel);
    for (SetupPanel* panel : p3dSetup) {
        grid->addWidget(panel, 0, 0);
    }
    grid->addLayout(side, 0, 1);
    grid->addLayout(buttons, 1, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(0, 1);
    grid->setRowMinimumHeight(1, ButtonRowHeight);
}

void frmSetUp_SU::Form_Load() {
    if (ProgramEdition == Edition::French) {
        SpeakFrench_Setup();
    } else {
        SpeakEnglish_Setup();
    }
    for (SetupPanel* panel : p3dSetup) {
        panel->hide();
    }
    paths->LoadDataPath();
    paths->LoadBackupPath();
    paths->LoadPhotoPath();
    imgSave->hide();
    barCodes->PresetDefaultForm();
    printer->LoadThickLines();
    email->Load();
    scheme->Load();
    schoolYear->Load();
    barCodes->Load();
    printer->LoadDialogBox();
    html->Load();
    ShowPanel();
}

void frmSetUp_SU::SpeakEnglish_Setup() {
    SetEditionLanguage(false);
}

void frmSetUp_SU::SpeakFrench_Setup() {
    SetEditionLanguage(true);
}

void frmSetUp_SU::SetEditionLanguage(bool french) {
    html->FillOrders();
    setWindowTitle(ProductName + QStringLiteral(" - GENERAL OPTIONS"));
    ApplyCaptions(*this, SetupCaptions(), french ? CaptionLanguage::French : CaptionLanguage::English);
    paths->FollowCaptions();
    scheme->SetLanguage(french);
    barCodes->NameFields(french);
}

void frmSetUp_SU::cmdSetup_Click(std::int16_t index) {
    if (index == selectedPanel) {
        cmdSetup.at(static_cast<std::size_t>(index))->ShowAsCurrent(true);
        return;
    }
    selectedPanel = index;
    ShowPanel();
}

void frmSetUp_SU::ShowPanel() {
    const auto shown = static_cast<std::size_t>(selectedPanel);
    for (std::size_t i = 0; i < p3dSetup.size(); ++i) {
        if (i != shown) {
            p3dSetup[i]->hide();
            cmdSetup[i]->setEnabled(true);
            cmdSetup[i]->ShowAsCurrent(false);
        }
    }
    cmdSetup[shown]->ShowAsCurrent(true);
    p3dSetup[shown]->show();
    if (isVisible()) { // the load has nothing to paint yet
        KeepContentsWhole();
        TheDesktop().PaintPendingWindows();
    }
}

bool frmSetUp_SU::AskToSaveScheme() {
    const MessageAnswer answer = TheDesktop().ShowMessage(
        {QStringLiteral("SAVE SCHEME"),
         QStringLiteral("You have made some changes to the currrent Grade / Level Scheme that have not been saved. \n\n"
                        "Do you want to save them now?"),
         MessageButtons::YesNo, MessageIcon::Question});
    return answer == MessageAnswer::Yes;
}

void frmSetUp_SU::cmdPrefSave_Click() {
    if (scheme->IsChanged() && AskToSaveScheme()) {
        scheme->cmdSaveScheme_Click();
    }
    imgSave->show();
    TheDesktop().PaintPendingWindows();
    CopyToSettings();
    SaveProgramConfig();
    imgSave->hide();
    accept();
}

void frmSetUp_SU::CopyToSettings() const {
    paths->Save();
    email->Save();
    printer->Save();
    html->Save();
    schoolYear->Save();
    barCodes->Save();
}

void frmSetUp_SU::cmdPrefCancel_Click() {
    SetDatePatterns(ProgramConfig.TwoDigitYear);
}

void frmSetUp_SU::reject() {
    cmdPrefCancel_Click();
    OptionsWindow::reject();
}

void frmSetUp_SU::FindWordProcessor() {
    ShowNotice(
        MessageIcon::Information, QStringLiteral("PATH TO WORD PROCESSOR"),
        QStringLiteral("Please use the Drive and Folder lists shown in the next dialog box to find your word "
                       "processor. You're looking for the name of its EXE file. (eg. Word is likely "
                       "'winword.exe', WordPerfect 'wpwin.exe')\n\n"
                       "To complete the process, click on the appropriate EXE file to place its name in the 'File "
                       "Name' box."));
    FileDialog dialog;
    dialog.Title = QStringLiteral("Find a Word Processor");
    dialog.Filter = QStringLiteral("Program (*.exe)|*.exe");
    dialog.FileMustExist = true;
    TheDesktop().AskForFile(dialog);
}
