#pragma once

#include "platform/widgets/Captions.h"
#include "platform/widgets/OptionsWindow.h"

class CourseCodeRulesPanel;
class FolderPicker;
class QPushButton;

/// The Admin Edition rules: the folder for Admin Edition files and the rules that split course codes. It loads when it
/// is made; Save copies its controls into ProgramConfig and writes the configuration files, Cancel does neither.
class frmAdmin_SU : public OptionsWindow {
    Q_OBJECT

public:
    explicit frmAdmin_SU(QWidget* parent = nullptr);

    /// Every caption of the window in one language. The load applies the English ones.
    void SpeakEnglish_Admin();
    void SpeakFrench_Admin();

    /// Shows the stored Admin folder. One that cannot be opened is dropped without a word, from ProgramConfig too.
    void LoadAdminPath();

    /// Shows the folder list's path in small letters and warns about a folder that begins with the product's initials.
    void CheckAdminPath();

    /// Splits the sample code by the rules in the controls.
    void TestCourseCode();

private:
    FolderPicker* adminPath = nullptr;
    CourseCodeRulesPanel* pnlRules = nullptr;
    QPushButton* cmdSaveRules = nullptr;
    QPushButton* cmdRulesCancel = nullptr;

    QWidget* MakePathPanel();
    QWidget* MakeButtons();
    void Speak(CaptionLanguage language);
    void SaveRules();
};
