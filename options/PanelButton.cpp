#include "options/PanelButton.h"

#include <QPaintEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int BarWidth = 4; // logical pixels
constexpr int TextLeft = 12;
constexpr int LeastHeight = 30;

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

QSize PanelButton::sizeHint() const {
    QFont bold = font();
    bold.setBold(true);
    const int textWidth = QFontMetrics(bold).size(Qt::TextShowMnemonic, text()).width();
    return {textWidth + 2 * TextLeft, std::max(LeastHeight, QPushButton::sizeHint().height())};
}

void PanelButton::paintEvent(QPaintEvent* event) {
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    if (isChecked()) {
        painter.fillRect(QRect(3, 5, BarWidth, height() - 10), palette().color(QPalette::Highlight));
    }
    const QRect room = rect().adjusted(TextLeft, 0, -BarWidth, 0);
    painter.drawItemText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, palette(), isEnabled(), text(),
                         QPalette::ButtonText);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.rect = rect().adjusted(2, 2, -2, -2);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
    event->accept();
}
