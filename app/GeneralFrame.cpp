#include "app/GeneralFrame.h"

#include "app/MenuLayout.h"
#include "app/ProductTexts.h"
#include "platform/widgets/Pictures.h"
#include "platform/widgets/ProgramStyle.h"

#include <QHBoxLayout>
#include <QResizeEvent>

namespace {

constexpr int LockTop = 16;   // 240 twips
constexpr int LockLeft = 552; // 8280 twips, in a frame of the opening window's width
constexpr int LockRight = MenuLayout::FrameWidth - LockLeft;
constexpr int LockSize = 48;
constexpr int LockHeight = 58;

QString InEdition(const char* english, const char* french) {
    return QString::fromUtf8(ProgramEdition == Edition::French ? french : english);
}

} // namespace

GeneralFrame::GeneralFrame(QWidget* parent)
    : QGroupBox(parent), lblGenOpt1(MenuLayout::NewText(this, "lblGenOpt1")),
      lblGenOpt2(MenuLayout::NewText(this, "lblGenOpt2")),
      lblGenOpt3(MenuLayout::NewText(this, "lblGenOpt3", MenuLayout::SideWidth)),
      cmdGeneral(MenuLayout::NewButton(this, "cmdGeneral")), lockCorner(new QWidget(this)) {
    setObjectName(QStringLiteral("fraGeneral"));
    BuildLockCorner();
    BuildLayout();
}

void GeneralFrame::BuildLockCorner() {
    imgLocked = new PictureButton(QStringLiteral("lock-closed"), LockSize,
                                  InEdition("Locked: unlock the settings", "Verrouillé : déverrouiller les réglages"),
                                  lockCorner);
    imgLocked->setObjectName(QStringLiteral("imgLocked"));
    imgUnlocked = new PictureButton(QStringLiteral("lock-open"), LockSize,
                                    InEdition("Unlocked: lock the settings", "Déverrouillé : verrouiller les réglages"),
                                    lockCorner);
    imgUnlocked->setObjectName(QStringLiteral("imgUnlocked"));
    lblLocked = new ClickableLabel(lockCorner);
    lblLocked->setObjectName(QStringLiteral("lblLocked"));
    QFont bold = lblLocked->font();
    bold.setBold(true);
    lblLocked->setFont(bold);
    auto* row = new QHBoxLayout(lockCorner);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Spacing::Gap);
    row->addWidget(imgLocked, 0, Qt::AlignTop);
    row->addWidget(imgUnlocked, 0, Qt::AlignTop);
    row->addWidget(lblLocked, 1, Qt::AlignVCenter);
    imgLocked->hide();
    imgUnlocked->hide();
}

// The texts on the left; on the right, below the lock, how to work it and the button.
void GeneralFrame::BuildLayout() {
    auto* texts = new QVBoxLayout;
    texts->setSpacing(Spacing::Gap);
    texts->addWidget(lblGenOpt1);
    texts->addWidget(lblGenOpt2);
    texts->addStretch(1);
    auto* side = new QVBoxLayout;
    side->setSpacing(Spacing::Gap);
    side->addSpacing(LockTop + LockHeight - 2 * Spacing::Margin);
    side->addWidget(lblGenOpt3);
    side->addStretch(1);
    side->addWidget(cmdGeneral);
    MenuLayout::SetColumns(*this, texts, side);
    lockCorner->raise(); // above the button's column, or no click would reach the lock
}

void GeneralFrame::ShowLock(bool locked) {
    PictureButton* shown = locked ? imgLocked : imgUnlocked;
    PictureButton* hidden = locked ? imgUnlocked : imgLocked;
    const bool hadFocus = hidden->hasFocus();
    lblLocked->setText(locked ? QStringLiteral("Locked") : QStringLiteral("Unlocked"));
    shown->show();
    if (hadFocus) {
        shown->setFocus(Qt::OtherFocusReason);
    }
    hidden->hide();
}

void GeneralFrame::resizeEvent(QResizeEvent* event) {
    QGroupBox::resizeEvent(event);
    lockCorner->setGeometry(event->size().width() - LockRight, LockTop, LockRight - Spacing::Margin, LockHeight);
}
