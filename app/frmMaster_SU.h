#pragma once

#include "app/GeneralFrame.h"
#include "app/ProductTexts.h"

#include <QDialog>
#include <functional>
#include <memory>

/// Makes an options window, unshown. The main menu shows it modally and unloads it when it becomes active again.
using OptionWindowMaker = std::function<QDialog*(QWidget* parent)>;

/// The options windows behind the main menu's buttons; a button whose maker is empty opens nothing.
struct OptionWindowMakers {
    OptionWindowMaker General;
    OptionWindowMaker Import;
    OptionWindowMaker Admin;
    OptionWindowMaker Transfer;
};

/// The main menu, the window that the program starts with: one button an option area, the lock, Help and Exit.
class frmMaster_SU : public QWidget {
    Q_OBJECT

public:
    explicit frmMaster_SU(OptionWindowMakers makers, QWidget* parent = nullptr);
    ~frmMaster_SU() override;

    /// Sets up the run for an edition in the given program folder (the program's form): product texts, defaults, the
    /// configuration file, the controls. False when the user ended the program at the screen check.
    bool Form_Load(Edition edition, const QString& programFolder);

    GeneralFrame* fraGeneral;
    QLabel* lblImport;
    QLabel* lblAdmin;
    QLabel* lblTransfer;
    QPushButton* cmdImport;
    QPushButton* cmdAdmin;
    QPushButton* cmdTransfer;
    QGroupBox* fraImport;
    QGroupBox* fraAdmin;
    QGroupBox* fraTransfer;
    QLabel* lblToday;
    QLabel* lblVersion;
    QLabel* lblClient;
    QPushButton* cmdManual;
    QPushButton* cmdExit;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    OptionWindowMakers makers;
    std::unique_ptr<QDialog> optionWindow; // the one that was opened last, until the menu becomes active

    void BuildLayout();
    void ConnectControls();
    bool SpeakEnglish_Main();
    bool SpeakFrench_Main();
    bool ScreenIsLargeEnough();
    void SetCaptions(Edition edition);
    void SetBarCodeStartValues();
    void ShowOptions(const OptionWindowMaker& maker);
    void Form_Activate();
    void SetLock(bool locked);

    void cmdGeneral_Click();
    void cmdImport_Click();
    void cmdAdmin_Click();
    void cmdTransfer_Click();
    void cmdManual_Click();
    void cmdExit_Click();
    void imgLocked_Click();
    void imgUnlocked_Click();
    void lblLocked_Click();
};
