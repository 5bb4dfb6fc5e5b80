#include "platform/ProgramDrives.h"
#include "platform/windows/WindowsVolumes.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Text.h"

#include <QDir>
#include <cerrno>
#include <gtest/gtest.h>

namespace {

using Kind = FaultyCalls::Kind;

// Another machine's drives; the folders are this one's.
class OtherDisks : public WindowsDisks {
public:
    QString Present = Text("acx");
    QString Current = Text("C:\\Marks\\2016");
    int ListFailure = 0;
    QStringList Listed;

    QString Letters() const override { return Present; }
    QString CurrentFolder(const QString& drive) const override {
        return drive == Text("c:") ? Current : drive.toUpper() + Text("\\");
    }
    int VisibleFolders(const NativePath&, QStringList& names) const override {
        names = Listed;
        return ListFailure;
    }
    NativePath ShortName(const NativePath& folder) const override { return folder; }
};

// Where the tests can write, in the program's form.
QString Place() {
    return QDir::toNativeSeparators(QDir::tempPath());
}

} // namespace

TEST(WindowsVolumes, DrivesAreTheSystemsInTheOrderOfTheirLetters) {
    const OtherDisks disks;
    EXPECT_EQ(WindowsVolumes(RealSystemCalls(), disks).Drives(), (QStringList{Text("a:"), Text("c:"), Text("x:")}));
    EXPECT_TRUE(WindowsVolumes(RealSystemCalls(), RealDisks()).Drives().contains(Text("c:")));
}

TEST(WindowsVolumes, ADriveAloneIsItsCurrentFolderUntilOneIsChosen) {
    const OtherDisks disks;
    WindowsVolumes volumes(RealSystemCalls(), disks);
    EXPECT_EQ(volumes.WholePath(Text("c:")), Text("c:\\Marks\\2016"));
    EXPECT_EQ(volumes.WholePath(Text("C:b\\")), Text("c:\\Marks\\2016\\b"));
    EXPECT_EQ(volumes.WholePath(Text("c:\\")), Text("c:\\"));
    EXPECT_EQ(volumes.WholePath(Text("x:")), Text("x:\\"));
    volumes.SetCurrentFolder(Text("c:\\chosen"));
    EXPECT_EQ(volumes.WholePath(Text("c:")), Text("c:\\chosen"));
    EXPECT_EQ(volumes.WholePath(Text("\\\\server\\marks\\")), Text("\\\\server\\marks"));

    const QString before = QDir::currentPath();
    QDir::setCurrent(QDir::tempPath());
    EXPECT_EQ(WindowsVolumes(RealSystemCalls(), RealDisks()).WholePath(Place().left(2)).toLower(), Place().toLower());
    QDir::setCurrent(before);
}

TEST(WindowsVolumes, NativePathsComeBackInTheProgramsForm) {
    const OtherDisks disks;
    const WindowsVolumes volumes(RealSystemCalls(), disks);
    const struct {
        const wchar_t* Native;
        const char* Expected;
        int Number;
    } cases[] = {
        {L"C:\\", "c:\\", 0},
        {L"C:/", "c:\\", 0},
        {L"C:/Marks/2016", "c:\\Marks\\2016", 0},
        {L"C:\\Marks\\2016\\", "c:\\Marks\\2016", 0},
        {L"\\\\?\\C:\\Marks", "c:\\Marks", 0},
        {L"//Server/Marks/2016", "\\\\Server\\Marks\\2016", 0},
        {L"\\\\?\\UNC\\Server\\Marks", "\\\\Server\\Marks", 0},
        {L"C:\\\u00C9l\u00E8ves \u20AC\\x.cfg", "c:\\\xC3\x89l\xC3\xA8ves \xE2\x82\xAC\\x.cfg", 0},
        {L"C:\\\u03B1\\x", "", 52},
        {L"\\\\Server\\\u03B1\\x", "", 52},
        {L"C:\\e\u0301", "", 52},
        {L"\\\\?\\Volume{0}\\x", "", 68},
        {L"\\\\Server", "", 68},
        {L"Marks", "", 68},
        {L"", "", 68},
    };
    for (const auto& row : cases) {
        const auto result = volumes.FromNative(row.Native);
        EXPECT_EQ(result.Error.Number, row.Number) << row.Expected;
        EXPECT_EQ(result.Path, Text(row.Expected));
    }
}

TEST(WindowsVolumes, FindsNamesWithoutCaseAndTellsWhyAPathLeadsNowhere) {
    TestFolder folder;
    folder.Write(Text("c:\\Marks\\Full.cfg"), "x");
    const WindowsVolumes volumes(RealSystemCalls(), RealDisks());
    const QString root = QString::fromStdWString(NativePath(folder.Native(Text("c:\\"))).make_preferred().native());
    const struct {
        const char* Below;
        int Number;
        bool Exists;
    } cases[] = {
        {"Marks\\Full.cfg", 0, true},
        {"MARKS\\full.CFG", 0, true},
        {"marks/full.cfg", 0, true},
        {"marks\\..\\marks", 0, true},
        {"marks\\new.cfg", 0, false},
        {"gone", 0, false},
        {"gone\\x", 76, false},
        {"marks\\full.cfg\\x", 76, false},
        {"marks\\a*", 52, false},
        {"marks\\full.cfg:s", 52, false},
        {"nul", 52, false},
        {"marks\\con.cfg", 52, false},
        {"marks.\\full.cfg", 52, false},
    };
    for (const auto& row : cases) {
        const auto result = volumes.ToNative(root + Text(row.Below));
        EXPECT_EQ(result.Error.Number, row.Number) << row.Below;
        EXPECT_EQ(!result.Error && std::filesystem::exists(result.Path), row.Exists) << row.Below;
    }
    for (const char* path : {"", "  ", "x.cfg", "\\x.cfg", "\\\\server", "1:\\", "\\\\?\\c:\\x", "\\\\.\\c:\\x"}) {
        EXPECT_EQ(volumes.ToNative(Text(path)).Error.Number, 52) << path;
    }
}

TEST(WindowsVolumes, ADriveThatIsGoneIs68AndOneThatIsNotReadyIs71) {
    const OtherDisks disks;
    const struct {
        const char* Path;
        int Failure; // of every look at the disk
        int Number;
    } cases[] = {
        {"q:\\x", 0, 68},
        {"q:", 0, 68},
        {"a:\\", NoDiskInDrive, 71},
        {"a:", NoDiskInDrive, 71},
        {"a:\\x", NoDiskInDrive, 71},
        {"x:\\x", EIO, 71},
        {"x:\\x", ENODEV, 71},
        {"x:\\x", EACCES, 0},
        {"\\\\gone\\marks", ENODEV, 68},
        {"\\\\gone\\marks\\x", ENOENT, 68},
        {"\\\\gone\\marks\\x", EACCES, 0},
        {"\\\\gone\\marks\\x", NoDiskInDrive, 71},
    };
    for (const auto& row : cases) {
        FaultyCalls calls;
        if (row.Failure != 0) {
            calls.FailAll(Kind::Status, row.Failure);
        }
        const WindowsVolumes volumes(calls, disks);
        EXPECT_EQ(volumes.ToNative(Text(row.Path)).Error.Number, row.Number) << row.Path << " " << row.Failure;
        if (row.Number != 0) {
            EXPECT_EQ(volumes.ListFolders(Text(row.Path)).Error.Number, row.Number) << row.Path << " " << row.Failure;
        }
    }
}

TEST(WindowsVolumes, ListsTheFoldersThatAPathCanName) {
    OtherDisks disks;
    disks.Listed = {Text("beta"),  Text("Alpha"), Text("\xCE\xB1"),
                    Text("alpha"), Text("a b"),   Text("\xC3\x89t\xC3\xA9")};
    const WindowsVolumes volumes(RealSystemCalls(), disks);
    EXPECT_EQ(volumes.ListFolders(Text("c:\\")).Names,
              (QStringList{Text("a b"), Text("Alpha"), Text("alpha"), Text("beta"), Text("\xC3\x89t\xC3\xA9")}));
    const struct {
        int Failure;
        int Number;
    } cases[] = {{EACCES, 70}, {ENOENT, 76}, {ENOTDIR, 76}, {NoDiskInDrive, 71}, {EIO, 57}};
    for (const auto& row : cases) {
        disks.ListFailure = -row.Failure;
        EXPECT_EQ(volumes.ListFolders(Text("c:\\")).Error.Number, row.Number) << row.Failure;
    }
}

TEST(WindowsVolumes, ListsThisMachinesFolders) {
    TestFolder folder;
    folder.MakeFolder(Text("c:\\list\\Beta"));
    folder.MakeFolder(Text("c:\\list\\alpha"));
    folder.Write(Text("c:\\list\\file.txt"), "x");
    const WindowsVolumes volumes(RealSystemCalls(), RealDisks());
    const auto list = volumes.FromNative(folder.Native(Text("c:\\list")));
    ASSERT_FALSE(list.Error);
    EXPECT_EQ(volumes.ListFolders(list.Path.toUpper()).Names, (QStringList{Text("alpha"), Text("Beta")}));
    EXPECT_EQ(volumes.ListFolders(list.Path + Text("\\alpha")).Names, QStringList());
    EXPECT_EQ(volumes.ListFolders(list.Path + Text("\\gone")).Error.Number, 76);
    EXPECT_EQ(volumes.ListFolders(list.Path + Text("\\file.txt")).Error.Number, 76);
}

TEST(ProgramDrives, AreTheSystemsAndTheProgramFolderMayLieOnAShare) {
    const struct {
        const wchar_t* Folder;
        const char* Expected;
    } cases[] = {
        {L"C:/Gradewell", "c:\\Gradewell"},
        {L"C:/", "c:"},
        {L"//server/apps/Gradewell", "\\\\server\\apps\\Gradewell"},
        {L"//server/apps", "\\\\server\\apps"},
        {L"C:/\u03B1/Gradewell", "C:\\\xCE\xB1\\Gradewell"},
    };
    for (const auto& row : cases) {
        const ProgramDrives drives = OpenProgramDrives(RealSystemCalls(), row.Folder);
        EXPECT_EQ(drives.ProgramFolder, Text(row.Expected));
        EXPECT_TRUE(drives.Complaints.isEmpty());
        EXPECT_TRUE(drives.TheVolumes->Drives().contains(Text("c:")));
    }
}
