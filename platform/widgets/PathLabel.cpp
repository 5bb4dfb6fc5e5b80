#include "platform/widgets/PathLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace {

constexpr int Margin = 4; // logical pixels between frame and text
constexpr int PreferredWidth = 240;
constexpr int LeastWidth = 80;

} // namespace

PathLabel::PathLabel(QWidget* parent) : QLabel(parent) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize PathLabel::sizeHint() const {
    return {PreferredWidth, fontMetrics().height() + 2 * frameWidth() + 4};
}

QSize PathLabel::minimumSizeHint() const {
    return {LeastWidth, sizeHint().height()};
}

QRect PathLabel::TextRoom() const {
    return contentsRect().adjusted(Margin, 0, -Margin, 0);
}

void PathLabel::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    drawFrame(&painter);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, TextRoom().width());
    style()->drawItemText(&painter, TextRoom(), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, palette(),
                          isEnabled(), shown, foregroundRole());
    event->accept();
}

bool PathLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && fontMetrics().horizontalAdvance(text()) > TextRoom().width()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           QStringLiteral("<span>%1</span>").arg(text().toHtmlEscaped()), this);
        return true;
    }
    return QLabel::event(event);
}
