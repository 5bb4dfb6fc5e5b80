#include "platform/BackgroundWork.h"

#include <gtest/gtest.h>
#include <mutex>
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
    const auto gate = std::make_shared<std::mutex>();
    const auto done = std::make_shared<bool>(false);
    {
        const std::lock_guard closed(*gate);
        const BackgroundWork work([gate, done] {
            const std::lock_guard passed(*gate);
            *done = true;
        });
        EXPECT_FALSE(work.Wait(0));
        EXPECT_FALSE(work.Wait(1));
    }
    AwaitBackgroundWork();
    EXPECT_TRUE(*done);
}

TEST(BackgroundWorkTest, WaitsForNothingWhenNothingGoesOn) {
    AwaitBackgroundWork();
}

} // namespace
