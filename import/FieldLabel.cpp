#include "import/FieldLabel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

namespace {

constexpr int TextMargin = 3;
constexpr int Corner = 3;

void DrawCaption(QPainter& painter, const QLabel& label, const QRect& room, const QColor& colour) {
    painter.setFont(label.font());
    painter.setPen(colour);
    painter.drawText(room.adjusted(TextMargin, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     label.text());
}

} // namespace

FieldLabel::FieldLabel(int fieldToShow, QWidget* parent) : QLabel(parent), field(fieldToShow) {
    setObjectName(QStringLiteral("lblFieldList(%1)").arg(field));
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::ClickFocus);
    SetUsed(false);
}

void FieldLabel::SetUsed(bool used) {
    QFont weighted = font();
    weighted.setBold(used);
    setFont(weighted);
    setEnabled(!used);
    setCursor(used ? Qt::ForbiddenCursor : Qt::OpenHandCursor);
    mayDrag = mayDrag && !used;
}

QPixmap FieldLabel::DragPicture() const {
    QPixmap picture(size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Active, QPalette::Highlight));
    painter.drawRoundedRect(rect(), Corner, Corner);
    DrawCaption(painter, *this, rect(), palette().color(QPalette::Active, QPalette::HighlightedText));
    return picture;
}

void FieldLabel::mousePressEvent(QMouseEvent* event) {
    mayDrag = event->button() == Qt::LeftButton;
    pressedAt = event->position().toPoint();
    if (mayDrag) {
        Q_EMIT Pressed();
    }
}

void FieldLabel::mouseMoveEvent(QMouseEvent* event) {
    const QPoint way = event->position().toPoint() - pressedAt;
    if (mayDrag && event->buttons().testFlag(Qt::LeftButton) &&
        way.manhattanLength() >= QApplication::startDragDistance()) {
        mayDrag = false;
        Q_EMIT Dragged();
    }
}

void FieldLabel::mouseReleaseEvent(QMouseEvent* event) {
    mayDrag = false;
    event->accept();
}

void FieldLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    mayDrag = false;
    if (event->button() == Qt::LeftButton) {
        Q_EMIT DoubleClicked();
    }
}

void FieldLabel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!event->isAutoRepeat()) {
            Q_EMIT Entered();
        }
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        Q_EMIT MoveKey(event->key());
        return;
    default:
        QLabel::keyPressEvent(event);
    }
}

void FieldLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
    Q_EMIT FocusMoved(true);
}

void FieldLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
    Q_EMIT FocusMoved(false);
}

void FieldLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (hasFocus()) {
        painter.fillRect(rect(), palette().highlight());
    }
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    DrawCaption(painter, *this, rect(),
                palette().color(group, hasFocus() ? QPalette::HighlightedText : QPalette::Text));
}
