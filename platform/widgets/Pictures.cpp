#include "platform/widgets/Pictures.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

// The pictures are compiled into a library; a program that links it must ask for them.
static void LoadPictures() {
    Q_INIT_RESOURCE(pictures);
}

QIcon Picture(const QString& name) {
    static const bool loaded = (LoadPictures(), true);
    Q_UNUSED(loaded);
    return QIcon(QStringLiteral(":/pictures/%1.png").arg(name));
}

PictureButton::PictureButton(const QString& picture, int size, const QString& accessibleName, QWidget* parent)
    : QToolButton(parent) {
    setIcon(Picture(picture));
    setIconSize(QSize(size, size));
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(accessibleName);
    setToolTip(accessibleName);
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        if (!event->isAutoRepeat()) { // a key held down is one press
            click();
        }
        return;
    }
    QToolButton::keyPressEvent(event);
}

ClickableLabel::ClickableLabel(QWidget* parent) : QLabel(parent) {
    setCursor(Qt::PointingHandCursor);
}

void ClickableLabel::mousePressEvent(QMouseEvent* event) {
    pressed = event->button() == Qt::LeftButton;
}

void ClickableLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (std::exchange(pressed, false) && rect().contains(event->position().toPoint())) {
        Q_EMIT Clicked();
    }
}
