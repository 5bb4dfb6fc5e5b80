#include "platform/widgets/OptionsWindow.h"

#include "platform/widgets/ScreenFit.h"
#include "platform/widgets/UserInput.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

namespace {

constexpr QSize WindowSize(800, 600); // logical pixels

// What was pressed while a window was saving comes when it has gone already, and Save would save once more.
class NoPressesOnceClosed : public QObject {
public:
    explicit NoPressesOnceClosed(QWidget& closedWindow) : QObject(&closedWindow), window(closedWindow) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        auto* control = qobject_cast<QWidget*>(receiver);
        return IsUserInput(*event) && control != nullptr && control->window() == &window && !window.isVisible();
    }

private:
    QWidget& window;
};

} // namespace

OptionsWindow::OptionsWindow(const char* name, QWidget* parent) : QDialog(parent) {
    setObjectName(QString::fromUtf8(name));
    setModal(true);
    resize(OpeningSize(WindowSize));
    connect(
        this, &QDialog::finished, this, [this] { new NoPressesOnceClosed(*this); }, Qt::SingleShotConnection);
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
