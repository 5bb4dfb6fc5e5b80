#include "options/FolderPicker.h"
#include "platform/widgets/DropDownList.h"
#include "platform/widgets/Pictures.h"
#include "platform/widgets/ProgramStyle.h"
#include "transfer/TransferTexts.h"
#include "transfer/frmGWT_SU.h"

#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

// How the controls of the window are made and where they stand.

namespace {

constexpr FolderPickerNames PickerNames = {"drvHDir",    "dirHDir",  "lblReportPath", "cmdGWT_Browse",
                                           "cmdClrPath", "lblDrive", "lblFolder",     "lblCurrent"};

// Places in the setup panel, in logical pixels; where a larger font needs more, what lies below moves down.
constexpr QRect SystemFrame(16, 30, 569, 84);
constexpr QRect BoardFrame(16, 120, 569, 65); // both frames, only one of which is shown
constexpr QPoint LockPlace(24, 200);          // both pictures, only one of which is shown
constexpr int LockSize = 32;
constexpr int LockTextLeft = 76;
constexpr int LockLineHeight = 20;
constexpr int HelpLeft = 601;
constexpr int HelpTop = 8;
constexpr int SetupHeight = 256;
constexpr int SetupBottom = 16; // below the lock

FolderPickerRules PickerRules() {
    constexpr CaptionLanguage always = CaptionLanguage::English; // the window's selector never changes
    FolderPickerRules rules;
    rules.NoticeTitle = ReportBrowseTitle(always);
    rules.NoticeText = ReportBrowseText(always);
    rules.DialogTitle = QStringLiteral("Locate Gradewell Data Folders");
    rules.PathMustExist = true;
    rules.PathErrorTitle = QStringLiteral("REPORT PATH ERROR");
    rules.PathErrorOpening = QStringLiteral("The PATH [");
    rules.DriveErrorLoud = true;
    return rules;
}

template <typename Control>
Control* Named(Control* control, const char* name) {
    control->setObjectName(QString::fromUtf8(name));
    return control;
}

QLabel* MakeWrappedLabel(const char* name, QWidget* parent) {
    auto* label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QVBoxLayout* MakeColumn(QWidget* card, int bottom) {
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(Spacing::Margin, 4, Spacing::Margin, bottom);
    column->setSpacing(4);
    return column;
}

} // namespace

void frmGWT_SU::MakeControls() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Spacing::Margin, Spacing::Margin, Spacing::Margin, Spacing::Margin);
    column->setSpacing(Spacing::Gap);
    column->addWidget(MakePathPanel(), 1);
    MakeSetupPanel();
    column->addWidget(pnlSetup);
    column->addWidget(MakeButtons());
    ArrangeTabOrder();
}

QWidget* frmGWT_SU::MakePathPanel() {
    auto* panel = Named(new QGroupBox(this), "pnlAdminPath");
    QVBoxLayout* column = MakeColumn(panel, Spacing::Margin);
    column->setSpacing(Spacing::Gap);
    column->addWidget(MakeWrappedLabel("lblCPHelp", panel));
    reportPath = new FolderPicker(PickerNames, PickerRules(), panel);
    reportPath->layout()->setSpacing(Spacing::Gap);
    reportPath->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored); // it takes what the setup leaves
    column->addWidget(reportPath, 1);
    return panel;
}

// The frames and the lock have fixed places; what the lock does is told to the right of them.
void frmGWT_SU::MakeSetupPanel() {
    pnlSetup = Named(new QGroupBox(this), "pnlSetup");
    MakeSystemFrame();
    MakeBoardFrames();
    MakeLock();
    lblGWTHelp = MakeWrappedLabel("lblGWTHelp", pnlSetup);
    lblGWTHelp->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* row = new QHBoxLayout(pnlSetup);
    row->setContentsMargins(HelpLeft, HelpTop, Spacing::Margin, Spacing::Margin);
    row->addWidget(lblGWTHelp);
}

void frmGWT_SU::MakeSystemFrame() {
    auto* frame = Named(new QGroupBox(pnlSetup), "fraSetupSIS");
    fraSetupSIS = frame;
    QVBoxLayout* column = MakeColumn(frame, Spacing::Gap);
    auto* caption = Named(new QLabel(frame), "lblSIS");
    caption->setTextFormat(Qt::PlainText);
    cboSIS = Named(new DropDownList(frame), "cboSIS");
    caption->setBuddy(cboSIS);
    column->addWidget(caption);
    column->addWidget(cboSIS);
}

void frmGWT_SU::MakeBoardFrames() {
    fraSetupBoard = Named(new QGroupBox(pnlSetup), "fraSetupBoard");
    cboBoard = Named(new DropDownList(fraSetupBoard), "cboBoard");
    MakeColumn(fraSetupBoard, Spacing::Gap)->addWidget(cboBoard);
    fraWH_WorkHabits = Named(new QGroupBox(pnlSetup), "fraWH_WorkHabits");
    auto* edit = Named(new QPushButton(fraWH_WorkHabits), "cmdWH_WorkHabits");
    edit->setAutoDefault(false);
    MakeColumn(fraWH_WorkHabits, Spacing::Gap)->addWidget(edit, 0, Qt::AlignLeft);
    connect(edit, &QPushButton::clicked, this, &frmGWT_SU::EditWorkHabits);
    fraSetupBoard->hide();
    fraWH_WorkHabits->hide();
}

void frmGWT_SU::MakeLock() {
    imgLocked = Named(new PictureButton(QStringLiteral("lock-closed"), LockSize, QStringLiteral("Locked"), pnlSetup),
                      "imgLocked");
    imgUnlocked = Named(new PictureButton(QStringLiteral("lock-open"), LockSize, QStringLiteral("Unlocked"), pnlSetup),
                        "imgUnlocked");
    for (PictureButton* picture : {imgLocked, imgUnlocked}) {
        picture->adjustSize();
        picture->hide();
    }
    lblLocked = Named(new ClickableLabel(pnlSetup), "lblLocked");
    lblLocked->setTextFormat(Qt::PlainText);
    QFont bold = lblLocked->font();
    bold.setBold(true);
    lblLocked->setFont(bold);
    lblClickLock = MakeWrappedLabel("lblClickLock", pnlSetup);
}

// Puts the frames and the lock where they belong and makes the panel high enough for them and for the help.
void frmGWT_SU::PlaceSetup() {
    const QRect room = pnlSetup->contentsRect();
    const int systemTop = std::max(SystemFrame.top(), room.top() + Spacing::Gap / 2);
    const int systemHeight = std::max(SystemFrame.height(), fraSetupSIS->minimumSizeHint().height());
    fraSetupSIS->setGeometry(SystemFrame.left(), systemTop, SystemFrame.width(), systemHeight);

    constexpr int frameGap = BoardFrame.top() - SystemFrame.bottom() - 1;
    const int boardTop = systemTop + systemHeight + frameGap;
    const int boardHeight = std::max(
        {BoardFrame.height(), fraSetupBoard->minimumSizeHint().height(), fraWH_WorkHabits->minimumSizeHint().height()});
    for (QGroupBox* frame : {fraSetupBoard, fraWH_WorkHabits}) {
        frame->setGeometry(BoardFrame.left(), boardTop, BoardFrame.width(), boardHeight);
    }

    const int lockTop = boardTop + boardHeight + LockPlace.y() - BoardFrame.bottom() - 1;
    imgLocked->move(LockPlace.x(), lockTop);
    imgUnlocked->move(LockPlace.x(), lockTop);
    constexpr int textWidth = BoardFrame.right() - LockTextLeft;
    const int stateHeight = std::max(LockLineHeight, lblLocked->sizeHint().height());
    const int clickHeight = std::max(LockLineHeight, lblClickLock->heightForWidth(textWidth));
    lblLocked->setGeometry(LockTextLeft, lockTop, std::max(textWidth / 4, lblLocked->sizeHint().width()), stateHeight);
    lblClickLock->setGeometry(LockTextLeft, lockTop + stateHeight, textWidth, clickHeight);

    const int helpWidth = std::max(width() - 2 * Spacing::Margin, room.width()) - HelpLeft - 2 * Spacing::Margin;
    const int helpBottom = room.top() + HelpTop + lblGWTHelp->heightForWidth(helpWidth) + Spacing::Margin +
                           pnlSetup->contentsMargins().bottom();
    pnlSetup->setFixedHeight(std::max({SetupHeight, lblClickLock->geometry().bottom() + SetupBottom, helpBottom}));
}

void frmGWT_SU::showEvent(QShowEvent* event) {
    PlaceSetup();
    OptionsWindow::showEvent(event);
}

void frmGWT_SU::changeEvent(QEvent* event) {
    OptionsWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        PlaceSetup();
    }
}

QWidget* frmGWT_SU::MakeButtons() {
    auto* area = new QWidget(this);
    auto* save = Named(new QPushButton(area), "cmdSaveRules");
    auto* cancel = Named(new QPushButton(area), "cmdRulesCancel");
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Spacing::Gap);
    row->addStretch();
    for (QPushButton* button : {save, cancel}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    connect(save, &QPushButton::clicked, this, &frmGWT_SU::SaveOptions);
    connect(cancel, &QPushButton::clicked, this, &frmGWT_SU::reject);
    return area;
}

void frmGWT_SU::ArrangeTabOrder() {
    auto* edit = fraWH_WorkHabits->findChild<QPushButton*>();
    const QWidgetList order = {cboSIS, cboBoard, edit, imgLocked, imgUnlocked};
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }
}
