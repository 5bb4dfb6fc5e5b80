#pragma once

#include "admin/CourseCodeRules.h"
#include "platform/widgets/Captions.h"

#include <QGroupBox>
#include <array>

class ClickableLabel;
class DropDownList;
class PathLabel;
class QCheckBox;
class QGridLayout;
class QLabel;
class QRadioButton;
class TextBox;

/// The panel "COURSE CODE RULES": a working copy of the course code rules in its controls, and a frame that shows how
/// they split a sample code. Only Save copies the controls into ProgramConfig.
class CourseCodeRulesPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit CourseCodeRulesPanel(QWidget* parent = nullptr);

    /// Shows the rules of ProgramConfig. A start or length that no list offers is shown as 0.
    void Load();

    /// Copies the controls into ProgramConfig. Rows of the conversion table that are not shown stay as they are.
    void Save() const;

    /// Splits the sample code with the rules as they stand in the controls and shows the three parts.
    void TestCourseCode();

    /// Tells a screen reader what the boxes without a caption of their own are, in the language of the captions.
    void NameControls(CaptionLanguage language);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    enum Rule { CourseStart, CourseLength, SectionStart, SectionLength, GradeStart, GradeLength, RuleCount };

    std::array<DropDownList*, RuleCount> cboRule{};
    std::array<bool, RuleCount> chosen{}; // the user has chosen an entry since Load
    std::array<QLabel*, 3> lblPart{};
    std::array<QLabel*, 3> lblRuleStart{};
    std::array<QLabel*, 3> lblRuleIs{};
    QCheckBox* chkUseSplitChar = nullptr;
    TextBox* txtSplitChar = nullptr;
    std::array<QRadioButton*, 2> optRule_GradeConv{};
    ClickableLabel* lblConversion = nullptr;
    std::array<TextBox*, EditedConversionRows> txtRule_GSymbol{};
    std::array<TextBox*, EditedConversionRows> txtRule_GActual{};
    TextBox* txtAdminTest = nullptr;
    PathLabel* lblCourseTest = nullptr;
    PathLabel* lblClassTest = nullptr;
    PathLabel* lblGradeTest = nullptr;

    // CourseCodeRulesLayout.cpp
    QWidget* MakeRuleRows();
    void MakeRuleRow(QGridLayout* grid, int row);
    DropDownList* MakeRuleList(const char* name, Rule rule);
    QWidget* MakeSplitRow();
    QWidget* MakeConversion();
    void MakeConversionRow(QGridLayout* grid, int row, int column, std::size_t index);
    TextBox* MakeConversionBox(const QString& name);
    QWidget* MakeTestFrame();
    void ArrangeTabOrder();

    void ConnectEvents();
    void RuleChosen(Rule rule);
    void TestIfSampled();
    void ShowParts(const CourseCodeParts& parts);
    CourseCodeRules RulesShown() const;
    std::array<GradeConversion, EditedConversionRows> TableShown() const;
    bool TestBoxLeft();
    bool SplitBoxLeft();
    bool ConversionBoxLeft(TextBox& box);
};
