#include "platform/BackgroundWork.h"

#include <QMutex>
#include <atomic>
#include <gtest/gtest.h>
#include <thread>

namespace {

constexpr int LongWait = 10'000; // milliseconds; only broken work needs it

TEST(BackgroundWorkTest, DoesItsWorkInAThreadOfItsOwn) {
    const auto thread = std::make_shared<std::thread::id>();
    const BackgroundWork work([thread] { *thread = std::this_thread::get_id(); });
    ASSERT_TRUE(work.Wait(LongWait));
    EXPECT_NE(std::thread::id(), *thread);
    EXPECT_NE(std::this_thread::get_id(), *thread);
    EXPECT_TRUE(work.Wait(0));
}

TEST(BackgroundWorkTest, GivesUpWhatItOwnedBeforeItTells) {
    const auto owned = std::make_shared<int>();
    const BackgroundWork work([owned] {});
    ASSERT_TRUE(work.Wait(LongWait));
    EXPECT_EQ(1, owned.use_count());
}

TEST(BackgroundWorkTest, LeavesWorkThatHangsToItself) {
    const auto gate = std::make_shared<QMutex>();
    const auto done = std::make_shared<bool>(false);
    {
        const QMutexLocker closed(gate.get());
        const BackgroundWork work([gate, done] {
            const QMutexLocker passed(gate.get());
            *done = true;
        });
        EXPECT_FALSE(work.Wait(0));
        EXPECT_FALSE(work.Wait(1));
    }
    AwaitBackgroundWork();
    EXPECT_TRUE(*done);
}

// The ends of threads meet the starts of others at every possible moment.
TEST(BackgroundWorkTest, LosesNoWorkHoweverShort) {
    constexpr int Times = 2000;
    const auto done = std::make_shared<std::atomic<int>>(0);
    for (int time = 1; time <= Times; ++time) {
        const BackgroundWork unwatched([done] { ++*done; });
        const BackgroundWork work([done] { ++*done; });
        ASSERT_TRUE(work.Wait(LongWait)) << time;
    }
    AwaitBackgroundWork();
    EXPECT_EQ(2 * Times, *done);
}

TEST(BackgroundWorkTest, WaitsForNothingWhenNothingGoesOn) {
    AwaitBackgroundWork();
}

} // namespace
