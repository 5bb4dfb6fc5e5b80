/// A plugin of the window system that makes the running program save: it presses the lock of the main menu, over and
/// over. Each "f" on standard input makes a copy of the whole program that does so; "here" and its process number are
/// written to standard output after its first save, "dead" and the number once somebody has killed it. "t" makes the
/// program itself do so. The program itself knows nothing of it: Qt loads it where QT_QPA_GENERIC_PLUGINS names
/// "toggler".

#include <QAbstractButton>
#include <QApplication>
#include <QGenericPlugin>
#include <QMessageBox>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#ifdef __linux__
#include <csignal>
#include <sys/prctl.h>
#endif
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int BetweenLooks = 2; // milliseconds

void Say(const char* word, int number) {
    std::printf("%s %d\n", word, number);
    std::fflush(stdout);
}

// Tells its number once it has saved.
[[noreturn]] void ToggleForever(const QWidget& menu) {
    auto* closed = menu.findChild<QAbstractButton*>(QStringLiteral("imgLocked"));
    auto* open = menu.findChild<QAbstractButton*>(QStringLiteral("imgUnlocked"));
    const auto toggle = [=] { (closed->isHidden() ? open : closed)->click(); };
    toggle();
    Say("here", getpid());
    for (;;) {
        toggle();
    }
}

[[noreturn]] void Serve(const QWidget& menu) {
    for (char request = 0; read(0, &request, 1) == 1;) {
        const pid_t copy = request == 'f' ? fork() : 0;
        if (copy == 0) {
#ifdef __linux__
            prctl(PR_SET_PDEATHSIG, SIGKILL); // whoever asked may be gone
#endif
            ToggleForever(menu);
        }
        waitpid(copy, nullptr, 0);
        Say("dead", copy);
    }
    _exit(0);
}

class Toggler : public QObject {
public:
    Toggler() {
        connect(&timer, &QTimer::timeout, this, &Toggler::Look);
        timer.start(BetweenLooks);
    }

private:
    QTimer timer;

    // Answers what the program says at its start, then waits for the menu.
    void Look() {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            box->buttons().first()->click();
            return;
        }
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QStringLiteral("frmMaster_SU") && window->isVisible()) {
                Serve(*window);
            }
        }
    }
};

} // namespace

class TogglerPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "Toggler.json")

public:
    QObject* create(const QString&, const QString&) override { return new Toggler; } // Qt owns it
};

#include "Toggler.moc"
