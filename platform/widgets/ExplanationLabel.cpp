#include "platform/widgets/ExplanationLabel.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <cmath>

namespace {

constexpr int UsualWidth = 320; // logical pixels
constexpr int LeastWidth = 120;

} // namespace

ExplanationLabel::ExplanationLabel(QWidget* parent) : QLabel(parent), preferredWidth(UsualWidth) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

void ExplanationLabel::SetPreferredWidth(int width) {
    preferredWidth = width;
    updateGeometry();
}

QTextLayout& ExplanationLabel::Measured() const {
    if (measured == nullptr || measuredText != text()) {
        measuredText = text();
        QString lines = measuredText;
        lines.replace(QLatin1Char('\n'), QChar::LineSeparator);
        measured = std::make_unique<QTextLayout>(lines, font(), this);
        measured->setCacheEnabled(true);
        brokenAt = -1;
        heights.clear();
    }
    return *measured;
}

// Breaks the text into lines of a width; returns their height.
qreal ExplanationLabel::BreakLines(int width) const {
    QTextLayout& broken = Measured();
    if (brokenAt == width) {
        return heights.value(width);
    }
    QTextOption option(QStyle::visualAlignment(layoutDirection(), alignment() & Qt::AlignHorizontal_Mask));
    option.setTextDirection(layoutDirection());
    broken.setTextOption(option);
    const qreal leading = fontMetrics().leading();
    qreal height = 0;
    broken.beginLayout();
    for (QTextLine line = broken.createLine(); line.isValid(); line = broken.createLine()) {
        height += line.lineNumber() > 0 ? leading : 0;
        line.setLineWidth(width);
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    broken.endLayout();
    brokenAt = width;
    heights.insert(width, height);
    return height;
}

int ExplanationLabel::heightForWidth(int width) const {
    if (text().isEmpty()) {
        return -1; // no matter of the width
    }
    const QMargins around = contentsMargins();
    const int inner = width - around.left() - around.right();
    Measured(); // forgets the heights of another text
    const auto known = heights.constFind(inner);
    const qreal height = known != heights.constEnd() ? *known : BreakLines(inner);
    return around.top() + around.bottom() + static_cast<int>(std::ceil(height));
}

QSize ExplanationLabel::sizeHint() const {
    return {preferredWidth, fontMetrics().lineSpacing()};
}

QSize ExplanationLabel::minimumSizeHint() const {
    return {LeastWidth, fontMetrics().lineSpacing()};
}

void ExplanationLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::LayoutDirectionChange) {
        measured.reset();
    }
}

void ExplanationLabel::paintEvent(QPaintEvent*) {
    const QRect room = contentsRect();
    const qreal spare = room.height() - BreakLines(room.width());
    const bool centred = (alignment() & Qt::AlignVCenter) != 0;
    const qreal above = centred ? spare / 2 : (alignment() & Qt::AlignBottom) != 0 ? spare : 0;
    QPainter painter(this);
    if (room != rect()) {
        painter.setClipRect(room); // a word that is too long
    }
    painter.setPen(palette().color(foregroundRole()));
    measured->draw(&painter, room.topLeft() + QPointF(0, above));
}
