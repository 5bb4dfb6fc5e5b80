#include "import/FileNameLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int LeastWidth = 100;

} // namespace

FileNameLabel::FileNameLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize FileNameLabel::minimumSizeHint() const {
    return {LeastWidth, QLabel::minimumSizeHint().height()};
}

void FileNameLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width()));
}

bool FileNameLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && fontMetrics().horizontalAdvance(text()) > contentsRect().width()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           QStringLiteral("<span>%1</span>").arg(text().toHtmlEscaped()), this);
        return true;
    }
    return QLabel::event(event);
}
