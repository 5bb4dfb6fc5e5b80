#include "platform/SystemCalls.h"

#include <QTemporaryDir>
#include <algorithm>
#include <cerrno>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace {

class RealCalls : public testing::Test {
protected:
    QTemporaryDir directory;
    SystemCalls& calls = RealSystemCalls();

    NativePath Inside(const std::string& name) const { return NativePath(directory.path().toStdString()) / name; }
};

TEST_F(RealCalls, ReadALinkWhateverItsLength) {
    for (const std::size_t length : {1U, 255U, 256U, 257U, 1000U}) {
        const NativePath link = Inside("link" + std::to_string(length));
        std::filesystem::create_symlink(std::string(length, 'x'), link);
        NativePath target;
        EXPECT_EQ(0, calls.ReadLink(link, target));
        EXPECT_EQ(std::string(length, 'x'), target.native());
    }
}

TEST_F(RealCalls, ListWhatAFolderHoldsAndNotTheFolderItself) {
    std::ofstream(Inside("one")).close();
    std::ofstream(Inside(".two")).close();
    std::vector<NativePath> names;
    EXPECT_EQ(0, calls.ListNames(Inside(""), names));
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<NativePath>{".two", "one"}));
}

TEST_F(RealCalls, LeaveNoFolderOpen) {
    const auto lowestFree = [this] {
        const int handle = calls.OpenForWriting(Inside("file"));
        calls.Close(handle);
        return handle;
    };
    std::ofstream(Inside("file")).close();
    const int before = lowestFree();
    std::vector<NativePath> names;
    EXPECT_EQ(0, calls.SyncFolder(Inside("")));
    EXPECT_EQ(0, calls.ListNames(Inside(""), names));
    EXPECT_EQ(before, lowestFree());
}

TEST_F(RealCalls, TellWhatIsNotThere) {
    NativePath target = "kept";
    EXPECT_EQ(-ENOENT, calls.ReadLink(Inside("none"), target));
    EXPECT_EQ("kept", target.native());
    EXPECT_EQ(-EINVAL, calls.ReadLink(Inside(""), target)) << "a folder is no link";
    EXPECT_EQ(-ENOENT, calls.SyncFolder(Inside("none")));
    EXPECT_EQ(0, calls.SyncFolder(Inside("")));
    std::vector<NativePath> names;
    EXPECT_EQ(-ENOENT, calls.ListNames(Inside("none"), names));
}

} // namespace
