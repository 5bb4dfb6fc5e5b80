#include "platform/qt/StartedPrograms.h"

#include <QElapsedTimer>
#include <QProcess>
#include <utility>
#ifndef Q_OS_WIN
#include <unistd.h>
#endif

#ifdef Q_OS_WIN

bool StartWatched(const HelperCommand& command, std::function<void()>) {
    QProcess process;
    process.setProgram(command.Program);
    process.setNativeArguments(command.Line);
    return process.startDetached();
}

#else

namespace {

constexpr qint64 AtOnce = 10'000; // milliseconds; later, a viewer that crashed is no matter of this program

} // namespace

bool StartWatched(const HelperCommand& command, std::function<void()> whenFailed) {
    auto* process = new QProcess; // of nobody, and gone when the command ends: its destructor would end the command
    process->setProgram(command.Program);
    process->setArguments(command.Arguments);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setChildProcessModifier([] { setsid(); }); // what ends this program's terminal does not end it
    QElapsedTimer clock;
    clock.start();
    QObject::connect(process, &QProcess::finished, process,
                     [process, clock, whenFailed = std::move(whenFailed)](int code, QProcess::ExitStatus status) {
                         process->deleteLater();
                         if (whenFailed && (code != 0 || status != QProcess::NormalExit) && clock.elapsed() < AtOnce) {
                             whenFailed();
                         }
                     });
    process->start();
    if (process->waitForStarted()) {
        return true;
    }
    delete process;
    return false;
}

#endif
