#include "options/PathLabel.h"

#include <QPainter>
#include <QStyle>
#include <QTextDocument>

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

void PathLabel::ShowPath(const QString& path) {
    setText(path);
    setToolTip(Qt::mightBeRichText(path) ? path.toHtmlEscaped() : path);
}

QSize PathLabel::sizeHint() const {
    return {PreferredWidth, fontMetrics().height() + 2 * frameWidth() + 4};
}

QSize PathLabel::minimumSizeHint() const {
    return {LeastWidth, sizeHint().height()};
}

void PathLabel::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    drawFrame(&painter);
    const QRect room = contentsRect().adjusted(Margin, 0, -Margin, 0);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, room.width());
    style()->drawItemText(&painter, room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, palette(), isEnabled(),
                          shown, foregroundRole());
    event->accept();
}
