#include "platform/Files.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Text.h"

#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>
#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace {

using Kind = FaultyCalls::Kind;

constexpr auto ReadOnly =
    std::filesystem::perms::owner_read | std::filesystem::perms::group_read | std::filesystem::perms::others_read;

// A file, a folder and, where a test can make them, a pipe and links to each, and the number that reading each of them
// gives.
struct Place {
    Place() {
        Folder.Write(Text("c:\\Marks\\Full.cfg"), QByteArray("a\0\r\n\xFF", 5));
        Folder.Write(Text("c:\\Marks\\Empty.cfg"), "");
        Folder.MakeFolder(Text("c:\\Marks\\Below"));
#ifndef _WIN32
        const NativePath marks = Folder.Native(Text("c:\\Marks"));
        EXPECT_EQ(mkfifo((marks / "pipe").c_str(), 0600), 0);
        std::filesystem::create_symlink("Full.cfg", marks / "link");
        std::filesystem::create_symlink("gone", marks / "dangling");
        std::filesystem::create_symlink("Below", marks / "folderlink");
        std::filesystem::create_symlink("circle", marks / "circle");
#endif
    }
    TestFolder Folder;
};

const struct {
    const char* Path;
    int Number;
} Lookups[] = {
    {"c:\\Marks\\Full.cfg", 0},
    {"c:\\marks\\full.CFG", 0},
    {"c:\\marks\\empty.cfg", 0},
    {"c:\\marks\\gone.cfg", 53},
    {"c:\\gone\\full.cfg", 76},
    {"c:\\marks\\below", 75},
    {"c:\\marks", 75},
    {"c:\\", 75},
    {"d:\\full.cfg", 68},
    {"", 52},
    {"full.cfg", 52},
    {"c:\\marks\\full.cfg\\x", 76},
#ifndef _WIN32
    {"c:\\marks\\link", 0},
    {"c:\\marks\\folderlink", 75},
    {"c:\\marks\\pipe", 75},
    {"c:\\marks\\dangling", 53},
    {"c:\\marks\\circle", 52},
#endif
};

} // namespace

TEST(Files, ReadsAWholeFileOrTellsWhyNot) {
    const Place place;
    for (const auto& row : Lookups) {
        EXPECT_EQ(ReadWholeFile(Text(row.Path)).Error.Number, row.Number) << row.Path;
        EXPECT_EQ(FileExists(Text(row.Path)), row.Number == 0) << row.Path;
        EXPECT_EQ(FileOpens(Text(row.Path)), row.Number == 0) << row.Path;
    }
    EXPECT_EQ(ReadWholeFile(Text("c:\\marks\\full.cfg")).Bytes, QByteArray("a\0\r\n\xFF", 5));
    EXPECT_EQ(ReadWholeFile(Text("c:\\marks\\empty.cfg")).Bytes, QByteArray());
}

TEST(Files, DeletesAFileOrTellsWhyNot) {
    for (const auto& row : Lookups) {
        Place place;
        EXPECT_EQ(DeleteWholeFile(Text(row.Path)).Number, row.Number) << row.Path;
        EXPECT_FALSE(row.Number == 0 && FileExists(Text(row.Path))) << row.Path;
        EXPECT_TRUE(place.Folder.Exists(Text("c:\\Marks\\Below"))) << row.Path;
    }
}

#ifndef _WIN32
TEST(Files, ReadsThroughALink) {
    const Place place;
    EXPECT_EQ(ReadWholeFile(Text("c:\\marks\\link")).Bytes, QByteArray("a\0\r\n\xFF", 5));
}

TEST(Files, DeletingALinkKeepsTheFileThatItNames) {
    Place place;
    EXPECT_FALSE(DeleteWholeFile(Text("c:\\marks\\link")));
    EXPECT_TRUE(place.Folder.Exists(Text("c:\\Marks\\Full.cfg")));
}
#endif

TEST(Files, AReadOnlyFileIsNeitherSavedNorDeleted) {
    Place place;
    const NativePath file = place.Folder.Native(Text("c:\\Marks\\Full.cfg"));
    std::filesystem::permissions(file, ReadOnly);
    EXPECT_EQ(DeleteWholeFile(Text("c:\\marks\\full.cfg")).Number, 70);
    EXPECT_EQ(SaveWholeFile(Text("c:\\marks\\full.cfg"), "new").Number, 70);
    EXPECT_EQ(place.Folder.Read(Text("c:\\Marks\\Full.cfg")), QByteArray("a\0\r\n\xFF", 5));
    std::filesystem::permissions(file, ReadOnly | std::filesystem::perms::owner_write); // to be tidied up
}

TEST(Files, SavesUnderTheNameThatTheDiskHas) {
    Place place;
    const QStringList names = place.Folder.Names(Text("c:\\Marks"));
    EXPECT_FALSE(SaveWholeFile(Text("c:\\MARKS\\FULL.CFG"), "new"));
    EXPECT_EQ(place.Folder.Read(Text("c:\\Marks\\Full.cfg")), "new");
    EXPECT_EQ(place.Folder.Names(Text("c:\\Marks")), names);
    EXPECT_FALSE(SaveWholeFile(Text("c:\\marks\\New.cfg"), "newer"));
    EXPECT_EQ(place.Folder.Read(Text("c:\\Marks\\New.cfg")), "newer");
}

TEST(Files, ASaveTellsWhyNot) {
    const Place place;
    const struct {
        const char* Path;
        int Number;
    } cases[] = {{"c:\\gone\\x.cfg", 76},
                 {"c:\\marks\\below", 75},
                 {"d:\\x.cfg", 68},
                 {"", 52},
                 {"c:\\marks\\full.cfg\\x", 76},
                 {"c:\\", 75}};
    for (const auto& row : cases) {
        EXPECT_EQ(SaveWholeFile(Text(row.Path), "new").Number, row.Number) << row.Path;
    }
}

TEST(Files, AReadThatFailsMidwayGivesNoBytes) {
    FaultyCalls calls;
    TestFolder folder(calls);
    const QByteArray bytes = QByteArray("0123456789").repeated(20000);
    folder.Write(Text("c:\\x.cfg"), bytes);
    calls.MostBytesARead = 1000;
    EXPECT_EQ(ReadWholeFile(Text("c:\\x.cfg")).Bytes, bytes);
    calls.FailFirst(Kind::Read, EINTR, 5);
    EXPECT_EQ(ReadWholeFile(Text("c:\\x.cfg")).Bytes, bytes);
    int reads = 0;
    calls.Before = [&](Kind kind) {
        reads += kind == Kind::Read ? 1 : 0;
        if (reads == 10) {
            calls.FailAll(Kind::Read, EIO);
        }
    };
    const FileContents broken = ReadWholeFile(Text("c:\\x.cfg"));
    EXPECT_EQ(broken.Error.Number, 57);
    EXPECT_TRUE(broken.Bytes.isEmpty());
    EXPECT_EQ(calls.OpenHandles, 0);
}

TEST(Files, TellsTheErrorsOfTheSystem) {
    const struct {
        int Error;
        int Number;
    } cases[] = {{EACCES, 70}, {EPERM, 70}, {EMFILE, 67}, {ENOENT, 53}, {EIO, 57}, {ENXIO, 68}};
    for (const auto& row : cases) {
        FaultyCalls calls;
        TestFolder folder(calls);
        folder.Write(Text("c:\\x.cfg"), "x");
        calls.FailAll(Kind::OpenForReading, row.Error);
        calls.FailAll(Kind::Remove, row.Error);
        EXPECT_EQ(ReadWholeFile(Text("c:\\x.cfg")).Error.Number, row.Number) << row.Error;
        EXPECT_EQ(DeleteWholeFile(Text("c:\\x.cfg")).Number, row.Number) << row.Error;
        EXPECT_FALSE(FileOpens(Text("c:\\x.cfg"))) << row.Error;
        EXPECT_TRUE(FileExists(Text("c:\\x.cfg"))) << row.Error;
    }
}

TEST(Files, AreNotTakenForMissingBecauseOfOneWrongAnswer) {
    for (int call = 1; call <= 8; ++call) {
        FaultyCalls calls;
        TestFolder folder(calls);
        folder.Write(Text("c:\\marks\\x.cfg"), "x");
        calls.FailCall(call, ENOENT);
        const FileContents read = ReadWholeFile(Text("c:\\marks\\x.cfg"));
        EXPECT_TRUE(read.Error.Number == 0 ? read.Bytes == "x" : read.Error.Number != 53) << call;
        calls.FailCall(calls.Count() + call, ENOENT);
        EXPECT_NE(LookForFile(Text("c:\\marks\\x.cfg")), FilePresence::Missing) << call;
    }
}
