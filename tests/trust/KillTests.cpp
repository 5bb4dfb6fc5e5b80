#include "tests/trust/SaveScene.h"
#include "tests/trust/WatchingReader.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

// A child of the test saves and is killed at a random moment, over and over.

namespace {

using State = SaveScene::State;

constexpr int Rounds = 150;
constexpr int LongestLife = 2000; // microseconds, several saves long
constexpr int OneSave = 800;      // about as long as one

// A child of the test that is killed a random time after it said that it is about to save.
class SavingChild {
public:
    /// `work` is given what it says that with.
    explicit SavingChild(const std::function<void(const std::function<void()>& tell)>& work) {
        std::array<int, 2> ends = {};
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        process = fork();
        if (process == 0) {
            EndWithParent();
            work([&] { EXPECT_EQ(write(ends[1], "!", 1), 1); });
            _exit(0);
        }
        close(ends[1]);
        char told = 0;
        EXPECT_EQ(read(ends[0], &told, 1), 1);
        close(ends[0]);
    }

    void KillWithin(int mostMicroseconds) const {
        SleepRandomly(mostMicroseconds);
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }

private:
    pid_t process = 0;
};

class Kills : public testing::TestWithParam<const char*> {
protected:
    Kills() { UseMemoryFolders(); }

    int rounds = KillsAskedFor(Rounds);
    int leftovers = 0; // rounds that ended with a temporary file, so in the middle of a save
};

class DamagedKills : public Kills {};

// Two windows on the same files, holding a longer and a shorter text, save in turn.
TEST_P(Kills, NeverLeaveOrShowAPartOfAFile) {
    SaveScene scene(RealSystemCalls(), GetParam(), Place::Replaced, Content::Larger);
    const auto other = MakeKind(GetParam(), scene.Disk);
    other->Hold(Content::Smaller);
    scene.SetUp();
    std::vector<WatchingReader::Watched> watched;
    for (const QString& path : scene.Kind->Paths()) {
        watched.push_back({scene.PlaceOf(path), {scene.Before(path), scene.Kind->Saved(path, Content::Larger)}});
    }
    const WatchingReader reader(watched);
    for (int round = 0; round < rounds; ++round) {
        const SavingChild child([&](const auto& tell) {
            tell();
            for (;;) {
                for (SavedKind* kind : {scene.Kind.get(), other.get()}) {
                    kind->ReadFiles();
                    kind->Save();
                }
            }
        });
        child.KillWithin(LongestLife);
        for (const QString& path : scene.Kind->Paths()) {
            const State state = scene.StateOf(path);
            ASSERT_TRUE(state == State::Old || state == State::New) << round << ": " << path.toStdString();
        }
        leftovers += scene.Strays().isEmpty() ? 0 : 1;
    }
    scene.Kind->ReadFiles();
    scene.Save();
    EXPECT_TRUE(scene.AllNew());
    EXPECT_EQ(scene.Strays(), QString()) << "the next save tidies up";
    EXPECT_EQ(reader.Partial(), 0) << reader.FirstPartial();
    EXPECT_GT(reader.Reads(), 0);
    std::printf("%s: %d kills, %d in the middle of a save; %ld reads meanwhile, all whole\n", GetParam(), rounds,
                leftovers, reader.Reads());
}

void KillOneSave(SaveScene& scene, int& middles, int rounds) {
    for (int round = 0; round < rounds; ++round) {
        scene.SetUp();
        const SavingChild child([&](const auto& tell) {
            tell();
            scene.Save();
        });
        child.KillWithin(OneSave);
        ASSERT_FALSE(scene.AnyTorn()) << round;
        ASSERT_EQ(scene.Losses(), "") << round;
        middles += scene.Strays().isEmpty() && !scene.AnyLineEnds() ? 0 : 1;
    }
    scene.Save();
}

TEST_P(DamagedKills, KeepADamagedFileOrItsCopy) {
    SaveScene scene(RealSystemCalls(), GetParam(), Place::Replaced, Content::Larger);
    KillOneSave(scene, leftovers, rounds);
    EXPECT_TRUE(scene.AllNew());
    std::printf("%s: %d kills, %d in the middle of a save\n", GetParam(), rounds, leftovers);
}

TEST_P(Kills, InPlaceLeaveNothingWorseThanEmptyLines) {
    for (const Content content : {Content::Larger, Content::Smaller}) {
        SaveScene scene(RealSystemCalls(), GetParam(), Place::ReadOnlyFolder, content);
        KillOneSave(scene, leftovers, rounds / 2);
    }
    std::printf("%s in a read-only folder: %d kills, %d left empty lines\n", GetParam(), rounds, leftovers);
}

INSTANTIATE_TEST_SUITE_P(Kinds, Kills, testing::ValuesIn(PlainKinds),
                         [](const auto& kind) { return std::string(kind.param); });
INSTANTIATE_TEST_SUITE_P(Kinds, DamagedKills, testing::ValuesIn(DamagedKinds),
                         [](const auto& kind) { return std::string(kind.param); });

} // namespace
