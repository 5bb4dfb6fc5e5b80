#include "platform/qt/SlowSave.h"

#include "platform/SaveThread.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>

namespace {

// Milliseconds.
constexpr int ShortSave = 100; // nobody sees that the window waits
constexpr int QuietSave = 300; // a longer one says that it works
constexpr int BetweenEvents = 10;

constexpr int Room = 16; // logical pixels around the notice's text

// In the window and not a window of its own: that would take the keyboard from the control that has it.
QPointer<QLabel> ShowSavingNotice(QWidget* over, CaptionLanguage language) {
    auto* notice = new QLabel(InLanguage(language, "Saving...", "Enregistrement en cours..."), over);
    notice->setObjectName(QStringLiteral("SavingNotice"));
    notice->setFrameStyle(QFrame::Panel | QFrame::Plain);
    notice->setLineWidth(2);
    notice->setMargin(Room);
    notice->setAutoFillBackground(true);
    notice->setBackgroundRole(QPalette::ToolTipBase);
    notice->setForegroundRole(QPalette::ToolTipText);
    notice->adjustSize();
    notice->move((over->width() - notice->width()) / 2, (over->height() - notice->height()) / 2);
    notice->show();
    notice->raise();
    QAccessibleEvent told(notice, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
    return notice;
}

// A button that a key has pushed clicks a little later, by a timer, and that must not happen in the middle of a save.
// The timer goes on and comes again after it.
class LaterClicks : public QObject {
public:
    LaterClicks() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        return event->type() == QEvent::Timer && qobject_cast<QAbstractButton*>(receiver) != nullptr;
    }
};

class BusyPointer {
public:
    BusyPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyPointer() { QApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

void ShowUntilItEnds(SaveThread& running, QWidget* over, CaptionLanguage language) {
    QElapsedTimer clock;
    clock.start();
    const BusyPointer pointer;
    const LaterClicks later;
    QPointer<QLabel> notice;
    while (!running.Wait(BetweenEvents)) {
        if (notice == nullptr && over != nullptr && clock.elapsed() >= QuietSave - ShortSave) {
            notice = ShowSavingNotice(over, language);
        }
        ProcessAllButPresses();
    }
    delete notice;
}

} // namespace

// The presses that were left out wait in a queue that wakes nobody: without a call the next event would have to.
void ProcessAllButPresses() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QAbstractEventDispatcher::instance()->wakeUp();
}

void RunSlowSave(const std::function<void()>& save, QWidget* over, CaptionLanguage language) {
    SaveThread running(save);
    if (!running.Wait(ShortSave)) {
        ShowUntilItEnds(running, over, language);
    }
}
