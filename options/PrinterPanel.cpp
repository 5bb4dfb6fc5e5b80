#include "options/PrinterPanel.h"

#include "app/CFG_2015.h"
#include "platform/widgets/ProgramStyle.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QRadioButton>

namespace {

constexpr int ThinnestLine = 2;
constexpr int LinesInColumn = 5;
constexpr QSize SampleSize(96, 16); // logical pixels

QPixmap LineSample(int width, const QColor& colour, qreal scale) {
    QPixmap sample(SampleSize * scale);
    sample.setDevicePixelRatio(scale);
    sample.fill(Qt::transparent);
    QPainter painter(&sample);
    painter.fillRect(QRectF(0, (SampleSize.height() - width) / 2.0, SampleSize.width(), width), colour);
    return sample;
}

} // namespace

PrinterPanel::PrinterPanel(QWidget* parent) : SetupPanel(4, parent) {
    AddDialogFrame();
    AddLinesFrame();
    Column->addStretch();
    DrawLines();
}

void PrinterPanel::AddDialogFrame() {
    const Frame frame = NewFrame("fraPrinter", this);
    chkHCDialog = NewControl<QCheckBox>("chkHCDialog", frame.Box);
    frame.Column->addWidget(chkHCDialog, 0, Qt::AlignLeft);
    frame.Column->addWidget(NewExplanation("lblHCDialog", frame.Box));
    Column->addWidget(frame.Box);
}

void PrinterPanel::AddLinesFrame() {
    const Frame frame = NewFrame("fraThickLines", this);
    frame.Column->addWidget(NewExplanation("lblThick", frame.Box));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(4 * Spacing::Margin);
    grid->setVerticalSpacing(Spacing::Gap);
    for (int i = 0; i < static_cast<int>(optThickLine.size()); ++i) {
        auto* option = NewControl<QRadioButton>(IndexedName("optThickLine", i), frame.Box);
        option->setText(QString::number(i + ThinnestLine));
        option->setIconSize(SampleSize);
        grid->addWidget(option, i % LinesInColumn, i / LinesInColumn, Qt::AlignLeft);
        optThickLine.at(static_cast<std::size_t>(i)) = option;
    }
    MakeOneTabStop({optThickLine.begin(), optThickLine.end()});
    grid->setColumnStretch(2, 1);
    frame.Column->addLayout(grid);
    Column->addWidget(frame.Box);
}

// Each option shows its line in the colour of the text.
void PrinterPanel::DrawLines() {
    for (int i = 0; i < static_cast<int>(optThickLine.size()); ++i) {
        QRadioButton* option = optThickLine.at(static_cast<std::size_t>(i));
        option->setIcon(LineSample(i + ThinnestLine, palette().color(QPalette::WindowText), devicePixelRatioF()));
    }
}

void PrinterPanel::changeEvent(QEvent* event) {
    SetupPanel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && optThickLine.back() != nullptr) {
        DrawLines();
    }
}

void PrinterPanel::LoadThickLines() {
    const int index = ProgramConfig.WidthOfThickLines - ThinnestLine;
    if (index >= 0 && index < static_cast<int>(optThickLine.size())) {
        optThickLine.at(static_cast<std::size_t>(index))->setChecked(true);
    }
}

void PrinterPanel::LoadDialogBox() {
    chkHCDialog->setChecked(ProgramConfig.PrinterDialogBox != 0);
}

void PrinterPanel::Save() const {
    ProgramConfig.PrinterDialogBox = chkHCDialog->isChecked() ? 1 : 0;
    for (int i = 0; i < static_cast<int>(optThickLine.size()); ++i) {
        if (optThickLine.at(static_cast<std::size_t>(i))->isChecked()) {
            ProgramConfig.WidthOfThickLines = static_cast<std::int16_t>(i + ThinnestLine);
        }
    }
}
