#include "platform/widgets/OptionsWindow.h"

#include "platform/widgets/ScreenFit.h"

#include <QKeyEvent>
#include <QPushButton>

namespace {

constexpr QSize WindowSize(800, 600); // logical pixels

} // namespace

OptionsWindow::OptionsWindow(const char* name, QWidget* parent) : QDialog(parent) {
    setObjectName(QString::fromUtf8(name));
    setModal(true);
    resize(OpeningSize(WindowSize));
}

void OptionsWindow::showEvent(QShowEvent* event) {
    KeepContentsWhole();
    QDialog::showEvent(event);
}

void OptionsWindow::KeepContentsWhole() {
    FitToScreen(*this, WindowSize);
}

void OptionsWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
        return;
    }
    event->accept();
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (button != nullptr && button->isEnabled()) {
        button->click();
    }
}
