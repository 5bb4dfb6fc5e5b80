/// Compares the program's start, until its menu is painted, with that of a bare window of as many plain widgets:
/// benchmark_start FOLDER-OF-BENCHMARKS PROGRAM-FOLDER. Ends with 1 when a limit is passed.

#include "benchmarks/Measuring.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <cstdio>
#include <stdexcept>

namespace {

constexpr double MostTime = 1.20;
constexpr double MostMemory = 1.25;
constexpr double NanosecondsInMillisecond = 1e6;

struct Start {
    double Milliseconds = 0;
    double Megabytes = 0;
    int Widgets = 0;
};

/// Starts a program and waits until it says that it is painted.
Start Measure(const QString& program, const QString& argument) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer clock;
    clock.start();
    process.start(program, {argument});
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead()) {
            throw std::runtime_error("No window came of " + program.toStdString());
        }
    }
    const double elapsed = static_cast<double>(clock.nsecsElapsed()) / NanosecondsInMillisecond;
    const QList<QByteArray> said = process.readLine().trimmed().split(' ');
    process.waitForFinished();
    return {elapsed, said.at(2).toDouble() / 1024, said.at(1).toInt()};
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const QString menu = folder + QStringLiteral("/benchmark_menu");
    const QString plain = folder + QStringLiteral("/benchmark_plain");
    const QString programFolder = QString::fromLocal8Bit(argv[2]);
    const int widgets = Measure(menu, programFolder).Widgets; // this first pair warms the disk's cache, too
    Measure(plain, QString::number(widgets));
    std::vector<double> menuTimes;
    std::vector<double> menuMemory;
    std::vector<double> plainTimes;
    std::vector<double> plainMemory;
    for (int round = 0; round < Rounds; ++round) {
        const Start ours = Measure(menu, programFolder);
        const Start bare = Measure(plain, QString::number(widgets));
        menuTimes.push_back(ours.Milliseconds);
        menuMemory.push_back(ours.Megabytes);
        plainTimes.push_back(bare.Milliseconds);
        plainMemory.push_back(bare.Megabytes);
    }
    std::printf("%d widgets, median of %d starts\n", widgets, Rounds);
    const bool fast = ReportRatio(QStringLiteral("Start until the menu is painted"), QStringLiteral("ms"),
                                  Median(menuTimes), Median(plainTimes), MostTime);
    const bool small = ReportRatio(QStringLiteral("Peak memory at that moment"), QStringLiteral("MB"),
                                   Median(menuMemory), Median(plainMemory), MostMemory);
    return fast && small ? 0 : 1;
}
