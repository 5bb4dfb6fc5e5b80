#include "platform/MappedVolumes.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Text.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using Kind = FaultyCalls::Kind;

// Drives that only text work is asked of.
MappedVolumes Table() {
    return MappedVolumes(RealSystemCalls(), {{u'c', "/"},
                                             {u'g', "/srv/gradebook"},
                                             {u'h', "/srv/gradebook/2016/"},
                                             {u'X', "/srv/./old/../../mnt/x"},
                                             {u'z', "/srv/gradebook"}});
}

} // namespace

TEST(MappedVolumes, DrivesStandInTheOrderOfTheirLetters) {
    EXPECT_EQ(Table().Drives(), (QStringList{Text("c:"), Text("g:"), Text("h:"), Text("x:"), Text("z:")}));
    EXPECT_EQ(MappedVolumes(RealSystemCalls(), {}).Drives(), QStringList());
}

TEST(MappedVolumes, AFolderGetsTheDriveWithTheLongestFolderAroundIt) {
    const MappedVolumes volumes = Table();
    const struct {
        const char* Native;
        const char* Expected;
    } cases[] = {
        {"/", "c:\\"},
        {"/home/anna/Marks", "c:\\home\\anna\\Marks"},
        {"/srv", "c:\\srv"},
        {"/srv/gradebook", "g:\\"},
        {"/srv/gradebook/", "g:\\"},
        {"/srv/gradebook/marks", "g:\\marks"},
        {"/srv/gradebook2/marks", "c:\\srv\\gradebook2\\marks"},
        {"/srv/gradebook/2016", "h:\\"},
        {"/srv/gradebook/2016/a", "h:\\a"},
        {"/srv/gradebook/2016a", "g:\\2016a"},
        {"/srv/gradebook/./marks//b", "g:\\marks\\b"},
        {"/srv/gradebook/marks/..", "g:\\"},
        {"/srv/gradebook/..", "c:\\srv"},
        {"/../..", "c:\\"},
        {"/srv/Gradebook/marks", "c:\\srv\\Gradebook\\marks"},
        {"/mnt/x/y", "x:\\y"},
        {"/srv/gradebook/\xC3\x89l\xC3\xA8ves \xE2\x82\xAC/x.cfg", "g:\\\xC3\x89l\xC3\xA8ves \xE2\x82\xAC\\x.cfg"},
        {"/srv/gradebook/a, b's #1 (c)", "g:\\a, b's #1 (c)"},
    };
    for (const auto& row : cases) {
        const Volumes::ProgramResult result = volumes.FromNative(row.Native);
        EXPECT_FALSE(result.Error) << row.Native;
        EXPECT_EQ(result.Path, Text(row.Expected)) << row.Native << " " << result.Path.toStdString();
    }
}

TEST(MappedVolumes, RefusesFoldersThatThePathsOfTheProgramCannotName) {
    const MappedVolumes volumes(RealSystemCalls(), {{u'g', "/srv/gradebook"}});
    const struct {
        const char* Native;
        int Number;
    } cases[] = {
        {"/", 68},
        {"/srv", 68},
        {"/srv/gradebooks", 68},
        {"srv/gradebook", 68},
        {"", 68},
        {"/srv/gradebook/\xCE\xB1\xCE\xB2", 52},
        {"/srv/gradebook/\xF0\x9F\x98\x80", 52},
        {"/srv/gradebook/e\xCC\x81/x", 52},
        {"/srv/gradebook/a\\b", 52},
        {"/srv/gradebook/a\"b", 52},
        {"/srv/gradebook/a\nb", 52},
        {"/srv/gradebook/a\tb/c", 52},
        {"/srv/gradebook/a /c", 52},
        {"/srv/gradebook/\xE9t\xE9", 52},
    };
    for (const auto& row : cases) {
        const Volumes::ProgramResult result = volumes.FromNative(row.Native);
        EXPECT_EQ(result.Error.Number, row.Number) << row.Native;
        EXPECT_TRUE(result.Path.isEmpty()) << row.Native;
    }
}

TEST(MappedVolumes, LooksNamesUpExactlyAndThenWithoutCase) {
    TestFolder folder;
    for (const char* path : {"c:\\Marks\\2016", "c:\\marks\\other", "c:\\BOTH", "c:\\Both", "c:\\\xC3\x89l\xC3\xA8ves",
                             "c:\\Stra\xC3\x9F"
                             "e",
                             "c:\\Plain\\Deep\\Deeper"}) {
        folder.MakeFolder(Text(path));
    }
    folder.Write(Text("c:\\Plain\\File.Txt"), "x");
    const struct {
        const char* Path;
        const char* Expected;
    } cases[] = {
        {"c:\\Marks\\2016", "c:\\Marks\\2016"},
        {"c:\\marks\\other", "c:\\marks\\other"},
        {"c:\\MARKS\\2016", "c:\\Marks\\2016"},
        {"c:\\both", "c:\\BOTH"},
        {"c:\\Both", "c:\\Both"},
        {"C:\\plain\\deep\\DEEPER", "c:\\Plain\\Deep\\Deeper"},
        {"c:\\plain\\file.txt", "c:\\Plain\\File.Txt"},
        {"c:\\\xC3\xA9l\xC3\xA8ves", "c:\\\xC3\x89l\xC3\xA8ves"},
        {"c:\\STRA\xC3\x9F"
         "E",
         "c:\\Stra\xC3\x9F"
         "e"},
        {"c:\\strasse", "c:\\strasse"},
        {"c:\\plain\\new.cfg", "c:\\Plain\\new.cfg"},
        {"c:\\plain\\deep\\", "c:\\Plain\\Deep"},
        {"c:\\plain\\\\deep", "c:\\Plain\\Deep"},
        {"c:\\plain\\.\\deep\\..\\file.txt", "c:\\Plain\\File.Txt"},
        {"c:\\..\\plain", "c:\\Plain"},
        {"  c:\\plain ", "c:\\Plain"},
        {"c:\\", "c:\\"},
        {"c:", "c:\\"},
        {"c:plain", "c:\\Plain"},
    };
    for (const auto& row : cases) {
        const Volumes::NativeResult result = folder.Drives.ToNative(Text(row.Path));
        EXPECT_FALSE(result.Error) << row.Path;
        const QString back = folder.Drives.FromNative(result.Path).Path;
        EXPECT_EQ(back, Text(row.Expected)) << row.Path << " gave " << back.toStdString();
    }
}

TEST(MappedVolumes, TellsWhyAPathLeadsNowhere) {
    TestFolder folder;
    folder.Write(Text("c:\\file"), "x");
    const struct {
        const char* Path;
        int Number;
    } cases[] = {
        {"d:\\x", 68},       {"d:", 68},        {"", 52},     {"   ", 52},     {"x.cfg", 52},
        {"\\x.cfg", 52},     {"\\\\pc\\s", 52}, {"1:\\", 52}, {"c:\\a/b", 76}, {"c:\\gone\\x", 76},
        {"c:\\file\\x", 76}, {"c:\\x", 0},      {"c:/x", 0},  {"c:\\file", 0}, {"c:\\gone\\a\\b", 76},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(folder.Drives.ToNative(Text(row.Path)).Error.Number, row.Number) << row.Path;
    }
    const QString withNul = Text("c:\\a") + QChar(u'\0') + Text("b");
    EXPECT_EQ(folder.Drives.ToNative(withNul).Error.Number, 52);
    const QString longName = Text("c:\\") + QString(300, u'n') + Text("\\x");
    EXPECT_EQ(folder.Drives.ToNative(longName).Error.Number, 52);
}

TEST(MappedVolumes, AForwardSlashSeparatesToo) {
    TestFolder folder;
    folder.Write(Text("c:\\gradewell\\TOOL.exe"), "x");
    for (const char* path : {"c:\\gradewell/tool.exe", "c:/gradewell/TOOL.exe", "c:\\gradewell\\/TOOL.exe"}) {
        const auto found = folder.Drives.ToNative(Text(path));
        EXPECT_EQ(found.Error.Number, 0) << path;
        EXPECT_TRUE(std::filesystem::exists(found.Path)) << path;
    }
}

TEST(MappedVolumes, ADriveWhoseFolderCannotBeReadIsNotReady) {
    TestFolder folder;
    folder.Write(Text("c:\\file"), "x");
    const MappedVolumes volumes(RealSystemCalls(),
                                {{u'f', folder.Native(Text("c:\\gone"))}, {u'g', folder.Native(Text("c:\\file"))}});
    for (const char* path : {"f:", "f:\\", "f:\\x", "f:\\x\\y", "g:\\", "g:\\x"}) {
        EXPECT_EQ(volumes.ToNative(Text(path)).Error.Number, 71) << path;
        EXPECT_EQ(volumes.ListFolders(Text(path)).Error.Number, 71) << path;
    }
    FaultyCalls unreadable;
    unreadable.FailAll(Kind::ListNames, EACCES);
    const MappedVolumes refused(unreadable, {{u'c', folder.Native(Text("c:\\"))}});
    EXPECT_EQ(refused.ListFolders(Text("c:\\")).Error.Number, 71);
    FaultyCalls dead;
    dead.FailAll(Kind::Status, EIO);
    const MappedVolumes broken(dead, {{u'c', folder.Native(Text("c:\\"))}});
    EXPECT_EQ(broken.ToNative(Text("c:\\x")).Error.Number, 71);
}

TEST(MappedVolumes, ListsTheFoldersThatAPathCanName) {
    TestFolder folder;
    for (const char* name : {"beta", "Alpha", "gamma", "alpha", "\xC3\x89t\xC3\xA9", "a b", ".hidden", "Zulu"}) {
        folder.MakeFolder(Text("c:\\list\\") + Text(name));
    }
    folder.Write(Text("c:\\list\\file.txt"), "x");
    const NativePath list = folder.Native(Text("c:\\list"));
    for (const char* name : {"\xCE\xB1", "back\\slash", "quo\"te", "\xE9t\xE9", "line\nend", "blank "}) {
        std::filesystem::create_directory(list / name);
    }
    std::filesystem::create_directory_symlink("beta", list / "link");
    std::filesystem::create_directory_symlink("gone", list / "dangling");
    std::filesystem::create_symlink("file.txt", list / "filelink");
    const Volumes::FolderResult result = folder.Drives.ListFolders(Text("C:\\LIST\\"));
    EXPECT_FALSE(result.Error);
    EXPECT_EQ(result.Names, (QStringList{Text("a b"), Text("Alpha"), Text("alpha"), Text("beta"), Text("gamma"),
                                         Text("link"), Text("Zulu"), Text("\xC3\x89t\xC3\xA9")}))
        << result.Names.join(u',').toStdString();
    EXPECT_EQ(folder.Drives.ListFolders(Text("c:\\list\\beta")).Names, QStringList());
    std::filesystem::remove_all(list); // names that are no text stop the test folder's own tidying
}

TEST(MappedVolumes, TellsWhyAFolderCannotBeListed) {
    TestFolder folder;
    folder.Write(Text("c:\\place\\file"), "x");
    const struct {
        const char* Path;
        int Failure;
        int Number;
    } cases[] = {
        {"c:\\gone", 0, 76},
        {"c:\\gone\\deeper", 0, 76},
        {"c:\\place\\file", 0, 76},
        {"d:\\", 0, 68},
        {"", 0, 52},
        {"c:\\place", EACCES, 70},
        {"c:\\place", EPERM, 70},
        {"c:\\place", EIO, 57},
        {"c:\\place", ENOENT, 76},
        {"c:\\place", EMFILE, 67},
        {"c:\\", EIO, 71},
        {"c:", EACCES, 71},
    };
    for (const auto& row : cases) {
        FaultyCalls calls;
        if (row.Failure != 0) {
            calls.FailAll(Kind::ListNames, row.Failure);
        }
        const MappedVolumes volumes(calls, {{u'c', folder.Native(Text("c:\\"))}});
        EXPECT_EQ(volumes.ListFolders(Text(row.Path)).Error.Number, row.Number) << row.Path << " " << row.Failure;
    }
}

TEST(MappedVolumes, GoesOnAfterAnInterruptedLook) {
    TestFolder folder;
    folder.MakeFolder(Text("c:\\Place\\Below"));
    FaultyCalls calls;
    calls.FailFirst(Kind::Status, EINTR, 3);
    calls.FailFirst(Kind::ListNames, EINTR, 3);
    const MappedVolumes volumes(calls, {{u'c', folder.Native(Text("c:\\"))}});
    EXPECT_EQ(volumes.ListFolders(Text("c:\\place")).Names, QStringList{Text("Below")});
}
