#include "options/PanelButton.h"

#include <QPaintEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int BarWidth = 4; // logical pixels
constexpr int TextLeft = 12;
constexpr int TextRight = 8;
constexpr int Padding = 10; // above and below the text together

// The text in one line, or broken at its last blank when it would not fit in bold: so it looks the same current or not.
QString Broken(const QString& text, const QFont& font, int room) {
    QFont bold = font;
    bold.setBold(true);
    const qsizetype blank = text.lastIndexOf(u' ');
    if (blank < 0 || QFontMetrics(bold).horizontalAdvance(text) <= room) {
        return text;
    }
    return text.left(blank) + u'\n' + text.mid(blank + 1);
}

} // namespace

PanelButton::PanelButton(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
    setCheckable(true);
}

void PanelButton::ShowAsCurrent(bool current) {
    QFont weight = font();
    weight.setBold(current);
    setFont(weight);
    setChecked(current);
}

// The text may take two lines, bold or not.
QSize PanelButton::sizeHint() const {
    return {QPushButton::sizeHint().width(), 2 * fontMetrics().lineSpacing() + Padding};
}

void PanelButton::paintEvent(QPaintEvent* event) {
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    if (isChecked()) {
        painter.fillRect(QRect(3, 5, BarWidth, height() - 10), palette().color(QPalette::Highlight));
    }
    const QRect room = rect().adjusted(TextLeft, 0, -TextRight, 0);
    painter.drawItemText(room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                         Broken(text(), font(), room.width()), QPalette::ButtonText);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.rect = rect().adjusted(2, 2, -2, -2);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
    event->accept();
}
