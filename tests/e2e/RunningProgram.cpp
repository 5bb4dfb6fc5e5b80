#include "tests/e2e/RunningProgram.h"

#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/Screen.h"

#include <QDir>
#include <QElapsedTimer>
#include <QThread>
#include <stdexcept>

namespace {

constexpr int Patience = 30'000; // milliseconds; a loaded machine is slow, a broken program never gets there
constexpr unsigned long BetweenLooks = 15;
const QString FileNameBox = QStringLiteral("fileNameEdit");

[[noreturn]] void Fail(const QString& what) {
    throw std::runtime_error(what.toStdString());
}

/// A home that holds no settings, no running services and no printers.
QProcessEnvironment CleanEnvironment(const QString& home) {
    QProcessEnvironment environment;
    const QProcessEnvironment mine = QProcessEnvironment::systemEnvironment();
    for (const QString& kept :
         {QStringLiteral("PATH"), QStringLiteral("DISPLAY"), QStringLiteral("TZ"), QStringLiteral("LD_LIBRARY_PATH")}) {
        if (mine.contains(kept)) {
            environment.insert(kept, mine.value(kept));
        }
    }
    for (const QString& folder :
         {QStringLiteral("HOME"), QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("XDG_DATA_HOME"),
          QStringLiteral("XDG_CACHE_HOME"), QStringLiteral("XDG_RUNTIME_DIR")}) {
        environment.insert(folder, home);
    }
    environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("CUPS_SERVER"), home + QStringLiteral("/no-print-service"));
    if (UnderWine()) { // which keeps Qt's variables of this machine from the programs
        environment.insert(QStringLiteral("WINEPREFIX"), mine.value(QStringLiteral("WINEPREFIX")));
        return environment;
    }
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("probe"));
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(E2E_PLUGINS));
    return environment;
}

void AwaitFileDialog(RunningProgram& program, const QString& title) {
    program.Await(QStringLiteral("the file dialog \"%1\"").arg(title),
                  [&](const SeenScreen&) { return program.FileDialogIsOpen(title); });
}

// Under Wine a drag that has just begun answers nothing before the next move: no hand holds a mouse quite still.
std::function<void()> Tremble(const QPoint& place) {
    return [place, aside = 0]() mutable { MoveMouseTo(place + QPoint(aside = 1 - aside, 0)); };
}

} // namespace

RunningProgram::RunningProgram(const QString& folder, const QString& executable, const QStringList& environment) {
    QProcessEnvironment clean = CleanEnvironment(home.path());
    for (const QString& setting : environment) {
        const qsizetype equals = setting.indexOf(QLatin1Char('='));
        clean.insert(setting.left(equals), setting.mid(equals + 1));
    }
    process.setProcessEnvironment(clean);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setWorkingDirectory(home.path()); // its files are in its own folder, wherever it was started from
    QStringList command = {QDir(folder).absoluteFilePath(executable)};
    if (UnderWine()) {
        command =
            QStringList{QStringLiteral(E2E_WITH_WINE), command[0], QStringLiteral("-plugin"), QStringLiteral("probe")};
    }
    process.start(command[0], command.mid(1));
    if (!process.waitForStarted(Patience)) {
        Fail(QStringLiteral("Cannot start %1 in %2: %3").arg(executable, folder, process.errorString()));
    }
}

RunningProgram::~RunningProgram() {
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished(Patience);
    }
}

// Calls `waiting` every 100 ms until the program answers.
SeenScreen RunningProgram::LookWhile(const std::function<void()>& waiting) {
    process.write("?");
    QElapsedTimer clock;
    clock.start();
    while (!process.canReadLine()) {
        if (process.state() == QProcess::NotRunning) {
            return {}; // it ended: nothing is on the screen any more
        }
        if (clock.elapsed() > Patience) {
            Fail(QStringLiteral("The program does not answer"));
        }
        if (!process.waitForReadyRead(100) && waiting) {
            waiting();
        }
    }
    return ReadAnswer(process.readLine());
}

SeenScreen RunningProgram::AwaitWhile(const std::function<void()>& waiting, const QString& what,
                                      const std::function<bool(const SeenScreen&)>& condition) {
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        SeenScreen seen = LookWhile(waiting);
        if (condition(seen)) {
            return seen;
        }
        if (clock.elapsed() > Patience || process.state() == QProcess::NotRunning) {
            const QString state = process.state() == QProcess::NotRunning
                                      ? QStringLiteral("the program has ended with %1").arg(process.exitCode())
                                      : QStringLiteral("there is: %1").arg(seen.Titles());
            Fail(QStringLiteral("Waited for %1; %2").arg(what, state));
        }
        QThread::msleep(BetweenLooks);
    }
}

SeenWindow RunningProgram::AwaitWindow(const QString& title) {
    const auto active = [&title](const SeenScreen& screen) {
        const SeenWindow* window = screen.Window(title);
        return window != nullptr && window->Active;
    };
    const SeenScreen seen = Await(QStringLiteral("the window \"%1\"").arg(title), active);
    // On a busy machine a window can be active before the display server gives it the keys; one pressed before is lost.
    Await(QStringLiteral("the keys to reach \"%1\"").arg(title), [&title](const SeenScreen&) {
        const QString keys = ActiveTitle();
        if (keys.isEmpty() && UnderWine()) { // which leaves the display without a window for them behind one of its own
                                             // file dialogs
            GiveKeysTo(title);
        }
        return keys == title;
    });
    return *seen.Window(title);
}

void RunningProgram::AwaitNoWindow(const QString& title) {
    Await(QStringLiteral("the window \"%1\" to go").arg(title),
          [&title](const SeenScreen& screen) { return screen.Window(title) == nullptr; });
}

SeenControl RunningProgram::AwaitControl(const QString& title, const QString& control, const QString& what,
                                         const std::function<bool(const SeenControl&)>& condition) {
    SeenControl found;
    Await(QStringLiteral("%1 of \"%2\" %3").arg(control, title, what), [&](const SeenScreen& screen) {
        const SeenWindow* window = screen.Window(title);
        if (window == nullptr || !window->Active) {
            return false;
        }
        found = window->Control(control);
        return condition(found);
    });
    return found;
}

SeenControl RunningProgram::AwaitText(const QString& title, const QString& control, const QString& text) {
    return AwaitControl(title, control, QStringLiteral("to show \"%1\"").arg(text),
                        [&text](const SeenControl& seen) { return seen.Text == text; });
}

QPoint RunningProgram::MiddleOf(const QString& title, const QString& control) {
    const SeenControl seen =
        AwaitControl(title, control, QStringLiteral("to be ready for the mouse"),
                     [](const auto& now) { return now.Visible && now.Enabled && !now.Place.isEmpty(); });
    if (!seen.CoveredBy.isEmpty()) {
        Fail(QStringLiteral("%1 of \"%2\" cannot be clicked: %3 lies over it").arg(control, title, seen.CoveredBy));
    }
    return seen.Place.center();
}

void RunningProgram::Click(const QString& title, const QString& control) {
    ClickAt(MiddleOf(title, control));
}

void RunningProgram::DoubleClick(const QString& title, const QString& control) {
    DoubleClickAt(MiddleOf(title, control));
}

void RunningProgram::MoveMouse(const QPoint& from, const QPoint& to) {
    constexpr int Steps = 4;
    for (int step = 1; step <= Steps; ++step) {
        const QPoint place = from + (to - from) * step / Steps;
        MoveMouseTo(place);
        LookWhile(Tremble(place)); // gives the program time for each
    }
}

void RunningProgram::Drag(const QString& title, const QString& control, const QString& target) {
    const auto awaitDrags = [&](const QPoint& place, const QString& what, int drags) {
        AwaitWhile(Tremble(place), QStringLiteral("the drag of %1 to ").arg(control) + what,
                   [&](const SeenScreen& screen) {
                       const SeenWindow* window = screen.Window(title);
                       return window != nullptr && window->Drags == drags;
                   });
    };
    const QPoint from = MiddleOf(title, control);
    const QPoint to = MiddleOf(title, target);
    const QPoint between = (from + to) / 2;
    const int before = AwaitWindow(title).Drags;
    PressButtonAt(from);
    MoveMouse(from, between);
    awaitDrags(between, QStringLiteral("begin"), before + 1);
    MoveMouse(between, to);
    ReleaseButton();
    if (UnderWine()) {
        awaitDrags(to, QStringLiteral("end"), before);
    }
}

void RunningProgram::DragInVain(const QString& title, const QString& control, const QString& target) {
    const SeenWindow window = AwaitWindow(title);
    PressButtonAt(window.Control(control).Place.center());
    MoveMouse(window.Control(control).Place.center(), window.Control(target).Place.center());
    const bool begun = AwaitWindow(title).Drags > window.Drags;
    ReleaseButton();
    if (begun) {
        Fail(QStringLiteral("%1 of \"%2\" can be dragged").arg(control, title));
    }
}

void RunningProgram::Press(const QString& title, const QString& chord) {
    AwaitWindow(title);
    PressKey(chord);
}

void RunningProgram::AnswerMessage(const QString& title) {
    AwaitControl(title, QStringLiteral("OK"), QStringLiteral("to take the keyboard"),
                 [](const auto& button) { return button.Focused; });
    Press(title, QStringLiteral("Return"));
    AwaitNoWindow(title);
}

void RunningProgram::TabTo(const QString& title, const QString& control) {
    constexpr int moreThanThereAreControls = 60;
    for (int tabs = 0; tabs < moreThanThereAreControls; ++tabs) {
        const QString before = AwaitWindow(title).Focus();
        if (before == control) {
            return;
        }
        Press(title, QStringLiteral("Tab"));
        Await(QStringLiteral("the keyboard to leave ") + before, [&](const SeenScreen& screen) {
            const SeenWindow* window = screen.Window(title);
            return window != nullptr && window->Focus() != before;
        });
    }
    Fail(QStringLiteral("%1 of \"%2\" cannot be reached by Tab").arg(control, title));
}

void RunningProgram::Enter(const QString& title, const QString& textBox, const QString& text) {
    Click(title, textBox);
    AwaitControl(title, textBox, QStringLiteral("to take the keyboard"), [](const auto& seen) { return seen.Focused; });
    PressKey(QStringLiteral("ctrl+a"));
    TypeText(text);
    AwaitText(title, textBox, text);
}

bool RunningProgram::FileDialogIsOpen(const QString& title) {
    const SeenScreen screen = Look();
    const SeenWindow* window = screen.Window(title);
    const bool active = window != nullptr && window->Active;
    return UnderWine() ? !active && ActiveTitle() == title : active && window->Has(FileNameBox);
}

void RunningProgram::ChooseFile(const QString& title, const QString& path) {
    AwaitFileDialog(*this, title);
    if (UnderWine()) { // it opens with the keyboard in the box for the name
        PressKey(QStringLiteral("ctrl+a"));
        TypeText(path);
    } else {
        Enter(title, FileNameBox, Quoted(path));
    }
    PressKey(QStringLiteral("Return"));
}

void RunningProgram::CancelFileDialog(const QString& title) {
    AwaitFileDialog(*this, title);
    PressKey(QStringLiteral("Escape"));
}

void RunningProgram::TakePicture(const QString& title, const QString& file) {
    SavePicture(AwaitWindow(title).Place, file);
}

int RunningProgram::AwaitEnd() {
    process.closeWriteChannel();
    if (!process.waitForFinished(Patience)) {
        Fail(QStringLiteral("The program does not end"));
    }
    if (process.exitStatus() != QProcess::NormalExit) {
        Fail(QStringLiteral("The program crashed"));
    }
    return process.exitCode();
}
