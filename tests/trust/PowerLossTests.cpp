#include "tests/trust/DiskModel.h"
#include "tests/trust/SaveScene.h"

#include <cstdio>
#include <gtest/gtest.h>

// The calls of a save are recorded. Then the power is cut before the first, between each two and after the last, and
// everything is looked at that the disk may hold then.

namespace {

using Found = DiskModel::Found;
using Kind = DiskOperation::Kind;
using State = SaveScene::State;

class PowerLoss : public testing::TestWithParam<const char*> {
protected:
    int cuts = 0;
    int states = 0;

    void CutEverywhere(Place place, Content content, int mostBytesAWrite);

private:
    std::string where;

    void Check(const SaveScene& scene, const DiskModel& disk, bool saved);
    void CheckCopy(const SaveScene& scene, const DiskModel& disk, const QString& path);
};

bool MayStand(const SaveScene& scene, const QString& path, const Found& found) {
    if (!found) {
        return scene.Surrounding == Place::NewFile;
    }
    const State state = scene.StateOf(path, *found);
    const bool inPlace = scene.Surrounding == Place::ReadOnlyFolder;
    return state == State::Old || state == State::New || (inPlace && state != State::Torn);
}

// A damaged file that may be gone must have a copy that cannot be.
void PowerLoss::CheckCopy(const SaveScene& scene, const DiskModel& disk, const QString& path) {
    const std::set<Found> onlyOld = {Found(scene.Before(path))};
    if (disk.Possible(scene.PlaceOf(path)) != onlyOld) {
        const NativePath copy = scene.Disk.Native(path + QStringLiteral(".damaged-20160307-093000"));
        EXPECT_EQ(disk.Possible(copy), onlyOld) << where;
    }
}

void PowerLoss::Check(const SaveScene& scene, const DiskModel& disk, bool saved) {
    ++cuts;
    for (const QString& path : scene.Kind->Paths()) {
        const std::set<Found> possible = disk.Possible(scene.PlaceOf(path));
        states += static_cast<int>(possible.size());
        for (const Found& found : possible) {
            EXPECT_TRUE(MayStand(scene, path, found))
                << where << ": " << path.toStdString() << " holds " << (found ? found->toStdString() : "no file");
        }
        if (saved) {
            EXPECT_EQ(possible, std::set<Found>{scene.Kind->Saved(path, scene.Held)}) << where;
        }
        if (scene.Kind->KeepsCopies() && scene.Surrounding != Place::NewFile) {
            CheckCopy(scene, disk, path);
        }
    }
}

void PowerLoss::CutEverywhere(Place place, Content content, int mostBytesAWrite) {
    RecordingCalls calls;
    SaveScene scene(calls, GetParam(), place, content);
    scene.SetUp();
    calls.Operations.clear();
    calls.MostBytesAWrite = mostBytesAWrite;
    scene.Save();
    ASSERT_TRUE(scene.AllNew() && scene.Disk.Screen.Messages.empty()) << Describe(place, content);
    const bool inPlace = place == Place::ReadOnlyFolder;
    DiskModel disk(inPlace ? DiskModel::Writes::Whole : DiskModel::Writes::Torn);
    for (const QString& path : scene.Kind->Paths()) {
        if (place != Place::NewFile) {
            disk.Put(scene.PlaceOf(path), scene.Before(path));
        }
    }
    std::size_t done = 0;
    for (const DiskOperation& operation : calls.Operations) {
        where = std::string(GetParam()) + ", " + Describe(place, content) + ", after " + std::to_string(done) + " of " +
                std::to_string(calls.Operations.size()) + " changes";
        Check(scene, disk, false);
        disk.Do(operation);
        ++done;
    }
    where = std::string(GetParam()) + ", " + Describe(place, content) + ", after the save";
    Check(scene, disk, true);
}

TEST_P(PowerLoss, LeavesTheOldOrTheNewFileAndAfterSuccessTheNew) {
    const bool keepsCopies = std::string(GetParam()).starts_with("Damaged");
    for (const Content content : {Content::Larger, Content::Smaller}) {
        for (const int most : {0, 500}) {
            CutEverywhere(Place::NewFile, content, most);
            CutEverywhere(Place::Replaced, content, most);
            CutEverywhere(Place::ThroughLink, content, most);
        }
        if (!keepsCopies) { // there is no room for the copy, so the save refuses
            CutEverywhere(Place::ReadOnlyFolder, content, 0);
        }
    }
    std::printf("%s: the power cut at %d places, %d states of a file\n", GetParam(), cuts, states);
}

INSTANTIATE_TEST_SUITE_P(Kinds, PowerLoss, testing::ValuesIn(AllKinds),
                         [](const auto& kind) { return std::string(kind.param); });

// The model itself: it finds what careless saves lose.

const NativePath Target = "/d/x.cfg";
const NativePath Temporary = "/d/.x.tmp";

DiskModel ModelAfter(const std::vector<DiskOperation>& operations) {
    DiskModel disk(DiskModel::Writes::Torn);
    disk.Put(Target, "old!");
    for (const DiskOperation& operation : operations) {
        disk.Do(operation);
    }
    return disk;
}

const DiskOperation Created{Kind::Create, Temporary, {}, 1};
const DiskOperation Filled{Kind::Write, {}, {}, 1, 0, "newer"};
const DiskOperation Synced{Kind::SyncFile, {}, {}, 1};
const DiskOperation Moved{Kind::Replace, Temporary, Target};
const DiskOperation FolderSynced{Kind::SyncFolder, "/d"};
const QByteArray Zeros(5, '\0');

TEST(DiskModel, AMoveBeforeTheSyncMayLeaveAnEmptyFile) {
    EXPECT_EQ(ModelAfter({Created, Filled, Moved}).Possible(Target),
              (std::set<Found>{"old!", "", "ne", Zeros, "newer"}));
    EXPECT_EQ(ModelAfter({Created, Filled, Moved, FolderSynced}).Possible(Target),
              (std::set<Found>{"", "ne", Zeros, "newer"}));
}

TEST(DiskModel, AMoveWithoutTheFoldersSyncMayBeUndone) {
    EXPECT_EQ(ModelAfter({Created, Filled, Synced, Moved}).Possible(Target), (std::set<Found>{"old!", "newer"}));
    EXPECT_EQ(ModelAfter({Created, Filled, Synced, Moved, FolderSynced}).Possible(Target), (std::set<Found>{"newer"}));
}

TEST(DiskModel, ARemovedTargetMayBeGone) {
    EXPECT_TRUE(
        ModelAfter({Created, Filled, Synced, {Kind::Remove, Target}, Moved}).Possible(Target).contains(Found()));
}

TEST(DiskModel, WritesInPlaceMayTearAndChangePlaces) {
    const DiskOperation open{Kind::Open, Target, {}, 1};
    const DiskOperation cut{Kind::Truncate, {}, {}, 1, 2};
    const auto possible = ModelAfter({open, Filled, cut}).Possible(Target);
    EXPECT_TRUE(possible.contains(Found("ne"))) << "done";
    EXPECT_TRUE(possible.contains(Found("ol"))) << "only cut";
    EXPECT_TRUE(possible.contains(Found("newer"))) << "not cut, or cut before the write";
    EXPECT_TRUE(possible.contains(Found("ned!"))) << "half written";
    EXPECT_EQ(ModelAfter({open, Filled, Synced, cut, Synced}).Possible(Target), (std::set<Found>{"ne"}));
}

} // namespace
