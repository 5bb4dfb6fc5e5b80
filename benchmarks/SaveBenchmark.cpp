/// Compares the save of both configuration files, and their reading at the start, with the bare system calls that a
/// safe save of two files and the read of one need: benchmark_save FOLDER. The folder holds both files. Ends with 1
/// when the limit is passed.

#include "app/CFG_2015.h"
#include "benchmarks/Measuring.h"
#include "platform/ProgramDrives.h"
#include "platform/qt/QtDesktop.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr double MostTime = 1.5;
constexpr double MostReadTime = 5;
constexpr int Reads = 100; // a single one is too short for the clock
constexpr double NanosecondsInMillisecond = 1e6;
constexpr unsigned UsualMode = 0644;

/// A call that must not fail here: its result.
template <typename Result>
Result Sure(Result result) {
    if (result < 0) {
        std::fprintf(stderr, "A system call failed with %d\n", int(-result));
        std::exit(1);
    }
    return result;
}

/// New file beside the target, write, sync, mode, close, read back, move over the target, sync the folder.
void SaveBare(SystemCalls& calls, const NativePath& target, const QByteArray& bytes) {
    const NativePath temporary = target.parent_path() / "bare.tmp";
    int handle = Sure(calls.CreateExclusive(temporary, UsualMode));
    Sure(calls.Write(handle, bytes.constData(), bytes.size()));
    Sure(calls.SetMode(handle, UsualMode));
    Sure(calls.Sync(handle));
    Sure(calls.Close(handle));
    QByteArray written(bytes.size() + 1, '\0');
    handle = Sure(calls.OpenForReading(temporary));
    Sure(calls.Read(handle, written.data(), written.size()));
    Sure(calls.Close(handle));
    Sure(calls.Replace(temporary, target));
    Sure(calls.SyncFolder(target.parent_path()));
}

/// Looks for the older file, reads it and takes its lines apart, as plainly as Qt can: the number of items.
qsizetype ReadBare(const QString& file) {
    QFile plain(file);
    if (!QFile::exists(file) || !plain.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "Cannot read %s\n", qPrintable(file));
        std::exit(1);
    }
    qsizetype items = 0;
    for (const QString& line : QString::fromLatin1(plain.readAll()).split(QLatin1Char('\n'))) {
        items += line.trimmed().split(QLatin1Char(',')).size();
    }
    return items;
}

template <typename Action>
double Milliseconds(const Action& action) {
    QElapsedTimer clock;
    clock.start();
    action();
    return static_cast<double>(clock.nsecsElapsed()) / NanosecondsInMillisecond;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    SystemCalls& calls = RealSystemCalls();
    const NativePath folder(argv[1]);
    ProgramDrives drives = OpenProgramDrives(calls, folder);
    QtDesktop desktop(std::move(drives.TheVolumes), calls);
    InstallDesktop(&desktop);
    SetProductTexts(Edition::English);
    SetTitleLine(TheDesktop().Now().date().year());
    ProgramFolder = drives.ProgramFolder;
    SetDefaultSettings();
    LocateProgramConfig();
    const QByteArray bytes = WriteConfigText(ProgramConfig, TitleLine);

    const QString older = QString::fromLocal8Bit(argv[1]) + QStringLiteral("/GW_v11_PRG.CFG");
    qsizetype items = 0; // of all plain reads, so that none is left out
    std::vector<double> ourReads;
    std::vector<double> bareReads;
    std::vector<double> ours;
    std::vector<double> bare;
    for (int round = 0; round < Rounds; ++round) {
        ourReads.push_back(Milliseconds([] {
            for (int read = 0; read < Reads; ++read) {
                LocateProgramConfig();
            }
        }));
        bareReads.push_back(Milliseconds([&] {
            for (int read = 0; read < Reads; ++read) {
                items += ReadBare(older);
            }
        }));
        ours.push_back(Milliseconds([] { SaveProgramConfig(); }));
        bare.push_back(Milliseconds([&] {
            SaveBare(calls, folder / "bare11.cfg", bytes);
            SaveBare(calls, folder / "bare12.cfg", bytes);
        }));
    }
    const bool saves = ReportRatio(QStringLiteral("Save of both configuration files"), QStringLiteral("ms"),
                                   Median(ours), Median(bare), MostTime);
    const bool reads = ReportRatio(QStringLiteral("100 reads of the configuration"), QStringLiteral("ms"),
                                   Median(ourReads), Median(bareReads), MostReadTime);
    return saves && reads && items > 0 ? 0 : 1;
}
