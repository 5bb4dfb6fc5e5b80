#include "platform/widgets/DropDownList.h"

#include <QKeyEvent>
#include <QWheelEvent>

DropDownList::DropDownList(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
}

void DropDownList::keyPressEvent(QKeyEvent* event) {
    const bool opens = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if ((event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) != 0 && !opens) {
        event->ignore();
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void DropDownList::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}
