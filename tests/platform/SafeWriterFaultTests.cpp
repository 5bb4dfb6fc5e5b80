#include "platform/SafeWriter.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/TestFolder.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>

// Every call of every kind of save fails once with every error, and from then on.

namespace {

using Kind = FaultyCalls::Kind;
using Repeat = FaultyCalls::Repeat;

const QString Target = QStringLiteral("c:\\place\\GW_v12_PRG.CFG");

struct Save {
    const char* Name;
    bool IsNew;
    QByteArray Old;
    QByteArray New;
    bool FolderRefuses;
    bool ThroughLink;
};

#ifdef EDQUOT
constexpr int QuotaReached = EDQUOT;
#else
constexpr int QuotaReached = ENOSPC;
#endif

const QByteArray Short = "the short one\r\n";
const QByteArray Long = QByteArray("the long one, line for line\r\n").repeated(40);

const Save Saves[] = {
    {"a new file", true, {}, Long, false, false},
    {"a new empty file", true, {}, {}, false, false},
    {"a longer file over a shorter", false, Short, Long, false, false},
    {"a shorter file over a longer", false, Long, Short, false, false},
    {"an empty file over a full one", false, Long, {}, false, false},
    {"longer, in place", false, Short, Long, true, false},
    {"shorter, in place", false, Long, Short, true, false},
    {"as long, in place", false, Long, QByteArray(Long.size(), 'x'), true, false},
#ifndef _WIN32
    {"through a symbolic link", false, Short, Long, false, true},
    {"a new file that a symbolic link names", true, {}, Long, false, true},
    {"in place through a symbolic link", false, Short, Long, true, true},
#endif
};

const int Errors[] = {ENOSPC, QuotaReached, EIO, EACCES, EPERM, EROFS, ENOENT, EBUSY, EMFILE, EINTR, ENOTSUP};

class Scene {
public:
    explicit Scene(const Save& saveToDo) : save(saveToDo) {
        Folder.MakeFolder(QStringLiteral("c:\\place"));
        if (!save.IsNew) {
            Folder.Write(Target, save.Old);
        }
        Path = Folder.Native(Target);
        if (save.ThroughLink) {
            Path = Folder.Native(QStringLiteral("c:\\link.cfg"));
            std::filesystem::create_symlink("place/GW_v12_PRG.CFG", Path);
        }
        if (save.FolderRefuses) {
            Calls.FailAll(Kind::CreateExclusive, EACCES);
        }
    }

    bool IsOld() const { return save.IsNew ? !Folder.Exists(Target) : Folder.Exists(Target) && Bytes() == save.Old; }
    bool IsNew() const { return Folder.Exists(Target) && Bytes() == save.New; }
    // The old or the new file with line ends behind it, as a file written in place is between two calls.
    bool HasLineEnds() const {
        const auto ends = [this](const QByteArray& whole) {
            return Bytes().startsWith(whole) && Bytes().mid(whole.size()).trimmed().isEmpty();
        };
        return save.FolderRefuses && (ends(save.Old) || ends(save.New));
    }
    bool LinkStands() const { return !save.ThroughLink || std::filesystem::is_symlink(Path); }
    bool IsAlone() const { return Folder.Names(QStringLiteral("c:\\place")).size() <= (Folder.Exists(Target) ? 1 : 0); }

    TestFolder Folder;
    FaultyCalls Calls;
    NativePath Path;

private:
    const Save& save;

    QByteArray Bytes() const { return Folder.Read(Target); }
};

int CallsOf(const Save& save) {
    Scene scene(save);
    EXPECT_FALSE(SafeSave(scene.Calls, scene.Path, save.New)) << save.Name;
    EXPECT_TRUE(scene.IsNew() && scene.IsAlone() && scene.LinkStands()) << save.Name;
    EXPECT_EQ(scene.Calls.OpenHandles, 0) << save.Name;
    return scene.Calls.Count();
}

void CheckFault(const Save& save, int call, int error, Repeat repeat) {
    Scene scene(save);
    scene.Calls.FailCall(call, error, repeat);
    const SystemError result = SafeSave(scene.Calls, scene.Path, save.New);
    const std::string place = std::string(save.Name) + ", call " + std::to_string(call) + ", error " +
                              std::to_string(error) + (repeat == Repeat::Once ? "" : " from then on");
    const bool stays = repeat == Repeat::Onwards; // nothing can be put back any more
    EXPECT_TRUE(scene.IsOld() || scene.IsNew() || (stays && scene.HasLineEnds())) << place;
    EXPECT_TRUE(scene.LinkStands()) << place;
    EXPECT_EQ(scene.Calls.OpenHandles, 0) << place;
    EXPECT_TRUE(scene.IsAlone() || scene.Calls.HasFailed(Kind::Remove)) << place;
    if (result) {
        EXPECT_FALSE(result.Description.isEmpty()) << place;
        const bool written = scene.Calls.HasFailed(Kind::SyncFolder) || (save.FolderRefuses && stays);
        EXPECT_TRUE(!scene.IsNew() || written) << place;
    } else {
        EXPECT_TRUE(scene.IsNew()) << place;
    }
    if (error == EINTR && repeat == Repeat::Once) {
        EXPECT_FALSE(result) << place;
    }
    FaultyCalls healthy;
    EXPECT_FALSE(SafeSave(healthy, scene.Path, save.New)) << place;
    EXPECT_TRUE(scene.IsNew() && scene.IsAlone() && scene.LinkStands()) << place;
}

} // namespace

TEST(SafeWriterFaults, EveryCallFailsOnceWithEveryError) {
    for (const Save& save : Saves) {
        const int calls = CallsOf(save);
        ASSERT_GT(calls, 5) << save.Name;
        for (int call = 1; call <= calls; ++call) {
            for (const int error : Errors) {
                CheckFault(save, call, error, Repeat::Once);
            }
        }
    }
}

TEST(SafeWriterFaults, EveryCallFailsFromSomeMomentOn) {
    for (const Save& save : Saves) {
        const int calls = CallsOf(save);
        for (int call = 1; call <= calls; ++call) {
            for (const int error : {ENOSPC, EIO, EACCES, EINTR, ENOENT}) {
                CheckFault(save, call, error, Repeat::Onwards);
            }
        }
    }
}

TEST(SafeWriterFaults, ADiskThatFillsUpWhileAFileGrowsInPlaceLeavesItsText) {
    const Save save{"longer, in place", false, Short, Long, true, false};
    Scene healthy(save);
    EXPECT_FALSE(SafeSave(healthy.Calls, healthy.Path, save.New));
    const std::vector<Kind>& made = healthy.Calls.Made;
    const int firstWrite = static_cast<int>(std::find(made.begin(), made.end(), Kind::Write) - made.begin()) + 1;
    Scene scene(save);
    scene.Calls.ShortenCall(firstWrite);
    scene.Calls.FailCall(firstWrite + 1, ENOSPC, Repeat::Onwards);
    EXPECT_EQ(SafeSave(scene.Calls, scene.Path, save.New).Number, 61);
    EXPECT_TRUE(scene.IsOld() || scene.HasLineEnds());
}

TEST(SafeWriterFaults, AKillAtAnyCallLeavesOldOrNewAndTheNextSaveTidiesUp) {
    for (const Save& save : Saves) {
        const int calls = CallsOf(save);
        for (int call = 1; call <= calls; ++call) {
            Scene scene(save);
            scene.Calls.Number = 4711;
            scene.Calls.KillAt(call);
            bool killed = false;
            try {
                SafeSave(scene.Calls, scene.Path, save.New);
            } catch (const FaultyCalls::Killed&) {
                killed = true;
            }
            EXPECT_TRUE(killed || call == calls) << save.Name << call; // in place the last call is a close
            EXPECT_TRUE(scene.IsOld() || scene.IsNew() || scene.HasLineEnds())
                << save.Name << ", killed at call " << call;
            FaultyCalls next;
            next.Number = 4712;
            next.AliveRuns = [](std::int64_t number) { return number == 4712; };
            EXPECT_FALSE(SafeSave(next, scene.Path, save.New)) << save.Name << call;
            EXPECT_TRUE(scene.IsNew() && scene.IsAlone()) << save.Name << ", killed at call " << call;
        }
    }
}

TEST(SafeWriterFaults, ShortWritesAndReadsAreGoneOnWith) {
    for (const Save& save : Saves) {
        for (const int most : {1, 7, 100}) {
            Scene scene(save);
            scene.Calls.MostBytesAWrite = most;
            scene.Calls.MostBytesARead = most;
            EXPECT_FALSE(SafeSave(scene.Calls, scene.Path, save.New)) << save.Name;
            EXPECT_TRUE(scene.IsNew() && scene.IsAlone()) << save.Name;
        }
    }
}

TEST(SafeWriterFaults, AShortWriteThenAFullDiskLeavesTheOldFile) {
    for (const Save& save : Saves) {
        if (save.New.isEmpty()) {
            continue;
        }
        Scene scene(save);
        scene.Calls.MostBytesAWrite = 5;
        int writes = 0;
        scene.Calls.Before = [&](Kind kind) {
            writes += kind == Kind::Write ? 1 : 0;
            if (writes == 3) {
                writes = 1000; // the disk is full until something is cut off or removed
                scene.Calls.FailFirst(Kind::Write, ENOSPC, 1);
            }
        };
        EXPECT_EQ(SafeSave(scene.Calls, scene.Path, save.New).Number, 61) << save.Name;
        EXPECT_TRUE(scene.IsOld() && scene.IsAlone()) << save.Name;
    }
}

TEST(SafeWriterFaults, AWriteThatTakesNothingEndsAsADeviceError) {
    for (const Save& save : Saves) {
        if (save.New.isEmpty()) {
            continue;
        }
        Scene scene(save);
        scene.Calls.WritesTakeNothing = true;
        EXPECT_EQ(SafeSave(scene.Calls, scene.Path, save.New).Number, 57) << save.Name;
        EXPECT_TRUE(scene.IsOld() && scene.IsAlone()) << save.Name;
    }
}

TEST(SafeWriterFaults, BytesThatComeBackOtherwiseAreADeviceError) {
    for (const Save& save : Saves) {
        if (save.New.isEmpty() || save.FolderRefuses) {
            continue;
        }
        Scene scene(save);
        scene.Calls.SpoilsWrites = true;
        EXPECT_EQ(SafeSave(scene.Calls, scene.Path, save.New).Number, 57) << save.Name;
        EXPECT_TRUE(scene.IsOld() && scene.IsAlone()) << save.Name;
    }
}

TEST(SafeWriterFaults, EachStepTellsItsErrorByNumber) {
    const struct {
        Kind Failing;
        int Error;
        int Number;
    } cases[] = {
        {Kind::CreateExclusive, ENOSPC, 61},
        {Kind::CreateExclusive, QuotaReached, 61},
        {Kind::CreateExclusive, EMFILE, 67},
        {Kind::CreateExclusive, ENOENT, 76},
        {Kind::CreateExclusive, EIO, 57},
        {Kind::CreateExclusive, ENAMETOOLONG, 52},
        {Kind::Write, ENOSPC, 61},
        {Kind::Write, QuotaReached, 61},
        {Kind::Write, EIO, 57},
        {Kind::Write, EFBIG, 61},
        {Kind::Write, EINTR, 75},
        {Kind::Sync, EIO, 57},
        {Kind::Sync, ENOSPC, 61},
        {Kind::Sync, EINVAL, 52},
        {Kind::Close, EIO, 57},
        {Kind::Close, QuotaReached, 61},
        {Kind::Read, EIO, 57},
        {Kind::OpenForReading, EMFILE, 67},
        {Kind::OpenForWriting, EACCES, 70},
        {Kind::OpenForWriting, EROFS, 70},
        {Kind::OpenForWriting, EPERM, 70},
        {Kind::OpenForWriting, EMFILE, 67},
        {Kind::Replace, EBUSY, 70},
        {Kind::Replace, EACCES, 70},
        {Kind::Replace, ENOSPC, 61},
        {Kind::Replace, ENOENT, 76},
        {Kind::Replace, EXDEV, 75},
        {Kind::Status, EACCES, 70},
        {Kind::Status, ENOTDIR, 76},
        {Kind::Status, ENAMETOOLONG, 52},
    };
    for (const auto& row : cases) {
        Scene scene(Saves[2]);
        scene.Calls.FailAll(row.Failing, row.Error);
        EXPECT_EQ(SafeSave(scene.Calls, scene.Path, Long).Number, row.Number)
            << static_cast<int>(row.Failing) << " " << row.Error;
        EXPECT_TRUE(scene.IsOld() && scene.IsAlone()) << static_cast<int>(row.Failing) << " " << row.Error;
    }
}

TEST(SafeWriterFaults, AFolderThatCannotBeSyncedIsNoFailureButABrokenDeviceIs) {
    const struct {
        int Error;
        int Number;
    } cases[] = {{EINVAL, 0}, {ENOTSUP, 0}, {EOPNOTSUPP, 0}, {ENOSYS, 0},  {EACCES, 0},
                 {EPERM, 0},  {EIO, 57},    {ENOSPC, 61},    {EMFILE, 67}, {EINTR, 75}};
    for (const auto& row : cases) {
        Scene scene(Saves[2]);
        scene.Calls.FailAll(Kind::SyncFolder, row.Error);
        EXPECT_EQ(SafeSave(scene.Calls, scene.Path, Long).Number, row.Number) << row.Error;
        EXPECT_TRUE(scene.IsNew() && scene.IsAlone()) << row.Error;
    }
}

TEST(SafeWriterFaults, AMoveThatHappenedAndReportsAFailureIsASuccess) {
    for (const int error : {EIO, ENOENT, EPERM}) {
        Scene scene(Saves[2]);
        scene.Calls.FailAfterwards(Kind::Replace, error);
        EXPECT_FALSE(SafeSave(scene.Calls, scene.Path, Long)) << error;
        EXPECT_TRUE(scene.IsNew() && scene.IsAlone()) << error;
    }
}

TEST(SafeWriterFaults, ATemporaryFileIsClosedBeforeItIsRemoved) { // as Windows wants it
    Scene scene(Saves[2]);
    scene.Calls.FailAll(Kind::Write, EIO);
    int removed = 0;
    scene.Calls.Before = [&](Kind kind) {
        if (kind == Kind::Remove) {
            ++removed;
            EXPECT_EQ(scene.Calls.OpenHandles, 0);
        }
    };
    EXPECT_TRUE(SafeSave(scene.Calls, scene.Path, Saves[2].New));
    EXPECT_EQ(removed, 1);
    EXPECT_TRUE(scene.IsOld() && scene.IsAlone());
}

TEST(SafeWriterFaults, AFolderThatRefusesTheMoveOnlyIsWrittenInPlace) {
    Scene scene(Saves[2]);
    scene.Calls.FailAll(Kind::Replace, EPERM);
    EXPECT_FALSE(SafeSave(scene.Calls, scene.Path, Long));
    EXPECT_TRUE(scene.IsNew() && scene.IsAlone());
}

TEST(SafeWriterFaults, InterruptionsAreBoundedEverywhere) {
    for (const Save& save : Saves) {
        Scene scene(save);
        scene.Calls.FailCall(1, EINTR, Repeat::Onwards);
        EXPECT_TRUE(SafeSave(scene.Calls, scene.Path, save.New)) << save.Name;
        EXPECT_TRUE(scene.IsOld()) << save.Name;
        EXPECT_LT(scene.Calls.Count(), 1000) << save.Name;
    }
}

TEST(SafeWriterFaults, AFileThatAnotherProgramHoldsIsTriedForTwoSeconds) {
    const struct {
        int Times; // how often the move meets the other program
        int Waited;
        int Number;
    } cases[] = {{0, 0, 0}, {1, 50, 0}, {39, 1950, 0}, {40, 2000, 0}, {41, 2000, 70}, {-1, 2000, 70}};
    for (const auto& row : cases) {
        Scene scene(Saves[2]);
        scene.Calls.FailAll(Kind::OpenForWriting, EBUSY);
        scene.Calls.FailFirst(Kind::Replace, EBUSY, row.Times);
        EXPECT_EQ(SafeSave(scene.Calls, scene.Path, Long).Number, row.Number) << row.Times;
        EXPECT_EQ(scene.Calls.Waited, row.Waited) << row.Times;
        EXPECT_TRUE((row.Number == 0 ? scene.IsNew() : scene.IsOld()) && scene.IsAlone()) << row.Times;
    }
}

TEST(SafeWriterFaults, WritingInPlaceWaitsForAnotherProgramToo) {
    Scene held(Saves[2]);
    held.Calls.FailAll(Kind::CreateExclusive, EACCES);
    held.Calls.FailAll(Kind::OpenForWriting, EBUSY);
    EXPECT_EQ(SafeSave(held.Calls, held.Path, Long).Number, 70);
    EXPECT_TRUE(held.IsOld());
    EXPECT_EQ(held.Calls.Waited, 2000);
    Scene freed(Saves[2]);
    freed.Calls.FailAll(Kind::CreateExclusive, EACCES);
    freed.Calls.FailFirst(Kind::OpenForWriting, EBUSY, 3);
    EXPECT_FALSE(SafeSave(freed.Calls, freed.Path, Long));
    EXPECT_TRUE(freed.IsNew());
}
