#include "admin/CourseCodeRulesPanel.h"

#include "app/CFG_2015.h"
#include "platform/CodePage.h"
#include "platform/widgets/DropDownList.h"
#include "platform/widgets/PathLabel.h"
#include "platform/widgets/Pictures.h"
#include "platform/widgets/TextBox.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>
#include <algorithm>

namespace {

constexpr std::int16_t SplitByPositions = 1;
constexpr std::int16_t SplitByCharacter = 2;

// The settings in the order of the lists.
constexpr std::array<std::int16_t ProgramConfigRecord::*, 6> RuleSettings = {
    &ProgramConfigRecord::RuleCourseStart,  &ProgramConfigRecord::RuleCourseLength,
    &ProgramConfigRecord::RuleSectionStart, &ProgramConfigRecord::RuleSectionLength,
    &ProgramConfigRecord::RuleGradeStart,   &ProgramConfigRecord::RuleGradeLength,
};

// A stored text is shown whole, also one longer than what may be typed.
void ShowStored(TextBox& box, const QString& text) {
    box.setMaxLength(std::max(box.maxLength(), static_cast<int>(text.size())));
    box.setText(text);
}

// Runs the check of typed text that goes into a line of the configuration file; it reports what it refuses.
bool Passes(QString text, const QString& refused) {
    CheckInputText(text, 0, 0, refused, 0);
    return ErrorPosition == 0;
}

} // namespace

void CourseCodeRulesPanel::Load() {
    for (std::size_t i = 0; i < RuleCount; ++i) {
        const QSignalBlocker quiet(cboRule[i]);
        cboRule[i]->setCurrentIndex(ShownRuleValue(ProgramConfig.*RuleSettings[i]));
        chosen[i] = false;
    }
    optRule_GradeConv[ProgramConfig.RuleGradeConv == 0 ? 0 : 1]->setChecked(true);
    for (std::size_t i = 0; i < EditedConversionRows; ++i) {
        ShowStored(*txtRule_GSymbol[i], ProgramConfig.RuleGSymbol[i]);
        ShowStored(*txtRule_GActual[i], ProgramConfig.RuleGActual[i]);
    }
    ShowStored(*txtSplitChar, ProgramConfig.AECourseCodeSplitCharacter);
    chkUseSplitChar->setChecked(ProgramConfig.RuleUseSplitChar == SplitByCharacter);
}

void CourseCodeRulesPanel::Save() const {
    for (std::size_t i = 0; i < RuleCount; ++i) {
        std::int16_t& setting = ProgramConfig.*RuleSettings[i];
        setting = RuleValueToStore(setting, cboRule[i]->currentIndex(), chosen[i]);
    }
    ProgramConfig.RuleGradeConv = optRule_GradeConv[0]->isChecked() ? 0 : 1;
    for (std::size_t i = 0; i < EditedConversionRows; ++i) {
        ProgramConfig.RuleGSymbol[i] = txtRule_GSymbol[i]->text();
        ProgramConfig.RuleGActual[i] = txtRule_GActual[i]->text();
    }
    ProgramConfig.AECourseCodeSplitCharacter = txtSplitChar->text();
    ProgramConfig.RuleUseSplitChar = chkUseSplitChar->isChecked() ? SplitByCharacter : SplitByPositions;
}

void CourseCodeRulesPanel::TestCourseCode() {
    ShowParts(SplitCourseCode(txtAdminTest->text(), RulesShown(), TableShown()));
}

void CourseCodeRulesPanel::TestIfSampled() {
    if (!txtAdminTest->text().isEmpty()) {
        TestCourseCode();
    }
}

void CourseCodeRulesPanel::ShowParts(const CourseCodeParts& parts) {
    lblCourseTest->setText(parts.Course);
    lblClassTest->setText(parts.Section);
    lblGradeTest->setText(parts.Grade);
}

CourseCodeRules CourseCodeRulesPanel::RulesShown() const {
    const auto value = [this](Rule rule) { return cboRule[rule]->currentIndex(); };
    return {value(CourseStart),           value(CourseLength),  value(SectionStart),
            value(SectionLength),         value(GradeStart),    value(GradeLength),
            chkUseSplitChar->isChecked(), txtSplitChar->text(), !optRule_GradeConv[0]->isChecked()};
}

std::array<GradeConversion, EditedConversionRows> CourseCodeRulesPanel::TableShown() const {
    std::array<GradeConversion, EditedConversionRows> table;
    for (std::size_t i = 0; i < EditedConversionRows; ++i) {
        table[i] = {txtRule_GSymbol[i]->text(), txtRule_GActual[i]->text()};
    }
    return table;
}

void CourseCodeRulesPanel::ConnectEvents() {
    for (std::size_t i = 0; i < RuleCount; ++i) {
        const auto choose = [this, i] { RuleChosen(static_cast<Rule>(i)); };
        connect(cboRule[i], &QComboBox::currentIndexChanged, this, choose);
        connect(cboRule[i], &QComboBox::activated, this, choose); // also for the entry that stands there already
    }
    connect(chkUseSplitChar, &QCheckBox::clicked, this, &CourseCodeRulesPanel::TestCourseCode);
    for (QRadioButton* option : optRule_GradeConv) {
        connect(option, &QRadioButton::clicked, this, &CourseCodeRulesPanel::TestIfSampled);
    }
    // Selected in another way (its label, a touched row), the sample shows at once what the conversion gives.
    connect(optRule_GradeConv[1], &QRadioButton::toggled, this, &CourseCodeRulesPanel::TestIfSampled);
    connect(lblConversion, &ClickableLabel::Clicked, this, [this] { optRule_GradeConv[1]->setChecked(true); });
    for (const auto& boxes : {txtRule_GSymbol, txtRule_GActual}) {
        for (TextBox* box : boxes) {
            box->installEventFilter(this);
            box->SetLostFocusRule([this, box] { return ConversionBoxLeft(*box); });
        }
    }
    txtSplitChar->SetLostFocusRule([this] { return SplitBoxLeft(); });
    txtAdminTest->SetLostFocusRule([this] { return TestBoxLeft(); });
    connect(txtAdminTest, &TextBox::GotFocus, this, [this] { ShowParts({}); });
}

void CourseCodeRulesPanel::RuleChosen(Rule rule) {
    chosen[rule] = true;
    TestIfSampled();
}

bool CourseCodeRulesPanel::TestBoxLeft() {
    const QString text = TrimBlanks(UpperCase(txtAdminTest->text()));
    if (text.isEmpty()) {
        return true;
    }
    if (!Passes(text, QString())) {
        return false;
    }
    txtAdminTest->setText(text);
    TestCourseCode();
    return true;
}

// Leaving the box switches to splitting by character, also when it was left empty.
bool CourseCodeRulesPanel::SplitBoxLeft() {
    const QString text = UpperCase(txtSplitChar->text());
    if (!Passes(text, QStringLiteral(" "))) {
        return false;
    }
    txtSplitChar->setText(text);
    chkUseSplitChar->setChecked(true);
    TestCourseCode();
    return true;
}

bool CourseCodeRulesPanel::ConversionBoxLeft(TextBox& box) {
    const QString text = TrimBlanks(UpperCase(box.text()));
    if (text.isEmpty()) {
        return true;
    }
    if (!Passes(text, QString())) {
        return false;
    }
    box.setText(text);
    TestIfSampled();
    return true;
}

// Touching a conversion row switches conversion on.
bool CourseCodeRulesPanel::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        optRule_GradeConv[1]->setChecked(true);
    }
    return QGroupBox::eventFilter(receiver, event);
}
