#include "import/PathLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int LeastWidth = 100;

} // namespace

PathLabel::PathLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize PathLabel::minimumSizeHint() const {
    return {LeastWidth, QLabel::minimumSizeHint().height()};
}

void PathLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width()));
}

bool PathLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && fontMetrics().horizontalAdvance(text()) > contentsRect().width()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           QStringLiteral("<span>%1</span>").arg(text().toHtmlEscaped()), this);
        return true;
    }
    return QLabel::event(event);
}
