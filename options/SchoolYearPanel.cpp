#include "options/SchoolYearPanel.h"

#include "app/CFG_2015.h"
#include "platform/Desktop.h"
#include "platform/widgets/DropDownList.h"
#include "platform/widgets/ProgramStyle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int FormatColumnWidth = 160; // logical pixels: the longest date of the six formats

} // namespace

SchoolYearPanel::SchoolYearPanel(QWidget* parent) : SetupPanel(1, parent) {
    AddYearFrame();
    AddFormatFrame();
    Column->addStretch();
}

void SchoolYearPanel::AddYearFrame() {
    const Frame frame = NewFrame("fraSYear", this);
    cboSYSM = NewControl<DropDownList>("cboSYSM", frame.Box);
    cboSYSM->setMinimumContentsLength(12);
    auto* row = new QHBoxLayout;
    row->addWidget(NewLabel("lblSY1", frame.Box, cboSYSM));
    row->addWidget(cboSYSM);
    row->addStretch();
    frame.Column->addLayout(row);
    frame.Column->addWidget(NewExplanation("lblSYWarn", frame.Box));
    Column->addWidget(frame.Box);
}

void SchoolYearPanel::AddFormatFrame() {
    const Frame frame = NewFrame("fraDFormat", this);
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * Spacing::Margin);
    auto* options = new QVBoxLayout;
    options->setSpacing(Spacing::Gap);
    options->addStrut(FormatColumnWidth);
    for (int code = FirstDateFormat; code <= LastDateFormat; ++code) {
        QRadioButton*& option = optDFormat.at(static_cast<std::size_t>(code));
        option = NewControl<QRadioButton>(IndexedName("optDFormat", code), frame.Box);
        options->addWidget(option, 0, Qt::AlignLeft);
    }
    MakeOneTabStop({optDFormat.begin() + FirstDateFormat, optDFormat.end()});
    row->addLayout(options);
    QLabel* explanation = NewExplanation("lblDF1", frame.Box);
    row->addWidget(explanation, 1, Qt::AlignTop);
    frame.Column->addLayout(row);
    Column->addWidget(frame.Box);
}

void SchoolYearPanel::Load() {
    cboSYSM->clear();
    cboSYSM->addItem(MonthNames[1]);
    cboSYSM->setCurrentIndex(ProgramConfig.SchoolYearStartMonth == 1 ? 0 : -1);
    if (ProgramConfig.DateFormat < FirstDateFormat || ProgramConfig.DateFormat > LastDateFormat) {
        ProgramConfig.DateFormat = FirstDateFormat;
    }
    optDFormat.at(static_cast<std::size_t>(ProgramConfig.DateFormat))->setChecked(true);
    const QDate today = TheDesktop().Now().date();
    for (std::int16_t code = FirstDateFormat; code <= LastDateFormat; ++code) {
        MakeTodayText(code, today);
        optDFormat.at(static_cast<std::size_t>(code))->setText(TodayText);
    }
}

void SchoolYearPanel::Save() const {
    for (std::int16_t code = FirstDateFormat; code <= LastDateFormat; ++code) {
        if (optDFormat.at(static_cast<std::size_t>(code))->isChecked()) {
            ProgramConfig.DateFormat = code;
        }
    }
    SetDatePatterns(ProgramConfig.TwoDigitYear);
    ProgramConfig.SchoolYearStartMonth = 1;
    ProgramConfig.SchoolYearSecondWord = 1;
}
