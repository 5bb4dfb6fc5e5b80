#include "platform/SystemCalls.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// The number under which the system calls know a process of this machine.
std::int64_t NumberOf(pid_t process) {
    return RealSystemCalls().ProcessNumber() - std::int64_t{getpid()} + std::int64_t{process};
}

TEST(ProcessIsAlive, TellsRunningProcessesFromEndedOnes) {
    EXPECT_TRUE(RealSystemCalls().ProcessIsAlive(NumberOf(getpid())));
    EXPECT_TRUE(RealSystemCalls().ProcessIsAlive(NumberOf(1))) << "also one that only an administrator may signal";

    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        pause();
        _exit(0);
    }
    EXPECT_TRUE(RealSystemCalls().ProcessIsAlive(NumberOf(child)));
    ASSERT_EQ(kill(child, SIGKILL), 0);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    EXPECT_FALSE(RealSystemCalls().ProcessIsAlive(NumberOf(child)));
    EXPECT_FALSE(RealSystemCalls().ProcessIsAlive(NumberOf(0)));
}

TEST(ProcessIsAlive, CannotBeDeniedOfAnotherMachine) {
    const std::int64_t otherMachine = RealSystemCalls().ProcessNumber() ^ (std::int64_t{1} << 40);
    EXPECT_TRUE(RealSystemCalls().ProcessIsAlive(otherMachine));
}

} // namespace
