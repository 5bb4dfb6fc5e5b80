#include "platform/DrivesConf.h"
#include "platform/ProgramDrives.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Text.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace {

const DriveTable Default = {{u'c', "/"}};

DriveTable With(QChar letter, const char* folder) {
    DriveTable table = Default;
    table.insert(letter, folder);
    return table;
}

} // namespace

TEST(DrivesConf, ReadsTheDrives) {
    const struct {
        QByteArray Bytes;
        DriveTable Drives;
    } cases[] = {
        {"", Default},
        {"\n\n  \n\t\n", Default},
        {"# nothing\n  # more\n", Default},
        {"G=/srv/gradebook\n", With(u'g', "/srv/gradebook")},
        {"g=/srv/gradebook", With(u'g', "/srv/gradebook")},
        {"G=/srv/gradebook\r\n", With(u'g', "/srv/gradebook")},
        {"# CR\rG=/srv/gradebook\r", With(u'g', "/srv/gradebook")},
        {"  G \t=  /srv/gradebook \t", With(u'g', "/srv/gradebook")},
        {"G=/srv/gradebook/", With(u'g', "/srv/gradebook")},
        {"G=/srv/gradebook///", With(u'g', "/srv/gradebook")},
        {"G=/srv/#1 a=b/c", With(u'g', "/srv/#1 a=b/c")},
        {"G=/", With(u'g', "/")},
        {"G=//", With(u'g', "/")},
        {"C=/srv", With(u'c', "/srv")},
        {"\xEF\xBB\xBFG=/srv", With(u'g', "/srv")},
        {"G=/srv/\xC3\xA9t\xC3\xA9", With(u'g', "/srv/\xC3\xA9t\xC3\xA9")},
        {"G=/srv/\xE9t\xE9", With(u'g', "/srv/\xE9t\xE9")},
        {"A=/a\nz=/z\n", {{u'a', "/a"}, {u'c', "/"}, {u'z', "/z"}}},
    };
    for (const auto& row : cases) {
        const DrivesConf conf = ReadDrivesConf(row.Bytes);
        EXPECT_EQ(conf.Drives, row.Drives) << row.Bytes.toStdString();
        EXPECT_TRUE(conf.BadLines.empty()) << row.Bytes.toStdString();
    }
}

TEST(DrivesConf, SkipsABadLineAndNamesIt) {
    const struct {
        QByteArray Line;
        const char* Reason;
    } cases[] = {
        {"nonsense", "letter"},
        {"=/srv", "letter"},
        {"GG=/srv", "letter"},
        {"1=/srv", "letter"},
        {"G:=/srv", "letter"},
        {"\xC3\x89=/srv", "letter"},
        {"/srv", "letter"},
        {"G", "letter"},
        {"G=", "full path"},
        {"G= ", "full path"},
        {"G=srv", "full path"},
        {"G=./srv", "full path"},
        {"G=~/srv", "full path"},
        {"G=d:\\x", "full path"},
        {"f=/again", "drive F"},
        {"G=\"/srv\"", "full path"},
        {QByteArray("G=/s\0rv", 7), "full path"},
    };
    for (const auto& row : cases) {
        const DrivesConf conf = ReadDrivesConf("# first\r\nF=/first\r\n\r\n" + row.Line + "\r\nH=/last\r\n");
        EXPECT_EQ(conf.Drives, (DriveTable{{u'c', "/"}, {u'f', "/first"}, {u'h', "/last"}})) << row.Line.toStdString();
        ASSERT_EQ(conf.BadLines.size(), 1U) << row.Line.toStdString();
        EXPECT_EQ(conf.BadLines[0].Number, 4) << row.Line.toStdString();
        EXPECT_TRUE(conf.BadLines[0].Reason.contains(Text(row.Reason))) << conf.BadLines[0].Reason.toStdString();
        const QStringList texts = BadLineTexts(conf);
        ASSERT_EQ(texts.size(), 1);
        EXPECT_TRUE(texts[0].contains(Text("Line 4"))) << texts[0].toStdString();
        EXPECT_TRUE(texts[0].contains(conf.BadLines[0].Text)) << texts[0].toStdString();
        EXPECT_TRUE(texts[0].contains(conf.BadLines[0].Reason)) << texts[0].toStdString();
    }
}

TEST(DrivesConf, ACAfterItsFirstLineIsASecondOne) {
    const DrivesConf conf = ReadDrivesConf("c=/one\nC=/two\nbad\n");
    EXPECT_EQ(conf.Drives, With(u'c', "/one"));
    ASSERT_EQ(conf.BadLines.size(), 2U);
    EXPECT_EQ(conf.BadLines[0].Number, 2);
    EXPECT_EQ(conf.BadLines[1].Number, 3);
}

TEST(DrivesConf, TheProgramFolderHasADriveInEveryCase) {
    DriveTable all;
    for (char16_t letter = u'a'; letter <= u'z'; ++letter) {
        all.insert(letter, "/taken");
    }
    DriveTable allButB = all;
    allButB.remove(u'b');
    const struct {
        DriveTable Drives;
        const char* Folder;
        const char* Expected;
        const char* AddedLetter; // nothing: the table stays
        bool Complains;
    } cases[] = {
        {Default, "/opt/Gradewell", "c:\\opt\\Gradewell", "", false},
        {Default, "/", "c:", "", false},
        {With(u'g', "/opt/Gradewell"), "/opt/Gradewell/", "g:", "", false},
        {{{u'c', "/srv"}}, "/opt/Gradewell", "z:", "z", false},
        {{{u'c', "/srv"}, {u'z', "/a"}, {u'y', "/b"}}, "/opt/Gradewell", "x:", "x", false},
        {Default, "/opt/\xCE\xB1", "z:", "z", false},
        {Default, "/opt/\xE9", "z:", "z", false},
        {allButB, "/opt/Gradewell", "b:", "b", false},
        {all, "/opt/Gradewell", "z:", "z", true},
        {all, "/taken/Gradewell", "a:\\Gradewell", "", false},
    };
    for (const auto& row : cases) {
        DriveTable drives = row.Drives;
        QString complaint;
        EXPECT_EQ(DriveForProgramFolder(RealSystemCalls(), drives, row.Folder, complaint), Text(row.Expected))
            << row.Folder;
        EXPECT_EQ(!complaint.isEmpty(), row.Complains) << row.Folder;
        DriveTable expected = row.Drives;
        if (*row.AddedLetter != '\0') {
            expected.insert(QLatin1Char(*row.AddedLetter), row.Folder);
        }
        EXPECT_EQ(drives, expected) << row.Folder;
    }
}

TEST(ProgramDrives, AreReadBesideTheExecutable) {
    TestFolder folder;
    folder.MakeFolder(Text("c:\\program"));
    folder.MakeFolder(Text("c:\\marks\\2016"));
    const NativePath program = folder.Native(Text("c:\\program"));
    const QByteArray marks = QByteArray::fromStdString(folder.Native(Text("c:\\marks")).string());

    const ProgramDrives without = OpenProgramDrives(RealSystemCalls(), program);
    EXPECT_EQ(without.TheVolumes->Drives(), QStringList{Text("c:")});
    EXPECT_TRUE(without.Complaints.isEmpty());
    EXPECT_EQ(without.TheVolumes->ToNative(without.ProgramFolder).Path, program);

    folder.Write(Text("c:\\program\\drives.conf"), "G=" + marks + "/\r\nC=" + marks + "/2016\r\nbad\r\n");
    const ProgramDrives with = OpenProgramDrives(RealSystemCalls(), program);
    EXPECT_EQ(with.TheVolumes->Drives(), (QStringList{Text("c:"), Text("g:"), Text("z:")}));
    EXPECT_EQ(with.ProgramFolder, Text("z:"));
    EXPECT_EQ(with.TheVolumes->ToNative(Text("z:\\x.cfg")).Path, program / "x.cfg");
    EXPECT_EQ(with.TheVolumes->ListFolders(Text("g:\\")).Names, QStringList{Text("2016")});
    ASSERT_EQ(with.Complaints.size(), 1);
    EXPECT_TRUE(with.Complaints[0].contains(Text("Line 3")));
}

TEST(ProgramDrives, ComplaintsOfTheFrenchEditionAreFrench) {
    const struct {
        QByteArray Table;
        QStringList Parts;
    } cases[] = {
        {"bad\n", {Text("La ligne 1 de drives.conf est ignorée"), Text("[bad]"), Text("lettre de lecteur")}},
        {"G=srv\n", {Text("La ligne 1"), Text("[G=srv]"), Text("chemin complet")}},
        {"G=/a\ng=/b\n", {Text("La ligne 2"), Text("donne déjà le lecteur G")}},
    };
    TestFolder folder;
    const NativePath program = folder.Native(Text("c:\\"));
    for (const auto& row : cases) {
        folder.Write(Text("c:\\drives.conf"), row.Table);
        const ProgramDrives drives = OpenProgramDrives(RealSystemCalls(), program, CaptionLanguage::French);
        ASSERT_EQ(drives.Complaints.size(), 1);
        for (const QString& part : row.Parts) {
            EXPECT_TRUE(drives.Complaints[0].contains(part)) << drives.Complaints[0].toStdString();
        }
    }
    QByteArray all;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        all += QByteArray(1, letter) + "=/taken\n";
    }
    folder.Write(Text("c:\\drives.conf"), all);
    const ProgramDrives taken = OpenProgramDrives(RealSystemCalls(), program, CaptionLanguage::French);
    ASSERT_EQ(taken.Complaints.size(), 1);
    EXPECT_TRUE(taken.Complaints[0].contains(Text("Le lecteur Z désigne"))) << taken.Complaints[0].toStdString();
    folder.Remove(Text("c:\\drives.conf"));
    folder.MakeFolder(Text("c:\\drives.conf"));
    const ProgramDrives unread = OpenProgramDrives(RealSystemCalls(), program, CaptionLanguage::French);
    ASSERT_EQ(unread.Complaints.size(), 1);
    EXPECT_TRUE(unread.Complaints[0].contains(Text("ne peut pas être lue"))) << unread.Complaints[0].toStdString();
}

TEST(ProgramDrives, ATableThatCannotBeReadIsAComplaint) {
    const struct {
        FaultyCalls::Kind Failing;
        int Error;
        const char* Text;
    } cases[] = {{FaultyCalls::Kind::OpenForReading, EACCES, "Error 70: Permission denied."},
                 {FaultyCalls::Kind::Read, EIO, "Error 57: Device I/O error."}};
    for (const auto& row : cases) {
        FaultyCalls calls;
        TestFolder folder;
        folder.Write(Text("c:\\drives.conf"), "G=/srv\n");
        calls.FailAll(row.Failing, row.Error);
        const ProgramDrives drives = OpenProgramDrives(calls, folder.Native(Text("c:\\")));
        EXPECT_EQ(drives.TheVolumes->Drives(), QStringList{Text("c:")});
        ASSERT_EQ(drives.Complaints.size(), 1);
        EXPECT_TRUE(drives.Complaints[0].contains(Text(row.Text))) << drives.Complaints[0].toStdString();
    }
    TestFolder folder;
    folder.MakeFolder(Text("c:\\drives.conf"));
    EXPECT_EQ(OpenProgramDrives(RealSystemCalls(), folder.Native(Text("c:\\"))).Complaints.size(), 1);
}
