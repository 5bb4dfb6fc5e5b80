#include "platform/widgets/Pictures.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

// The pictures are compiled into a library; a program that links it must ask for them.
static void LoadPictures() {
    Q_INIT_RESOURCE(pictures);
}

// Naming the format, and no doubting it, keeps Qt from loading every image plugin of the system to ask whether the
// picture is one of theirs.
static QPixmap Drawing(const QString& name, int ratio) {
    static const bool loaded = (LoadPictures(), true);
    Q_UNUSED(loaded);
    const QString scale = ratio > 1 ? QStringLiteral("@%1x").arg(ratio) : QString();
    QImageReader reader(QStringLiteral(":/pictures/%1%2.png").arg(name, scale), "png");
    reader.setAutoDetectImageFormat(false);
    QPixmap drawing = QPixmap::fromImageReader(&reader);
    drawing.setDevicePixelRatio(ratio);
    return drawing;
}

QIcon Picture(const QString& name) {
    QIcon icon(Drawing(name, 1));
    if (qGuiApp->devicePixelRatio() > 1) { // of the sharpest screen there is
        icon.addPixmap(Drawing(name, 2));
        icon.addPixmap(Drawing(name, 4));
    }
    return icon;
}

QIcon PictureOfSizes(const QStringList& names) {
    QIcon icon;
    for (const QString& name : names) {
        icon.addPixmap(Drawing(name, 1));
    }
    return icon;
}

PictureButton::PictureButton(const QString& pictureName, int size, const QString& accessibleName, QWidget* parent)
    : QToolButton(parent), picture(pictureName) {
    setIconSize(QSize(size, size));
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(accessibleName);
    setToolTip(accessibleName);
}

// A button that is not shown yet needs no picture: polishing comes before it is measured or painted.
bool PictureButton::event(QEvent* event) {
    if (event->type() == QEvent::Polish) {
        setIcon(Picture(picture));
    }
    return QToolButton::event(event);
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
