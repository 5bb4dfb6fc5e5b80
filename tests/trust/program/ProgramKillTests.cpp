#include "tests/e2e/InstalledProgram.h"
#include "tests/trust/WatchingReader.h"
#include "tests/trust/program/ToggledProgram.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <csignal>
#include <cstdio>
#include <gtest/gtest.h>

// The real program is killed at random moments while its lock is pressed, each press a save of both files.

namespace {

constexpr int Parts = 4;          // of the rounds, for machines that can work on several at once
constexpr int Rounds = 2000;      // copies of the running program that are killed, in all parts
constexpr int WholePrograms = 10; // programs that are started, pressed and killed themselves, in each part
constexpr int LongestLife = 2500; // microseconds, several saves long

// Starts of a process are dear, so most rounds kill copies that the running program makes of itself.
class ProgramKills : public testing::TestWithParam<int> {
protected:
    ProgramKills() {
        UseMemoryFolders();
        installed = std::make_unique<InstalledProgram>(EnglishNames());
        unlocked = Golden(QStringLiteral("english-unlocked.cfg"));
        locked = Golden(QStringLiteral("english-locked.cfg"));
        for (const QString& name : names) {
            installed->Write(name, unlocked);
        }
    }

    std::string Executable() const {
        return (installed->Folder() + QLatin1Char('/') + installed->Edition.Executable).toStdString();
    }
    NativePath PathOf(const QString& name) const {
        return NativePath((installed->Folder() + QLatin1Char('/') + name).toStdU16String());
    }
    bool BothAreWhole() const {
        return std::all_of(names.begin(), names.end(), [this](const QString& name) {
            const QByteArray bytes = installed->Read(name);
            return bytes == locked || bytes == unlocked;
        });
    }
    /// Files besides program, manual and the two.
    int Leftovers() const { return static_cast<int>(installed->Files().size()) - 4; }
    /// Lets a last program save until the leftovers of all the others are gone.
    bool IsTidiedUp() const {
        ToggledProgram program(Executable(), home.path().toStdString());
        program.Toggle();
        QElapsedTimer clock;
        clock.start();
        while (Leftovers() > 0 && clock.elapsed() < 30'000) {
        }
        return Leftovers() == 0 || clock.elapsed() < 30'000;
    }

    // Before anything else: starting processes needs it.
    char programName[6] = "kills";
    char* arguments[2] = {programName, nullptr};
    int count = 1;
    QCoreApplication application{count, arguments};
    const QStringList names = {QStringLiteral("GW_v11_PRG.CFG"), QStringLiteral("GW_v12_PRG.CFG")};
    QTemporaryDir home;
    std::unique_ptr<InstalledProgram> installed;
    QByteArray locked;
    QByteArray unlocked;
};

TEST_P(ProgramKills, NeverLeaveOrShowAPartOfAFile) {
    const WatchingReader reader({{PathOf(names[0]), {locked, unlocked}}, {PathOf(names[1]), {locked, unlocked}}});
    const int rounds = (KillsAskedFor(Rounds) + Parts - 1) / Parts;
    int middles = 0;
    {
        ToggledProgram program(Executable(), home.path().toStdString());
        for (int round = 0; round < rounds; ++round) {
            const pid_t copy = program.Copy();
            SleepRandomly(LongestLife);
            ASSERT_EQ(kill(copy, SIGKILL), 0);
            program.AwaitEnd(copy);
            ASSERT_TRUE(BothAreWhole()) << round;
            middles += Leftovers() > 0 ? 1 : 0;
        }
    }
    for (int round = 0; round < WholePrograms; ++round) {
        ToggledProgram program(Executable(), home.path().toStdString());
        program.Toggle();
        SleepRandomly(LongestLife);
        program.Kill();
        ASSERT_TRUE(BothAreWhole()) << round;
        middles += Leftovers() > 0 ? 1 : 0;
    }
    EXPECT_TRUE(IsTidiedUp()) << "temporary files of killed programs stay";
    EXPECT_EQ(reader.Partial(), 0) << reader.FirstPartial();
    EXPECT_GT(reader.Reads(), 0);
    EXPECT_GT(middles, 0) << "no kill met a save";
    std::printf("%d kills, %d in the middle of a save; %ld reads meanwhile, all whole\n", rounds + WholePrograms,
                middles, reader.Reads());
}

INSTANTIATE_TEST_SUITE_P(Quarters, ProgramKills, testing::Range(1, Parts + 1));

} // namespace
