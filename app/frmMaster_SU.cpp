#include "app/frmMaster_SU.h"

#include "app/CFG_2015.h"
#include "app/MasterCaptions.h"
#include "app/MenuLayout.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/ProgramPath.h"
#include "platform/widgets/Captions.h"
#include "platform/widgets/Pictures.h"
#include "platform/widgets/ProgramStyle.h"
#include "platform/widgets/ScreenFit.h"

#include <QCloseEvent>
#include <QVBoxLayout>

namespace {

constexpr QSize WindowSize(MenuLayout::WindowWidth, MenuLayout::WindowHeight);
constexpr char BuildDate[] = "2015 12 07";
constexpr char ManualName[] = "\\Manuals\\Gradewell Config.PDF";

QLabel* NewLine(QWidget* parent, const char* name) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

frmMaster_SU::frmMaster_SU(OptionWindowMakers makersToUse, QWidget* parent)
    : QWidget(parent), fraGeneral(new GeneralFrame(this)), lblImport(MenuLayout::NewText(this, "lblImport")),
      lblAdmin(MenuLayout::NewText(this, "lblAdmin")), lblTransfer(MenuLayout::NewText(this, "lblTransfer")),
      cmdImport(MenuLayout::NewButton(this, "cmdImport")), cmdAdmin(MenuLayout::NewButton(this, "cmdAdmin")),
      cmdTransfer(MenuLayout::NewButton(this, "cmdTransfer")),
      fraImport(MenuLayout::NewArea(this, "fraImport", lblImport, cmdImport)),
      fraAdmin(MenuLayout::NewArea(this, "fraAdmin", lblAdmin, cmdAdmin)),
      fraTransfer(MenuLayout::NewArea(this, "fraTransfer", lblTransfer, cmdTransfer)),
      lblToday(NewLine(this, "lblToday")), lblVersion(NewLine(this, "lblVersion")),
      lblClient(NewLine(this, "lblClient")), cmdManual(MenuLayout::NewButton(this, "cmdManual")),
      cmdExit(MenuLayout::NewButton(this, "cmdExit")), makers(std::move(makersToUse)) {
    setObjectName(QStringLiteral("frmMaster_SU"));
    BuildLayout();
    ConnectControls();
}

frmMaster_SU::~frmMaster_SU() = default;

void frmMaster_SU::BuildLayout() {
    auto* about = new QVBoxLayout;
    about->setSpacing(2);
    QFont todayFont = lblToday->font();
    todayFont.setBold(true);
    lblToday->setFont(todayFont);
    auto* release = new QHBoxLayout;
    release->setSpacing(2 * Spacing::Margin);
    release->addWidget(lblVersion);
    release->addWidget(lblClient);
    release->addStretch(1);
    about->addWidget(lblToday);
    about->addLayout(release);
    auto* bottom = new QHBoxLayout;
    bottom->setContentsMargins(Spacing::Margin, 0, Spacing::Margin, 0);
    bottom->setSpacing(Spacing::Gap);
    bottom->addLayout(about, 1);
    for (QPushButton* button : {cmdManual, cmdExit}) {
        button->setMinimumWidth((MenuLayout::SideWidth - Spacing::Gap) / 2);
        bottom->addWidget(button);
    }
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(Spacing::Margin, Spacing::Margin, Spacing::Margin, Spacing::Margin);
    rows->setSpacing(Spacing::Gap + 2);
    rows->addWidget(fraGeneral, 5);
    rows->addWidget(fraImport, 3);
    rows->addWidget(fraAdmin, 3);
    rows->addWidget(fraTransfer, 3);
    rows->addLayout(bottom);
    QWidget* before = fraGeneral->imgLocked;
    for (QWidget* next : std::initializer_list<QWidget*>{fraGeneral->imgUnlocked, fraGeneral->cmdGeneral, cmdImport,
                                                         cmdAdmin, cmdTransfer, cmdManual, cmdExit}) {
        setTabOrder(before, next);
        before = next;
    }
}

void frmMaster_SU::ConnectControls() {
    connect(fraGeneral->cmdGeneral, &QPushButton::clicked, this, &frmMaster_SU::cmdGeneral_Click);
    connect(cmdImport, &QPushButton::clicked, this, &frmMaster_SU::cmdImport_Click);
    connect(cmdAdmin, &QPushButton::clicked, this, &frmMaster_SU::cmdAdmin_Click);
    connect(cmdTransfer, &QPushButton::clicked, this, &frmMaster_SU::cmdTransfer_Click);
    connect(cmdManual, &QPushButton::clicked, this, &frmMaster_SU::cmdManual_Click);
    connect(cmdExit, &QPushButton::clicked, this, &frmMaster_SU::cmdExit_Click);
    connect(fraGeneral->imgLocked, &PictureButton::clicked, this, &frmMaster_SU::imgLocked_Click);
    connect(fraGeneral->imgUnlocked, &PictureButton::clicked, this, &frmMaster_SU::imgUnlocked_Click);
    connect(fraGeneral->lblLocked, &ClickableLabel::Clicked, this, &frmMaster_SU::lblLocked_Click);
}

bool frmMaster_SU::Form_Load(Edition edition, const QString& programFolder) {
    resize(OpeningSize(WindowSize));
    const bool goesOn = edition == Edition::French ? SpeakFrench_Main() : SpeakEnglish_Main();
    if (!goesOn) {
        return false;
    }
    ProgramFolder = ProgramFolderFrom(programFolder);
    const QDate today = TheDesktop().Now().date();
    SetTitleLine(today.year());
    SetBarCodeStartValues();
    SetDefaultSettings();
    SetDatePatterns(ProgramConfig.TwoDigitYear);
    CheckPrinterFont();
    LocateProgramConfig();
    lblToday->clear();
    fraGeneral->ShowLock(ProgramConfig.ConfigLock == 1);
    SetLeapYear(today.year());
    // The Transfer Program's area is offered only where its program is installed; the slash is a forward one.
    fraTransfer->setVisible(FileOpens(ProgramFolder + QLatin1Char('/') + TransferExeName));
    lblVersion->setText(VersionText);
    lblClient->setText(QString::fromLatin1(BuildDate));
    fraGeneral->cmdGeneral->setFocus(); // not the lock: a stray Enter must not change it
    return true;
}

bool frmMaster_SU::SpeakEnglish_Main() {
    SetProductTexts(Edition::English);
    setWindowTitle(WindowTitle);
    if (!ScreenIsLargeEnough()) {
        return false;
    }
    SetCaptions(Edition::English);
    return true;
}

bool frmMaster_SU::SpeakFrench_Main() {
    SetProductTexts(Edition::French);
    setWindowTitle(WindowTitle);
    if (!ScreenIsLargeEnough()) {
        return false;
    }
    SetCaptions(Edition::French);
    return true;
}

// OK ends the program, Cancel goes on with the screen as it is. The text is English in both editions.
bool frmMaster_SU::ScreenIsLargeEnough() {
    const QSize screen = TheDesktop().ScreenSize();
    if (screen.width() >= MenuLayout::WindowWidth && screen.height() >= MenuLayout::WindowHeight) {
        return true;
    }
    const QString text = QStringLiteral("This version of ") + ProductName +
                         QStringLiteral(" Setup requires a screen resolution of at least 800 x 600. Please adjust "
                                        "your screen settings.\n\nClick [Cancel] to use your current settings anyway.");
    const MessageAnswer answer = TheDesktop().ShowMessage(
        {QStringLiteral("ADJUST SCREEN RESOLUTION"), text, MessageButtons::OkCancel, MessageIcon::Critical});
    return answer == MessageAnswer::Cancel;
}

void frmMaster_SU::SetCaptions(Edition edition) {
    const QHash<QString, QString> captions = MasterCaptions(edition);
    for (auto row = captions.begin(); row != captions.end(); ++row) {
        auto* control = findChild<QWidget*>(row.key());
        Q_ASSERT_X(control != nullptr, "SetCaptions", qPrintable(row.key()));
        SetCaption(*control, row.value());
    }
}

void frmMaster_SU::SetBarCodeStartValues() {
    ProgramConfig.BarCodeDefaultForm = 0;
    ProgramConfig.BarCodeDefaultFormCopy = 0;
    ProgramConfig.BarCodeFontName.clear();
    ProgramConfig.BarCodeCode.fill(0);
    ProgramConfig.BarCodeDesc.fill(QString());
    ProgramConfig.SchoolYearStartMonth = 1;
}

void frmMaster_SU::ShowOptions(const OptionWindowMaker& maker) {
    if (!maker) {
        return;
    }
    optionWindow.reset(maker(this));
    optionWindow->exec();
    activateWindow(); // a window manager may lose the keyboard when a message box and its window go at once
    Form_Activate();
}

// The menu was shown or returned to: the options windows are unloaded, so that each opens fresh next time.
void frmMaster_SU::Form_Activate() {
    optionWindow.reset();
    const QDate today = TheDesktop().Now().date();
    const TodayTexts texts = MakeTodayTexts(today.toString(QStringLiteral("yyyyMMdd")), ProgramConfig.DateFormat);
    lblToday->setText(texts.Date + QStringLiteral("  (") + texts.Weekday + QStringLiteral(")"));
}

void frmMaster_SU::SetLock(bool locked) {
    ProgramConfig.ConfigLock = locked ? 1 : 0;
    fraGeneral->ShowLock(locked);
    TheDesktop().PaintPendingWindows();
    SaveProgramConfig();
}

void frmMaster_SU::cmdGeneral_Click() {
    ShowOptions(makers.General);
}

void frmMaster_SU::cmdImport_Click() {
    ShowOptions(makers.Import);
}

void frmMaster_SU::cmdAdmin_Click() {
    ShowOptions(makers.Admin);
}

void frmMaster_SU::cmdTransfer_Click() {
    ShowOptions(makers.Transfer);
}

void frmMaster_SU::cmdManual_Click() {
    const QString manual = ProgramFolder + QString::fromLatin1(ManualName);
    const auto tell = [manual] {
        ShowNotice(MessageIcon::Critical, QStringLiteral("Can't find Quick Start"),
                   QStringLiteral("Sorry, the file '") + manual + QStringLiteral("' is not available."));
    };
    if (TheDesktop().StartProgram(HelperProgram::FileViewer, manual, tell)) {
        tell();
    }
}

void frmMaster_SU::cmdExit_Click() {
    close();
}

void frmMaster_SU::imgLocked_Click() {
    SetLock(false);
}

void frmMaster_SU::imgUnlocked_Click() {
    SetLock(true);
}

void frmMaster_SU::lblLocked_Click() {
    if (ProgramConfig.ConfigLock == 1) {
        imgLocked_Click();
    } else {
        imgUnlocked_Click();
    }
}

void frmMaster_SU::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        if (OpeningSize(WindowSize) != WindowSize) {
            FitToScreen(*this, WindowSize);
        }
        Form_Activate();
    }
}

// Every way to end the program saves, whether or not anything changed.
void frmMaster_SU::closeEvent(QCloseEvent* event) {
    SaveProgramConfig();
    event->accept();
}

void frmMaster_SU::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && button != nullptr) {
        if (!event->isAutoRepeat()) { // a key held down is one press
            button->click();
        }
        return;
    }
    QWidget::keyPressEvent(event);
}
