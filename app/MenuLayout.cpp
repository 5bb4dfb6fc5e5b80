#include "app/MenuLayout.h"

#include "platform/widgets/ProgramStyle.h"

#include <QVBoxLayout>

namespace {

/// A wrapping text that takes the width it is given. A plain label tries several widths, and lays its text out for each
/// of them, to find one that pleases it; nobody asks for that here, and it is a good part of the start.
class WrappedText : public QLabel {
public:
    using QLabel::QLabel;

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override { return {LeastWidth, fontMetrics().lineSpacing()}; }

    int heightForWidth(int width) const override {
        if (width != knownWidth || text() != knownText || font() != knownFont) {
            knownHeight = QLabel::heightForWidth(width);
            knownWidth = width;
            knownText = text();
            knownFont = font();
        }
        return knownHeight;
    }

private:
    static constexpr int LeastWidth = 200;

    // Layouts ask again and again for the same width.
    mutable int knownWidth = -1;
    mutable int knownHeight = 0;
    mutable QString knownText;
    mutable QFont knownFont;
};

} // namespace

namespace MenuLayout {

QLabel* NewText(QWidget* parent, const char* name) {
    auto* label = new WrappedText(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
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
