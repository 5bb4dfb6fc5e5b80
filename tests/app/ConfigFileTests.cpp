#include "app/CFG_2015.h"
#include "tests/app/FieldValues.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/TestFolder.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace {

const QString Older = QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG");
const QString Newer = QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG");
const QString PathFileName = QStringLiteral("c:\\gradewell\\GdWlPath.cfg");

class ConfigFiles : public testing::Test {
protected:
    ConfigFiles() : Disk(Calls) {
        SetProductTexts(Edition::English);
        SetTitleLine(2016);
        ProgramFolder = QStringLiteral("c:\\gradewell");
        SetDefaultSettings();
        Disk.MakeFolder(ProgramFolder);
    }

    FaultyCalls Calls;
    TestFolder Disk;
    const QByteArray EveryFieldFile = HandWritten("app/every-field.cfg");
    const QByteArray DefaultsFile = HandWritten("app/defaults.cfg");

    // A read that leaves what an earlier test remembered behind.
    void Locate() {
        SetDefaultSettings();
        LocateProgramConfig();
    }

    void ExpectSaveError(std::size_t index, const char* name, int number) {
        ASSERT_LT(index, Disk.Screen.Messages.size());
        const Message& message = Disk.Screen.Messages[index];
        const QString file = QString::fromLatin1(name);
        EXPECT_EQ(message.Title, file + QStringLiteral(" SAVE ERROR: ") + QString::number(number));
        EXPECT_EQ(message.Text, QStringLiteral("Unexpected Error while trying to save: ") + file);
        EXPECT_EQ(message.Icon, MessageIcon::Critical);
        EXPECT_EQ(message.Buttons, MessageButtons::Ok);
    }
};

TEST_F(ConfigFiles, NoFileMeansDefaultsAndTheLockOn) {
    ProgramConfig = EveryField();
    Locate();
    ProgramConfigRecord expected = DefaultRecord();
    expected.ConfigLock = 1;
    EXPECT_EQ(ProgramConfig, expected);
    EXPECT_EQ(ConfigFileName, QStringLiteral("GW_v12_PRG.CFG"));
    EXPECT_TRUE(Disk.Screen.Messages.empty());
}

TEST_F(ConfigFiles, TheOlderFileWinsWhenBothExist) {
    Disk.Write(Newer, DefaultsFile);
    Disk.Write(Older, EveryFieldFile);
    Locate();
    EXPECT_EQ(ConfigFileName, QStringLiteral("GW_v11_PRG.CFG"));
    EXPECT_EQ(ProgramConfig, EveryField());
}

TEST_F(ConfigFiles, TheNewerFileAloneIsRead) {
    Disk.Write(Newer, EveryFieldFile);
    Locate();
    EXPECT_EQ(ConfigFileName, QStringLiteral("GW_v12_PRG.CFG"));
    EXPECT_EQ(ProgramConfig, EveryField());
}

TEST_F(ConfigFiles, AFolderOfThatNameIsNotTheFile) {
    Disk.MakeFolder(Older);
    Disk.Write(Newer, EveryFieldFile);
    Locate();
    EXPECT_EQ(ConfigFileName, QStringLiteral("GW_v12_PRG.CFG"));
    EXPECT_EQ(ProgramConfig, EveryField());
}

TEST_F(ConfigFiles, TheNameIsFoundInAnyCase) {
    Disk.Write(QStringLiteral("c:\\gradewell\\gw_V12_prg.cfg"), EveryFieldFile);
    Locate();
    EXPECT_EQ(ProgramConfig, EveryField());
    ProgramConfig.DateFormat = 1;
    SaveProgramConfig();
    EXPECT_EQ(Disk.Names(ProgramFolder),
              QStringList({QStringLiteral("GW_v11_PRG.CFG"), QStringLiteral("gw_V12_prg.cfg")}));
}

TEST_F(ConfigFiles, SaveWritesBothFilesAndDeletesThePathFile) {
    Locate();
    Disk.Write(PathFileName, "x");
    ProgramConfig = EveryField();
    SaveProgramConfig();
    EXPECT_EQ(Disk.Read(Older), EveryFieldFile);
    EXPECT_EQ(Disk.Read(Newer), EveryFieldFile);
    EXPECT_EQ(Disk.Names(ProgramFolder),
              QStringList({QStringLiteral("GW_v11_PRG.CFG"), QStringLiteral("GW_v12_PRG.CFG")}));
    SaveProgramConfig();
    EXPECT_EQ(Disk.Read(Newer), EveryFieldFile);
    EXPECT_EQ(ProgramConfig, EveryField()) << "saving changes no setting";
}

TEST_F(ConfigFiles, AFailureOfTheOlderFileDoesNotStopTheNewer) {
    Locate();
    Disk.MakeFolder(Older);
    Disk.Write(PathFileName, "x");
    ProgramConfig = EveryField();
    Disk.Screen.Answer(MessageAnswer::Ok);
    SaveProgramConfig();
    ExpectSaveError(0, "GW_v11_PRG.CFG", 75);
    EXPECT_EQ(Disk.Read(Newer), EveryFieldFile);
    EXPECT_FALSE(Disk.Exists(PathFileName));
}

TEST_F(ConfigFiles, AfterAFailureOfTheNewerFileThePathFileStays) {
    Locate();
    Disk.MakeFolder(Newer);
    Disk.Write(PathFileName, "x");
    ProgramConfig = EveryField();
    Disk.Screen.Answer(MessageAnswer::Ok);
    SaveProgramConfig();
    ExpectSaveError(0, "GW_v12_PRG.CFG", 75);
    EXPECT_EQ(Disk.Read(Older), EveryFieldFile);
    EXPECT_TRUE(Disk.Exists(PathFileName));
}

TEST_F(ConfigFiles, BothFailuresAreShownOneAfterTheOther) {
    struct Case {
        int error;
        int number;
    };
    for (const auto& [error, number] : {Case{ENOSPC, 61}, Case{EIO, 57}, Case{EMFILE, 67}}) {
        FaultyCalls calls;
        TestFolder disk(calls);
        disk.Write(Older, DefaultsFile);
        disk.Write(Newer, DefaultsFile);
        SetDefaultSettings();
        LocateProgramConfig();
        ProgramConfig = EveryField();
        calls.FailAll(FaultyCalls::Kind::CreateExclusive, error);
        disk.Screen.Answer(MessageAnswer::Ok);
        disk.Screen.Answer(MessageAnswer::Ok);
        SaveProgramConfig();
        ASSERT_EQ(disk.Screen.Messages.size(), 2U);
        EXPECT_EQ(disk.Screen.Messages[0].Title, QStringLiteral("GW_v11_PRG.CFG SAVE ERROR: %1").arg(number));
        EXPECT_EQ(disk.Screen.Messages[1].Title, QStringLiteral("GW_v12_PRG.CFG SAVE ERROR: %1").arg(number));
        EXPECT_EQ(disk.Read(Older), DefaultsFile);
        EXPECT_EQ(disk.Read(Newer), DefaultsFile);
        EXPECT_EQ(ProgramConfig, EveryField());
    }
}

TEST_F(ConfigFiles, AVanishedProgramFolderIsReported) {
    Locate();
    Disk.Remove(ProgramFolder);
    Disk.Screen.Answer(MessageAnswer::Ok);
    Disk.Screen.Answer(MessageAnswer::Ok);
    SaveProgramConfig();
    ExpectSaveError(0, "GW_v11_PRG.CFG", 76);
    ExpectSaveError(1, "GW_v12_PRG.CFG", 76);
}

TEST_F(ConfigFiles, DamagedFilesAreCopiedBeforeTheFirstSave) {
    const QByteArray damaged = EveryFieldFile.left(700);
    Disk.Write(Older, damaged);
    Disk.Write(Newer, EveryFieldFile);
    Locate();
    EXPECT_EQ(ProgramConfig.ConfigLock, 1);
    EXPECT_EQ(ProgramConfig.BarCodeFontName, EveryField().BarCodeFontName);
    EXPECT_TRUE(Disk.Screen.Messages.empty());
    SaveProgramConfig();
    EXPECT_EQ(Disk.Read(Older + QStringLiteral(".damaged-20160307-093000")), damaged);
    EXPECT_EQ(Disk.Read(Newer + QStringLiteral(".damaged-20160307-093000")), EveryFieldFile)
        << "a whole newer file must not be lost for a damaged older one";
    EXPECT_EQ(Disk.Names(ProgramFolder).size(), 4);
    Disk.Screen.Clock = Disk.Screen.Clock.addSecs(60);
    SaveProgramConfig();
    EXPECT_EQ(Disk.Names(ProgramFolder).size(), 4) << "only the first save copies";
}

TEST_F(ConfigFiles, ACopyNeverReplacesAnEarlierOne) {
    Disk.Write(Newer, "damaged");
    Disk.Write(Newer + QStringLiteral(".damaged-20160307-093000"), "an earlier one");
    Locate();
    SaveProgramConfig();
    EXPECT_EQ(Disk.Read(Newer + QStringLiteral(".damaged-20160307-093000")), "an earlier one");
    EXPECT_EQ(Disk.Read(Newer + QStringLiteral(".damaged-20160307-093001")), "damaged");
}

TEST_F(ConfigFiles, WithoutANameForItsCopyADamagedFileIsNotReplaced) {
    Disk.Write(Newer, "damaged");
    for (int later = 0; later < 100; ++later) {
        const QDateTime time = Disk.Screen.Clock.addSecs(later);
        Disk.Write(Newer + time.toString(QStringLiteral("'.damaged-'yyyyMMdd-HHmmss")), "an earlier one");
    }
    Locate();
    Disk.Screen.Answer(MessageAnswer::Ok);
    SaveProgramConfig();
    ExpectSaveError(0, "GW_v12_PRG.CFG", 75);
    EXPECT_EQ(Disk.Read(Newer), "damaged");
}

// Whichever of the files that a copy takes cannot be opened: the damaged one, one that has its name, the copy itself.
TEST_F(ConfigFiles, FilesThatDoNotOpenKeepADamagedFileFromBeingReplaced) {
    for (int firstToFail = 1; firstToFail <= 3; ++firstToFail) {
        FaultyCalls calls;
        TestFolder disk(calls);
        disk.Write(Newer, "damaged");
        disk.Write(Newer + QStringLiteral(".damaged-20160307-093000"), "an earlier one");
        Locate();
        int opened = 0;
        calls.Before = [&](FaultyCalls::Kind kind) {
            opened += kind == FaultyCalls::Kind::OpenForReading ? 1 : 0;
            if (opened == firstToFail) {
                calls.FailAll(FaultyCalls::Kind::OpenForReading, EIO);
            }
        };
        disk.Screen.Answer(MessageAnswer::Ok);
        disk.Screen.Answer(MessageAnswer::Ok);
        SaveProgramConfig();
        EXPECT_EQ(disk.Screen.Messages.back().Title, QStringLiteral("GW_v12_PRG.CFG SAVE ERROR: 57")) << firstToFail;
        EXPECT_EQ(disk.Read(Newer), "damaged");
        while (disk.Screen.Messages.size() < 2) {
            disk.Screen.ShowMessage({}); // an answer that was not needed
        }
    }
}

TEST_F(ConfigFiles, AnEmptyFileNeedsNoCopy) {
    Disk.Write(Newer, "");
    Locate();
    EXPECT_EQ(ProgramConfig.ConfigLock, 1);
    SaveProgramConfig();
    EXPECT_EQ(Disk.Names(ProgramFolder).size(), 2);
}

TEST_F(ConfigFiles, AWholeFileNeedsNoCopy) {
    Disk.Write(Newer, EveryFieldFile);
    Locate();
    SaveProgramConfig();
    EXPECT_EQ(Disk.Names(ProgramFolder).size(), 2);
}

TEST_F(ConfigFiles, WithoutACopyADamagedFileIsNotReplaced) {
    Disk.Write(Newer, "damaged");
    Locate();
    Calls.FailAll(FaultyCalls::Kind::CreateExclusive, ENOSPC);
    Disk.Screen.Answer(MessageAnswer::Ok);
    Disk.Screen.Answer(MessageAnswer::Ok);
    SaveProgramConfig();
    ExpectSaveError(0, "GW_v11_PRG.CFG", 61);
    ExpectSaveError(1, "GW_v12_PRG.CFG", 61);
    EXPECT_EQ(Disk.Read(Newer), "damaged");
    EXPECT_EQ(Disk.Names(ProgramFolder), QStringList({QStringLiteral("GW_v12_PRG.CFG")}));
}

// Whatever look at the disk fails in passing while the program starts, the settings of the file are still there after
// the save that ends the program: in a configuration file or in a copy beside it.
TEST_F(ConfigFiles, APassingErrorAtTheStartLosesNothing) {
    for (const QString& only : {Older, Newer}) {
        for (int call = 1; call <= 20; ++call) {
            FaultyCalls calls;
            TestFolder disk(calls);
            disk.Write(only, EveryFieldFile);
            SetDefaultSettings();
            calls.FailCall(call, EIO);
            LocateProgramConfig();
            disk.Screen.Answer(MessageAnswer::Ok); // a save that cannot keep the old file says so
            disk.Screen.Answer(MessageAnswer::Ok);
            SaveProgramConfig();
            bool kept = false;
            for (const QString& name : disk.Names(ProgramFolder)) {
                kept = kept || disk.Read(ProgramFolder + QStringLiteral("\\") + name) == EveryFieldFile;
            }
            EXPECT_TRUE(kept) << only.toStdString() << ", call " << call;
            while (disk.Screen.Messages.size() < 2) {
                disk.Screen.ShowMessage({}); // an answer that was not needed
            }
        }
    }
}

TEST_F(ConfigFiles, AFileOfALaterVersionIsCopied) {
    const QByteArray later = QByteArray(EveryFieldFile).replace(" 14 ", " 15 ") + "\"\"\r\n\"[New]\"\r\n\"x\"\r\n";
    Disk.Write(Newer, later);
    Locate();
    EXPECT_EQ(ProgramConfig, EveryField());
    SaveProgramConfig();
    EXPECT_EQ(Disk.Read(Newer), EveryFieldFile);
    EXPECT_EQ(Disk.Read(Newer + QStringLiteral(".damaged-20160307-093000")), later);
}

TEST_F(ConfigFiles, AFileThatCannotBeReadIsNotReplaced) {
    Disk.Write(Newer, EveryFieldFile);
    Calls.FailAll(FaultyCalls::Kind::OpenForReading, EACCES);
    Locate();
    EXPECT_EQ(ProgramConfig.ConfigLock, 1);
    EXPECT_TRUE(Disk.Screen.Messages.empty());
    Disk.Screen.Answer(MessageAnswer::Ok);
    Disk.Screen.Answer(MessageAnswer::Ok);
    SaveProgramConfig();
    EXPECT_EQ(Disk.Read(Newer), EveryFieldFile);
}

} // namespace
