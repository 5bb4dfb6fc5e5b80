#pragma once

#include "platform/widgets/Captions.h"
#include "platform/widgets/OptionsWindow.h"
#include "transfer/SystemAndBoard.h"
#include "transfer/TransferFile.h"

class ClickableLabel;
class DropDownList;
class FolderPicker;
class PictureButton;
class QGroupBox;
class QLabel;
class QPushButton;

/// The Transfer Program's options: information system and board, report folder, lock and work habits list. It loads its
/// file when it is made; Save writes it and closes the window, unless the file could not be written.
class frmGWT_SU : public OptionsWindow {
    Q_OBJECT

public:
    explicit frmGWT_SU(QWidget* parent = nullptr);

    /// Every caption of the window, the board types, the file's name and the separator in one language. The load
    /// applies the English ones.
    void SpeakEnglish_GWT();
    void SpeakFrench_GWT();

    /// Reads the file into the window's values and the lock. A missing or damaged file is not reported; it locks.
    void dl_GWT_PCFG();

    /// Writes the window's values and the lock; a failure is shown in a message box and returned as false.
    bool ds_GWT_PCFG();

    /// Shows the stored report folder; one that cannot be opened brings the question of CheckReportPath.
    void LoadReportPath();

    /// Shows the folder list's path in small letters; asks to retry when the folder cannot be read.
    void CheckReportPath();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    TransferSettings settings;
    SystemAndBoard shown;
    CaptionLanguage language = CaptionLanguage::English;
    QString configurationFile; // bare name
    QString nameSeparator;

    FolderPicker* reportPath = nullptr;
    QGroupBox* pnlSetup = nullptr;
    DropDownList* cboSIS = nullptr;
    QGroupBox* fraSetupSIS = nullptr;
    QGroupBox* fraSetupBoard = nullptr;
    DropDownList* cboBoard = nullptr;
    QGroupBox* fraWH_WorkHabits = nullptr;
    PictureButton* imgLocked = nullptr;
    PictureButton* imgUnlocked = nullptr;
    ClickableLabel* lblLocked = nullptr;
    QLabel* lblClickLock = nullptr;
    QLabel* lblGWTHelp = nullptr;

    // frmGWT_SULayout.cpp
    void MakeControls();
    QWidget* MakePathPanel();
    void MakeSetupPanel();
    void MakeSystemFrame();
    void MakeBoardFrames();
    void MakeLock();
    void PlaceSetup();
    QWidget* MakeButtons();
    void ArrangeTabOrder();

    void ConnectEvents();
    void Speak(CaptionLanguage spoken);
    void FillBoards();
    void Show(const SystemAndBoard& next);
    void SetLock(bool locked);
    void ShowLock();
    void EditWorkHabits();
    void SaveOptions();
};
