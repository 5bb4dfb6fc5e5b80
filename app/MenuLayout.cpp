#include "app/MenuLayout.h"

#include "platform/widgets/ExplanationLabel.h"
#include "platform/widgets/ProgramStyle.h"

#include <QVBoxLayout>

namespace MenuLayout {

QLabel* NewText(QWidget* parent, const char* name, int width) {
    auto* label = new ExplanationLabel(parent);
    label->SetPreferredWidth(width);
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    return label;
}

QPushButton* NewButton(QWidget* parent, const char* name) {
    auto* button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setMinimumHeight(34);
    return button;
}

void SetColumns(QGroupBox& frame, QLayout* texts, QLayout* side) {
    auto* column = new QWidget(&frame);
    column->setFixedWidth(SideWidth);
    side->setContentsMargins(0, 0, 0, 0);
    column->setLayout(side);
    auto* columns = new QHBoxLayout(&frame);
    columns->setContentsMargins(Spacing::Margin, Spacing::Gap - 2, Spacing::Margin - 1, Spacing::Margin);
    columns->setSpacing(2 * Spacing::Margin);
    columns->addLayout(texts, 1);
    columns->addWidget(column);
}

QGroupBox* NewArea(QWidget* parent, const char* name, QLabel* text, QPushButton* button) {
    auto* frame = new QGroupBox(parent);
    frame->setObjectName(QString::fromLatin1(name));
    auto* texts = new QVBoxLayout;
    texts->addWidget(text, 1);
    auto* side = new QVBoxLayout;
    side->addStretch(1);
    side->addWidget(button);
    SetColumns(*frame, texts, side);
    return frame;
}

} // namespace MenuLayout
