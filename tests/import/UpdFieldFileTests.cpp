#include "import/UpdFieldFile.h"
#include "tests/import/FaultyDisk.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

namespace {

class UpdFieldFileTest : public testing::Test {
protected:
    FaultyDisk calls;
    TestFolder folder{calls};
    const QString importPath = Text("c:\\school\\students.txt");
    const QString setupFile = Text("c:\\school\\UpdField.cfg");
    const QString name = Text("UpdField.cfg");

    ImportSetup setup;

    SetupReading ReadIt() { return TakeSetupBytes(ReadSetupBytes(setupFile), EnglishFieldList(), setup); }
};

TEST_F(UpdFieldFileTest, ReadsAndSavesTheSameBytes) {
    const QByteArray bytes = HandWritten("import/UpdField-full.cfg");
    folder.Write(setupFile, bytes);
    const SetupReading reading = ReadIt();
    EXPECT_TRUE(reading.Complete);
    EXPECT_TRUE(reading.Faults.empty());
    EXPECT_EQ(Text("4"), setup.Matches[0]);
    folder.Remove(setupFile);
    EXPECT_FALSE(SaveUpdFieldCFG(importPath, name, setup));
    EXPECT_EQ(bytes, folder.Read(setupFile));
}

TEST_F(UpdFieldFileTest, AMissingFileMeansNoMatches) {
    folder.MakeFolder(Text("c:\\school"));
    setup.ActiveFields = 6;
    setup.Matches[1] = Text("Gender");
    setup.Options.Actions[2] = 1;
    EXPECT_FALSE(ReadIt().Complete);
    EXPECT_EQ(0, setup.ActiveFields);
    EXPECT_EQ(Text("Gender"), setup.Matches[1]);
    EXPECT_EQ(1, setup.Options.Actions[2]);
}

TEST_F(UpdFieldFileTest, AFolderOfThatNameMeansNoMatches) {
    folder.MakeFolder(setupFile);
    EXPECT_FALSE(ReadIt().Complete);
    EXPECT_EQ(0, setup.ActiveFields);
}

TEST_F(UpdFieldFileTest, KeepsTheLinesBeforeAFailureUnchecked) {
    folder.Write(setupFile, "ActiveFields=2\r\nField1=nobody\r\nField2=Last Name\r\n" + QByteArray(1000, ';'));
    calls.LongestRead = 40;
    calls.ReadFailure = EIO;
    calls.ReadsBeforeFailure = 1;
    const SetupReading reading = ReadIt();
    EXPECT_FALSE(reading.Complete);
    EXPECT_TRUE(reading.Faults.empty());
    EXPECT_EQ(2, setup.ActiveFields);
    EXPECT_EQ(Text("nobody"), setup.Matches[1]);
    EXPECT_EQ(QString(), setup.Matches[2]); // its line was not read to the end
}

TEST_F(UpdFieldFileTest, KeepsTheLinesBeforeABadNumberUnchecked) {
    folder.Write(setupFile, "ActiveFields=2\r\nField1=nobody\r\nAddNames=99999\r\nField2=Last Name\r\n");
    setup.Matches[2] = Text("old");
    EXPECT_FALSE(ReadIt().Complete);
    EXPECT_EQ(2, setup.ActiveFields);
    EXPECT_EQ(Text("nobody"), setup.Matches[1]);
    EXPECT_EQ(Text("old"), setup.Matches[2]);
}

TEST_F(UpdFieldFileTest, KeepsTheCountBeforeAFailureUnchecked) {
    for (const int count : {25, -3}) {
        folder.Write(setupFile, "ActiveFields=" + QByteArray::number(count) + "\r\nAddNames=99999\r\n");
        EXPECT_FALSE(ReadIt().Complete);
        EXPECT_EQ(count, setup.ActiveFields);
    }
}

TEST_F(UpdFieldFileTest, ReportsAFailedSaveAndKeepsTheOldFile) {
    const QByteArray old = HandWritten("import/UpdField-three.cfg");
    folder.Write(setupFile, old);
    calls.WriteFailure = ENOSPC;
    EXPECT_EQ(61, SaveUpdFieldCFG(importPath, name, setup).Number);
    EXPECT_EQ(old, folder.Read(setupFile));
    EXPECT_EQ(76, SaveUpdFieldCFG(Text("c:\\none\\students.txt"), name, setup).Number);
}

TEST_F(UpdFieldFileTest, DoesNothingForAPathWithoutFolder) {
    for (const char* path : {"students.txt", "\\students.txt", ""}) {
        EXPECT_FALSE(SaveUpdFieldCFG(Text(path), name, setup)) << path;
        DeleteUpdFieldCFG(Text(path), name);
    }
    EXPECT_EQ(QStringList(), folder.Names(Text("c:\\")));
}

TEST_F(UpdFieldFileTest, DeletesTheFileQuietly) {
    folder.Write(setupFile, "x");
    folder.Write(importPath, "y");
    DeleteUpdFieldCFG(importPath, name);
    EXPECT_EQ(QStringList({Text("students.txt")}), folder.Names(Text("c:\\school")));
    DeleteUpdFieldCFG(importPath, name);
    EXPECT_TRUE(folder.Screen.Messages.empty());
}

} // namespace
