/// Compares the save of both configuration files, and their reading at the start, with the bare system calls that a
/// safe save of two files and the read of one need: benchmark_save FOLDER. The folder holds both files. Ends with 1
/// when the limit is passed.

#include "app/CFG_2015.h"
#include "benchmarks/Measuring.h"
#include "platform/ProgramDrives.h"
#include "platform/qt/QtDesktop.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr double MostTime = 1.5;
constexpr double MostReadTime = 12;
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

/// Looks for the older file, opens it, reads to its end, closes it.
void ReadBare(SystemCalls& calls, const NativePath& file) {
    SystemCalls::FileStatus status;
    Sure(calls.Status(file, status));
    QByteArray bytes(status.Size + 1, '\0');
    const int handle = Sure(calls.OpenForReading(file));
    std::int64_t read = 0;
    while (const std::int64_t more = Sure(calls.Read(handle, bytes.data() + read, bytes.size() - read))) {
        read += more;
    }
    Sure(calls.Close(handle));
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
    const QGuiApplication application(argc, argv);
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
                ReadBare(calls, folder / "GW_v11_PRG.CFG");
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
    return saves && reads ? 0 : 1;
}
