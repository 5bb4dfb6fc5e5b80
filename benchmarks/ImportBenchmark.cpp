/// Opens a student data file of 1,000,000 records in the import setup window: benchmark_import FOLDER. The file is made
/// in the folder. Compares opening and counting with `wc -l` on the same cached file, and prints the slowest record and
/// the memory. Ends with 1 when a limit is passed.

#include "app/CFG_2015.h"
#include "benchmarks/Measuring.h"
#include "import/frmImport_SU.h"
#include "platform/ProgramDrives.h"
#include "platform/qt/QtDesktop.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <cstdio>
#include <limits>
#include <random>

namespace {

constexpr int Records = 1'000'000;
constexpr int RecordSize = 120;
constexpr double MostTime = 1.5;
constexpr double MostMilliseconds = 5;
constexpr double MostMegabytes = 16;
constexpr int Tries = 3;
constexpr double NanosecondsInMillisecond = 1e6;
constexpr double KilobytesInMegabyte = 1024;

/// The desktop of the program, whose file dialog always answers with one file.
class AnsweringDesktop : public QtDesktop {
public:
    using QtDesktop::QtDesktop;
    QString FileName;
    FileDialogAnswer AskForFile(const FileDialog& /*dialog*/) override { return {FileName, {}}; }
};

void MakeFile(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("Cannot write %s", qPrintable(name));
    }
    for (int number = 1; number <= Records; ++number) {
        QByteArray record = QByteArray::number(number) + "\tSmith\tJohn\t1999/03/07\tM\t9A\t416-555-0100\t";
        record += QByteArray(RecordSize - 2 - record.size(), 'x') + "\r\n";
        file.write(record);
    }
}

template <typename Action>
double Milliseconds(const Action& action) {
    QElapsedTimer clock;
    clock.start();
    action();
    return static_cast<double>(clock.nsecsElapsed()) / NanosecondsInMillisecond;
}

bool ReportMost(const char* name, const char* unit, double figure, double most) {
    std::printf("%-34s %9.2f %s (at most %.2f)%s\n", name, figure, unit, most, figure <= most ? "" : "  TOO MUCH");
    return figure <= most;
}

/// From now on PeakMemory() tells the most memory held since this moment.
void ForgetPeakMemory() {
    QFile references(QStringLiteral("/proc/self/clear_refs"));
    if (references.open(QIODevice::WriteOnly)) {
        references.write("5");
    }
}

void CountByTool(const QString& file) {
    QProcess tool;
    tool.start(QStringLiteral("wc"), {QStringLiteral("-l"), file});
    if (!tool.waitForFinished(-1) || !tool.readAllStandardOutput().startsWith(QByteArray::number(Records))) {
        qFatal("wc -l does not count the records");
    }
}

/// The slowest of many steps to a record anywhere and to its neighbour, from the key or click to the painted grid. Of
/// each step the fastest of three tries counts: in the others another program may have had its turn.
double SlowestRecord(frmImport_SU& window) {
    std::mt19937 random(1);
    double slowest = 0;
    const auto measure = [&](const std::function<void()>& step) {
        double fastest = std::numeric_limits<double>::max();
        for (int attempt = 0; attempt < Tries; ++attempt) {
            fastest = std::min(fastest, Milliseconds([&] {
                                   step();
                                   window.preview->grdImport->viewport()->repaint();
                               }));
        }
        slowest = std::max(slowest, fastest);
    };
    for (int round = 0; round < 300; ++round) {
        measure([&] { window.GoToRecord(1 + static_cast<std::int64_t>(random()) % Records); });
        measure([&] { window.preview->spnRecords->Next->click(); });
    }
    measure([&] { window.GoToRecord(Records); });
    measure([&] { window.preview->spnRecords->Previous->click(); });
    return slowest;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2) {
        qFatal("Usage: benchmark_import FOLDER");
    }
    const NativePath folder(argv[1]);
    const QString file = QString::fromLocal8Bit(argv[1]) + QStringLiteral("/students.txt");
    MakeFile(file);
    ProgramDrives drives = OpenProgramDrives(RealSystemCalls(), folder);
    AnsweringDesktop desktop(std::move(drives.TheVolumes), RealSystemCalls());
    InstallDesktop(&desktop);
    desktop.FileName = desktop.TheVolumes().FromNative(NativePath(file.toStdU16String())).Path;
    SetProductTexts(Edition::English);
    SetDefaultSettings();

    frmImport_SU window;
    ProgramConfig.ImportStudentsFile = desktop.FileName;
    CountByTool(file); // the file is cached from here on
    window.show();
    ForgetPeakMemory();
    const long before = PeakMemory();
    QApplication::processEvents();
    const double memory = static_cast<double>(PeakMemory() - before) / KilobytesInMegabyte;

    std::vector<double> ours;
    std::vector<double> bare;
    for (int round = 0; round < Rounds; ++round) {
        ours.push_back(Milliseconds([&] { window.cmdOpen->click(); }));
        bare.push_back(Milliseconds([&] { CountByTool(file); }));
    }
    bool kept = ReportRatio(QStringLiteral("Opening 1,000,000 records"), QStringLiteral("ms"), Median(ours),
                            Median(bare), MostTime);
    kept = ReportMost("Slowest record of the file", "ms", SlowestRecord(window), MostMilliseconds) && kept;
    kept = ReportMost("Memory for the opened file", "MB", memory, MostMegabytes) && kept;
    QFile::remove(file);
    return kept ? 0 : 1;
}
