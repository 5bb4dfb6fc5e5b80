#include "admin/CourseCodeRulesPanel.h"
#include "platform/widgets/DropDownList.h"
#include "platform/widgets/PathLabel.h"
#include "platform/widgets/Pictures.h"
#include "platform/widgets/ProgramStyle.h"
#include "platform/widgets/TextBox.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

// How the controls of the panel are made and where they stand.

namespace {

constexpr int LongestText = 255; // characters; far more than any code, and still one line of the configuration file
constexpr int RowGap = 4;        // logical pixels, as all sizes here
constexpr int WidthOfSplitBox = 56;
constexpr int WidthOfConversionBox = 64;
constexpr int WordGap = 5; // between the words of a sentence around the lists
constexpr int ConversionColumns = 2;

template <typename Control>
Control* Named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

QString Indexed(const char* name, std::size_t index) {
    return QStringLiteral("%1(%2)").arg(QString::fromUtf8(name)).arg(index);
}

QLabel* MakeLabel(const QString& name, QWidget* parent) {
    auto* label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* MakeWrappedLabel(const char* name, QWidget* parent) {
    QLabel* label = MakeLabel(QString::fromUtf8(name), parent);
    label->setWordWrap(true);
    return label;
}

// A field for a part of the sample; what does not fit is left out in the middle and told by the tool tip.
PathLabel* MakeResult(const char* name, QWidget* parent) {
    return Named(new PathLabel(parent), QString::fromUtf8(name));
}

TextBox* MakeBox(const QString& name, QWidget* parent) {
    auto* box = Named(new TextBox(parent), name);
    box->setMaxLength(LongestText);
    return box;
}

QGridLayout* MakeGrid(QWidget* area) {
    auto* grid = new QGridLayout(area);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Spacing::Gap);
    grid->setVerticalSpacing(RowGap);
    return grid;
}

} // namespace

CourseCodeRulesPanel::CourseCodeRulesPanel(QWidget* parent) : QGroupBox(parent) {
    setObjectName(QStringLiteral("pnlRules"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(Spacing::Margin, RowGap, Spacing::Margin, Spacing::Margin);
    grid->setHorizontalSpacing(Spacing::Margin);
    grid->setVerticalSpacing(Spacing::Gap);
    grid->addWidget(MakeWrappedLabel("lblRules1", this), 0, 0, 1, 2);
    grid->addWidget(MakeRuleRows(), 1, 0);
    grid->addWidget(MakeSplitRow(), 2, 0, Qt::AlignLeft | Qt::AlignTop);
    grid->addWidget(MakeTestFrame(), 1, 1, 2, 1);
    grid->addWidget(MakeConversion(), 3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(4, 1);
    ArrangeTabOrder();
    ConnectEvents();
}

QWidget* CourseCodeRulesPanel::MakeRuleRows() {
    auto* area = new QWidget(this);
    QGridLayout* grid = MakeGrid(area);
    grid->setHorizontalSpacing(WordGap);
    for (int row = 0; row < 3; ++row) {
        MakeRuleRow(grid, row);
    }
    grid->setColumnStretch(5, 1);
    return area;
}

// A sentence around two lists: "The Grade, Level or Year" "starts at position" [4] "and is" [1] "character(s) long."
void CourseCodeRulesPanel::MakeRuleRow(QGridLayout* grid, int row) {
    static constexpr std::array<const char*, 3> parts = {"lblCourse", "lblClass", "lblGrade"};
    static constexpr std::array<const char*, RuleCount> lists = {"cboRule_CourseStart",  "cboRule_CourseLength",
                                                                 "cboRule_SectionStart", "cboRule_SectionLength",
                                                                 "cboRule_GradeStart",   "cboRule_GradeLength"};
    const auto part = static_cast<std::size_t>(row);
    lblPart[part] = MakeLabel(QString::fromUtf8(parts[part]), this);
    lblRuleStart[part] = MakeLabel(Indexed("lblRuleStart", part), this);
    lblRuleIs[part] = MakeLabel(Indexed("lblRuleIs", part), this);
    grid->addWidget(lblPart[part], row, 0);
    grid->addWidget(lblRuleStart[part], row, 1, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(MakeRuleList(lists[2 * part], static_cast<Rule>(2 * part)), row, 2);
    grid->addWidget(lblRuleIs[part], row, 3);
    grid->addWidget(MakeRuleList(lists[2 * part + 1], static_cast<Rule>(2 * part + 1)), row, 4);
    grid->addWidget(MakeLabel(Indexed("lblRuleLong", part), this), row, 5);
}

DropDownList* CourseCodeRulesPanel::MakeRuleList(const char* name, Rule rule) {
    auto* list = Named(new DropDownList(this), QString::fromUtf8(name));
    for (int value = 0; value <= HighestRuleValue; ++value) {
        list->addItem(QString::number(value));
    }
    cboRule[rule] = list;
    return list;
}

QWidget* CourseCodeRulesPanel::MakeSplitRow() {
    auto* area = new QWidget(this);
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Spacing::Gap);
    chkUseSplitChar = Named(new QCheckBox(area), QStringLiteral("chkUseSplitChar"));
    txtSplitChar = MakeBox(QStringLiteral("txtSplitChar"), area);
    txtSplitChar->setFixedWidth(WidthOfSplitBox);
    row->addWidget(chkUseSplitChar);
    row->addWidget(txtSplitChar);
    return area;
}

// Option 0 over the whole width; below it option 1 with its label, and the rows of the table to the right of them.
QWidget* CourseCodeRulesPanel::MakeConversion() {
    auto* area = new QWidget(this);
    QGridLayout* grid = MakeGrid(area);
    for (std::size_t i = 0; i < optRule_GradeConv.size(); ++i) {
        optRule_GradeConv[i] = Named(new QRadioButton(area), Indexed("optRule_GradeConv", i));
    }
    lblConversion = Named(new ClickableLabel(area), QStringLiteral("lblConversion"));
    lblConversion->setTextFormat(Qt::PlainText);
    lblConversion->setWordWrap(true);
    lblConversion->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* rows = new QWidget(area);
    QGridLayout* table = MakeGrid(rows);
    constexpr int rowsOfColumn = EditedConversionRows / ConversionColumns;
    for (int i = 0; i < EditedConversionRows; ++i) {
        MakeConversionRow(table, i % rowsOfColumn, i / rowsOfColumn * 4, static_cast<std::size_t>(i));
    }
    table->setColumnMinimumWidth(3, 2 * Spacing::Margin);
    grid->addWidget(optRule_GradeConv[0], 0, 0, 1, 3);
    grid->addWidget(optRule_GradeConv[1], 1, 0, Qt::AlignTop);
    grid->addWidget(lblConversion, 1, 1);
    grid->addWidget(rows, 1, 2);
    grid->setColumnStretch(1, 1);
    return area;
}

void CourseCodeRulesPanel::MakeConversionRow(QGridLayout* grid, int row, int column, std::size_t index) {
    txtRule_GSymbol[index] = MakeConversionBox(Indexed("txtRule_GSymbol", index));
    txtRule_GActual[index] = MakeConversionBox(Indexed("txtRule_GActual", index));
    grid->addWidget(txtRule_GSymbol[index], row, column);
    grid->addWidget(MakeLabel(Indexed("lblRuleMeans", index), this), row, column + 1);
    grid->addWidget(txtRule_GActual[index], row, column + 2);
}

TextBox* CourseCodeRulesPanel::MakeConversionBox(const QString& name) {
    TextBox* box = MakeBox(name, this);
    box->setFixedWidth(WidthOfConversionBox);
    return box;
}

QWidget* CourseCodeRulesPanel::MakeTestFrame() {
    auto* frame = Named(new QGroupBox(this), QStringLiteral("fraTest"));
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(Spacing::Margin, RowGap, Spacing::Margin, Spacing::Gap);
    grid->setHorizontalSpacing(RowGap);
    grid->setVerticalSpacing(RowGap);
    txtAdminTest = MakeBox(QStringLiteral("txtAdminTest"), frame);
    lblCourseTest = MakeResult("lblCourseTest", frame);
    lblClassTest = MakeResult("lblClassTest", frame);
    lblGradeTest = MakeResult("lblGradeTest", frame);
    QLabel* caption = MakeWrappedLabel("lblTest1", frame);
    caption->setBuddy(txtAdminTest);
    grid->addWidget(caption, 0, 0, 1, 2);
    grid->addWidget(txtAdminTest, 1, 0, 1, 2);
    grid->addWidget(MakeLabel(QStringLiteral("lblTest2"), frame), 2, 0);
    grid->addWidget(lblCourseTest, 2, 1);
    grid->addWidget(MakeLabel(QStringLiteral("lblTest3"), frame), 3, 0);
    grid->addWidget(lblClassTest, 3, 1);
    grid->addWidget(MakeLabel(QStringLiteral("lblTest4"), frame), 4, 0);
    grid->addWidget(lblGradeTest, 4, 1);
    grid->setColumnStretch(1, 1);
    return frame;
}

void CourseCodeRulesPanel::ArrangeTabOrder() {
    std::vector<QWidget*> order(cboRule.begin(), cboRule.end());
    order.insert(order.end(),
                 {chkUseSplitChar, txtSplitChar, txtAdminTest, optRule_GradeConv[0], optRule_GradeConv[1]});
    for (std::size_t i = 0; i < EditedConversionRows; ++i) {
        order.insert(order.end(), {txtRule_GSymbol[i], txtRule_GActual[i]});
    }
    for (std::size_t i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }
}

void CourseCodeRulesPanel::NameControls(CaptionLanguage language) {
    const bool english = language == CaptionLanguage::English;
    for (std::size_t part = 0; part < lblPart.size(); ++part) {
        const QString name = lblPart[part]->text() + QLatin1Char(' ');
        cboRule[2 * part]->setAccessibleName(name + lblRuleStart[part]->text());
        cboRule[2 * part + 1]->setAccessibleName(name + lblRuleIs[part]->text());
    }
    txtSplitChar->setAccessibleName(chkUseSplitChar->text());
    optRule_GradeConv[1]->setAccessibleName(lblConversion->text());
    const QString symbol =
        english ? QStringLiteral("Character(s) of conversion %1") : QStringLiteral("Caractère(s) de la conversion %1");
    const QString actual =
        english ? QStringLiteral("Grade of conversion %1") : QStringLiteral("Année ou niveau de la conversion %1");
    for (std::size_t i = 0; i < EditedConversionRows; ++i) {
        txtRule_GSymbol[i]->setAccessibleName(symbol.arg(i + 1));
        txtRule_GActual[i]->setAccessibleName(actual.arg(i + 1));
    }
}
