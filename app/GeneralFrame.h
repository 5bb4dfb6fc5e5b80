#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

class ClickableLabel;
class PictureButton;

/// The area of the general options in the main menu: what they are for, their button, and the lock in the upper
/// right corner.
class GeneralFrame : public QGroupBox {
    Q_OBJECT

public:
    explicit GeneralFrame(QWidget* parent = nullptr);

    QLabel* lblGenOpt1;
    QLabel* lblGenOpt2;
    QLabel* lblGenOpt3;
    QPushButton* cmdGeneral;
    PictureButton* imgLocked;
    PictureButton* imgUnlocked;
    ClickableLabel* lblLocked;

    /// Shows the closed lock and "Locked", or the open one and "Unlocked". The keyboard focus stays with the lock.
    void ShowLock(bool locked);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* lockCorner; // both pictures at one place and the word beside them

    void BuildLockCorner();
    void BuildLayout();
};
