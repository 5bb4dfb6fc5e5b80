#include "transfer/frmGWT_SU.h"

#include "app/CFG_2015.h"
#include "app/DamagedFile.h"
#include "options/FolderPicker.h"
#include "platform/Desktop.h"
#include "platform/ProgramPath.h"
#include "platform/widgets/DropDownList.h"
#include "platform/widgets/Pictures.h"
#include "transfer/InformationSystems.h"
#include "transfer/TransferStore.h"
#include "transfer/TransferTexts.h"

#include <QGroupBox>
#include <QLabel>
#include <QSignalBlocker>

frmGWT_SU::frmGWT_SU(QWidget* parent) : OptionsWindow("frmGWT_SU", parent) {
    MakeControls();
    cboSIS->addItems(OfferedSystems());
    SpeakEnglish_GWT();
    ConnectEvents();
    dl_GWT_PCFG();
    ShowLock();
    Show(OpenedWith(settings));
    LoadReportPath();
}

void frmGWT_SU::ConnectEvents() {
    // A choice acts in the same way when it is made in code, and when the entry that stands there is chosen again.
    const auto chooseSystem = [this] { Show(WithSystem(shown, cboSIS->currentIndex())); };
    const auto chooseBoard = [this] { Show(WithBoard(shown, cboBoard->currentIndex())); };
    connect(cboSIS, &QComboBox::currentIndexChanged, this, chooseSystem);
    connect(cboSIS, &QComboBox::activated, this, chooseSystem);
    connect(cboBoard, &QComboBox::currentIndexChanged, this, chooseBoard);
    connect(cboBoard, &QComboBox::activated, this, chooseBoard);
    connect(imgLocked, &PictureButton::clicked, this, [this] { SetLock(false); });
    connect(imgUnlocked, &PictureButton::clicked, this, [this] { SetLock(true); });
    connect(lblLocked, &ClickableLabel::Clicked, this, [this] { SetLock(TransferLock != 1); });
}

void frmGWT_SU::SpeakEnglish_GWT() {
    Speak(CaptionLanguage::English);
}

void frmGWT_SU::SpeakFrench_GWT() {
    Speak(CaptionLanguage::French);
}

void frmGWT_SU::Speak(CaptionLanguage spoken) {
    language = spoken;
    configurationFile = TransferFileName(spoken);
    nameSeparator = SystemNameSeparator(spoken);
    setWindowTitle(WindowTitle + TransferTitleSuffix(spoken));
    ApplyCaptions(*this, TransferCaptions(), spoken);
    reportPath->NameControls(QString());
    lblGWTHelp->setText(TransferHelpText(spoken, configurationFile));
    FillBoards();
    PlaceSetup();
}

// The choice stays; what the choice brings about is not repeated.
void frmGWT_SU::FillBoards() {
    const QSignalBlocker quiet(cboBoard);
    cboBoard->clear();
    cboBoard->addItems(BoardNames(language));
    cboBoard->setCurrentIndex(shown.BoardType);
}

void frmGWT_SU::dl_GWT_PCFG() {
    settings = TransferSettings();
    LoadTransferFile(configurationFile, settings);
}

bool frmGWT_SU::ds_GWT_PCFG() {
    const QString name =
        StoredSystemName(settings.SystemNumber, cboSIS->currentText(), nameSeparator, cboBoard->currentText());
    const SystemError error = SaveTransferFile(configurationFile, settings, name);
    if (error) {
        ReportFailedSave(configurationFile, error);
    }
    return !error;
}

void frmGWT_SU::LoadReportPath() {
    reportPath->Load(settings.ReportPath);
}

void frmGWT_SU::CheckReportPath() {
    reportPath->Check();
}

void frmGWT_SU::Show(const SystemAndBoard& next) {
    shown = next;
    const QSignalBlocker quietSystem(cboSIS);
    const QSignalBlocker quietBoard(cboBoard);
    cboSIS->setCurrentIndex(shown.SystemPosition);
    cboBoard->setCurrentIndex(shown.BoardType);
    cboSIS->setEnabled(shown.SystemListEnabled);
    fraSetupBoard->setVisible(shown.BoardFrameShown);
    fraWH_WorkHabits->setVisible(shown.WorkHabitsFrameShown);
}

void frmGWT_SU::SetLock(bool locked) {
    const bool hadFocus = imgLocked->hasFocus() || imgUnlocked->hasFocus();
    TransferLock = locked ? 1 : 0;
    ShowLock();
    if (hadFocus) {
        (locked ? imgLocked : imgUnlocked)->setFocus();
    }
    TheDesktop().PaintPendingWindows();
}

// The picture that appears comes first, so that the focus is never without a place.
void frmGWT_SU::ShowLock() {
    const bool locked = TransferLock == 1;
    lblLocked->setText(locked ? QStringLiteral("Locked") : QStringLiteral("Unlocked"));
    (locked ? imgLocked : imgUnlocked)->show();
    (locked ? imgUnlocked : imgLocked)->hide();
}

void frmGWT_SU::EditWorkHabits() {
    const Message question{QString::fromUtf16(WorkHabitsTitle), WorkHabitsQuestion(ProgramFolder),
                           MessageButtons::OkCancel, MessageIcon::Question};
    if (TheDesktop().ShowMessage(question) != MessageAnswer::Ok) {
        return;
    }
    const QString list = JoinPath(ProgramFolder, QStringLiteral("WorkHabits.txt"));
    const auto tell = [spoken = language, list] {
        ShowNotice(MessageIcon::Critical, EditorErrorTitle(spoken), EditorErrorText(spoken, list));
    };
    if (TheDesktop().StartProgram(HelperProgram::TextEditor, list, tell)) {
        tell();
    }
}

void frmGWT_SU::SaveOptions() {
    settings.ReportPath = reportPath->Chosen();
    settings.SystemNumber = SystemNumberAt(cboSIS->currentIndex());
    settings.BoardType = static_cast<std::int16_t>(cboBoard->currentIndex());
    if (ds_GWT_PCFG()) {
        accept();
    }
}
