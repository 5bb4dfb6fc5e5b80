#include "tests/support/FaultyCalls.h"
#include "tests/support/PrintText.h"
#include "tests/trust/SaveScene.h"

#include <cerrno>
#include <cstdio>
#include <gtest/gtest.h>
#include <set>

// Every save of every kind of file in every place, with each of its calls to the system failing with each error: once,
// and from then on.

namespace {

using Repeat = FaultyCalls::Repeat;

constexpr int ShortWrite = 0; // stands among the errors

struct Fault {
    int Error;
    const char* Name;
    std::set<int> Numbers; // that a message may show for it
};

// 71 is what any error of the drive's own folder is told as; a name that is gone is a file (53) or a folder (76).
const Fault Faults[] = {
    {ENOSPC, "ENOSPC", {61, 71}},     {EDQUOT, "EDQUOT", {61, 71}}, {EIO, "EIO", {57, 71}},
    {EACCES, "EACCES", {70, 71}},     {EPERM, "EPERM", {70, 71}},   {EROFS, "EROFS", {70, 71}},
    {ENOENT, "ENOENT", {53, 71, 76}}, {EBUSY, "EBUSY", {70, 71}},   {EMFILE, "EMFILE", {67, 71}},
    {EINTR, "EINTR", {71, 75}},       {ShortWrite, "short", {}},
};

struct Counts {
    int Combinations = 0;
    int LineEnds = 0; // combinations that ended with empty lines behind a text
    int Leftovers = 0;
};

class FaultMatrix : public testing::TestWithParam<const char*> {
protected:
    Counts counts;

    void TryEveryCall(Place place, Content content);

private:
    FaultyCalls calls;
    std::unique_ptr<SaveScene> scene;
    std::string where;
    bool worksUnharmed = false;

    bool IsTold(const QString& path, const std::set<int>& numbers) const;
    void CheckMessages(const Fault& fault) const;
    void CheckFiles(Repeat repeat);
    void Try(int call, const Fault& fault, Repeat repeat);
};

SystemError ErrorOfNumber(int number) {
    return MakeError(static_cast<ErrorNumber>(number));
}

bool Same(const Message& one, const Message& other) {
    return one.Title == other.Title && one.Text == other.Text && one.Icon == other.Icon && one.Buttons == other.Buttons;
}

bool FaultMatrix::IsTold(const QString& path, const std::set<int>& numbers) const {
    const auto& messages = scene->Disk.Screen.Messages;
    return std::any_of(messages.begin(), messages.end(), [&](const Message& message) {
        return std::any_of(numbers.begin(), numbers.end(), [&](int number) {
            return Same(message, scene->Kind->Complaint(path, ErrorOfNumber(number)));
        });
    });
}

// A message for each file that is not new, each of them one that the fault may bring, and none when all is done.
void FaultMatrix::CheckMessages(const Fault& fault) const {
    std::set<int> numbers = fault.Numbers;
    if (!worksUnharmed) {
        numbers.insert(70); // the place refuses the save by itself
    }
    std::size_t told = 0;
    bool ended = false;
    for (const QString& path : scene->Kind->Paths()) {
        const bool complaint = IsTold(path, numbers);
        told += complaint ? 1 : 0;
        EXPECT_TRUE(scene->IsNew(path) || complaint || ended) << where << ": nobody tells of " << path.toStdString();
        ended = ended || (complaint && scene->Kind->StopsAtFailure());
    }
    const auto& messages = scene->Disk.Screen.Messages;
    EXPECT_EQ(messages.size(), told) << where << ": " << (messages.empty() ? "" : messages[0].Title.toStdString());
}

void FaultMatrix::CheckFiles(Repeat repeat) {
    EXPECT_FALSE(scene->AnyTorn()) << where;
    EXPECT_EQ(scene->Losses(), "") << where;
    if (scene->AnyLineEnds()) {
        ++counts.LineEnds;
        EXPECT_TRUE(scene->Surrounding == Place::ReadOnlyFolder && repeat == Repeat::Onwards) << where;
    }
    const QString strays = scene->Strays();
    if (strays.isEmpty()) {
        return;
    }
    ++counts.Leftovers;
    EXPECT_TRUE(calls.HasFailed(FaultyCalls::Kind::Remove)) << where << ": " << strays.toStdString();
    calls = FaultyCalls();
    scene->Save();
    EXPECT_EQ(scene->Strays(), QString()) << where;
    EXPECT_EQ(scene->AllNew(), worksUnharmed) << where;
}

void FaultMatrix::Try(int call, const Fault& fault, Repeat repeat) {
    calls = FaultyCalls();
    scene->SetUp();
    calls = FaultyCalls();
    if (fault.Error == ShortWrite) {
        calls.ShortenCall(call, repeat);
    } else {
        calls.FailCall(call, fault.Error, repeat);
    }
    scene->Save();
    ++counts.Combinations;
    where = std::string(GetParam()) + ", " + Describe(scene->Surrounding, scene->Held) + ", call " +
            std::to_string(call) + ", " + fault.Name + (repeat == Repeat::Once ? " once" : " from then on");
    EXPECT_EQ(calls.OpenHandles, 0) << where;
    const bool harmless = fault.Error == ShortWrite || (fault.Error == EINTR && repeat == Repeat::Once);
    EXPECT_TRUE(!harmless || !worksUnharmed || scene->Disk.Screen.Messages.empty()) << where;
    CheckMessages(fault);
    CheckFiles(repeat);
}

void FaultMatrix::TryEveryCall(Place place, Content content) {
    calls = FaultyCalls();
    scene = std::make_unique<SaveScene>(calls, GetParam(), place, content);
    scene->SetUp();
    calls = FaultyCalls();
    scene->Save();
    const std::vector<FaultyCalls::Kind> made = calls.Made;
    worksUnharmed = scene->Disk.Screen.Messages.empty();
    for (const QString& path : scene->Kind->Paths()) {
        if (worksUnharmed) {
            EXPECT_EQ(scene->Bytes(path), scene->Kind->Saved(path, content)) << GetParam() << Describe(place, content);
        }
    }
    const bool refused = place == Place::ReadOnlyFile || (place == Place::ReadOnlyFolder && scene->Kind->KeepsCopies());
    EXPECT_EQ(worksUnharmed, !refused) << GetParam() << Describe(place, content);
    for (int call = 1; call <= static_cast<int>(made.size()); ++call) {
        const bool isWrite = made[static_cast<std::size_t>(call) - 1] == FaultyCalls::Kind::Write;
        for (const Fault& fault : Faults) {
            if (fault.Error != ShortWrite || isWrite) {
                Try(call, fault, Repeat::Once);
                Try(call, fault, Repeat::Onwards);
            }
        }
    }
    calls = FaultyCalls();
    scene.reset();
}

TEST_P(FaultMatrix, LeavesEveryFileWhollyOldOrWhollyNew) {
    for (const Place place : AllPlaces) {
        TryEveryCall(place, Content::Larger);
        if (place != Place::NewFile) {
            TryEveryCall(place, Content::Smaller);
        }
    }
    std::printf("%s: %d combinations; %d with empty lines behind a file in a read-only folder after everything failed; "
                "%d with a temporary file that could not be removed, and the next save removed it\n",
                GetParam(), counts.Combinations, counts.LineEnds, counts.Leftovers);
    EXPECT_GE(counts.Combinations, 1000);
}

INSTANTIATE_TEST_SUITE_P(Kinds, FaultMatrix, testing::ValuesIn(AllKinds),
                         [](const auto& kind) { return std::string(kind.param); });

} // namespace
