#pragma once

#include "platform/widgets/OptionsWindow.h"

#include <array>
#include <cstdint>

class BarCodePanel;
class EmailPanel;
class HtmlPanel;
class PanelButton;
class PathsPanel;
class PrinterPanel;
class QLabel;
class QPushButton;
class SchemePanel;
class SchoolYearPanel;
class SetupPanel;

/// General Options: seven panels, a button for each, Save and Cancel. The window shows the settings record as it is
/// when the window is made; Save writes the edits back into it and has it written to the configuration files.
class frmSetUp_SU : public OptionsWindow {
    Q_OBJECT

public:
    explicit frmSetUp_SU(QWidget* parent = nullptr);

    /// Set every caption and list text of the window in one language; the load calls the edition's.
    void SpeakEnglish_Setup();
    void SpeakFrench_Setup();

    /// Cancel, Escape and the window's close button.
    void reject() override;

private:
    static constexpr std::int16_t LastPanel = 6;

    PathsPanel* paths;
    SchoolYearPanel* schoolYear;
    EmailPanel* email;
    BarCodePanel* barCodes;
    PrinterPanel* printer;
    HtmlPanel* html;
    SchemePanel* scheme;
    std::array<SetupPanel*, LastPanel + 1> p3dSetup{};
    std::array<PanelButton*, LastPanel + 1> cmdSetup{};
    QPushButton* cmdPrefSave;
    QPushButton* cmdPrefCancel;
    QLabel* imgSave;
    std::int16_t selectedPanel = 0;

    void MakePanels();
    void ArrangeControls();
    void Form_Load();
    void SetEditionLanguage(bool french);
    void ShowPanel();
    void cmdSetup_Click(std::int16_t index);
    void cmdPrefSave_Click();
    void cmdPrefCancel_Click();
    void CopyToSettings() const;
    bool AskToSaveScheme();

    /// Helps to find a word processor and stores nothing; kept for a control of its own.
    Q_INVOKABLE void FindWordProcessor();
};
