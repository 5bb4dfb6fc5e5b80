#include "tests/transfer/TransferWindowTest.h"

#include <cerrno>

namespace {

using Kind = FaultyCalls::Kind;

QStringList DamagedCopies(const TestFolder& machine) {
    return machine.Names(QStringLiteral("c:\\gradewell")).filter(QStringLiteral(".damaged-"));
}

// Removes the copies and returns their bytes.
QList<QByteArray> TakeAwayDamagedCopies(TestFolder& machine) {
    QList<QByteArray> copies;
    for (const QString& name : DamagedCopies(machine)) {
        const QString path = QStringLiteral("c:\\gradewell\\") + name;
        copies.append(machine.Read(path));
        machine.Remove(path);
    }
    return copies;
}

TEST_F(TransferWindow, SaveWithoutAChangeKeepsEveryByte) {
    for (const char* golden : {"transfer/secondary.cfg", "transfer/windsor.cfg", "transfer/elementary.cfg"}) {
        OpenWith(HandWritten(golden));
        machine.Write(destination, "c:\\elsewhere");
        Click("cmdSaveRules");
        EXPECT_FALSE(window->isVisible()) << golden;
        EXPECT_EQ(window->result(), QDialog::Accepted) << golden;
        EXPECT_EQ(Saved(), HandWritten(golden)) << golden;
        EXPECT_EQ(machine.Names(ProgramFolder), QStringList{QStringLiteral("GWT10_PRG.CFG")}) << golden;
    }
}

TEST_F(TransferWindow, SaveWritesWhatIsShown) {
    OpenWith(HandWritten("transfer/windsor.cfg"));
    Click("lblLocked");
    List("cboSIS")->setCurrentIndex(0);
    List("cboBoard")->setCurrentIndex(3);
    Get<FolderList>("dirHDir")->setProperty("path", QString::fromUtf8("c:\\Reports\\Été 2016"));
    AccessKey(*window, Qt::Key_S);
    QTRY_VERIFY(!window->isVisible());
    EXPECT_EQ(Saved(), HandWritten("transfer/secondary.cfg"));
}

TEST_F(TransferWindow, WindsorHartsIsSavedWithoutABoard) {
    OpenWith(HandWritten("transfer/secondary.cfg"));
    List("cboSIS")->setCurrentIndex(16);
    Click("cmdClrPath");
    Click("imgLocked");
    Click("cmdSaveRules");
    EXPECT_EQ(Saved(), HandWritten("transfer/windsor.cfg"));
}

TEST_F(TransferWindow, NoSystemIsSavedAsNone) {
    Open();
    List("cboBoard")->setCurrentIndex(-1);
    Click("cmdSaveRules");
    EXPECT_EQ(Saved(), HandWritten("transfer/nosystem.cfg"));
}

TEST_F(TransferWindow, TheOlderLayoutIsSavedAsTodays) {
    OpenWith(HandWritten("transfer/older.cfg"));
    Click("cmdSaveRules");
    const QByteArray saved = Saved();
    EXPECT_EQ(saved.count("\r\n"), 14);
    EXPECT_TRUE(saved.contains("\r\n[Path to Report Folder (may be blank)]\r\n\"\"\r\n\"\"\r\n"));
    EXPECT_TRUE(saved.endsWith("\r\n2\r\n\"\"\r\n[SIS Code Number]\r\n16\r\n\"\"\r\n[SIS Name]\r\n"
                               "\"eSIS - Ontario: Secondary - Public\"\r\n"));
    EXPECT_TRUE(DamagedCopies(machine).isEmpty());
}

struct FaultCase {
    Kind Call;
    int Error;
    const char* Number;
};

TEST_F(TransferWindow, AFailedSaveIsToldAndTheWindowStays) {
    const FaultCase cases[] = {
        {Kind::Write, ENOSPC, "61"}, {Kind::Write, EIO, "57"}, {Kind::Replace, EACCES, "70"}, {Kind::Sync, EIO, "57"}};
    for (const FaultCase& row : cases) {
        FaultyCalls faulty;
        TestFolder other(faulty);
        other.Write(file, HandWritten("transfer/windsor.cfg"));
        other.Write(destination, "x");
        Open();
        List("cboSIS")->setCurrentIndex(3);
        faulty.FailAll(row.Call, row.Error);
        other.Screen.Answer(MessageAnswer::Ok);
        Click("cmdSaveRules");
        ASSERT_EQ(other.Screen.Messages.size(), 1U) << row.Number;
        EXPECT_EQ(other.Screen.Messages[0].Title,
                  QStringLiteral("GWT10_PRG.CFG SAVE ERROR: ") + QString::fromUtf8(row.Number));
        EXPECT_EQ(other.Screen.Messages[0].Text,
                  QStringLiteral("Unexpected Error while trying to save: GWT10_PRG.CFG"));
        EXPECT_EQ(other.Screen.Messages[0].Icon, MessageIcon::Critical);
        EXPECT_EQ(other.Screen.Messages[0].Buttons, MessageButtons::Ok);
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(Shown(), "Trillium - KPRDSB / Secondary - Public, on, board");
        EXPECT_EQ(other.Read(file), HandWritten("transfer/windsor.cfg"));
        EXPECT_TRUE(other.Exists(destination));
        window.reset();
    }
}

TEST_F(TransferWindow, AFailedSaveCanBeRepeated) {
    OpenWith(HandWritten("transfer/windsor.cfg"));
    calls.FailFirst(Kind::Write, ENOSPC, 1);
    machine.Screen.Answer(MessageAnswer::Ok);
    Click("lblLocked");
    Click("cmdSaveRules");
    EXPECT_TRUE(window->isVisible());
    Click("cmdSaveRules");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(Saved(), HandWritten("transfer/windsor.cfg").replace("Lock=OFF", "Lock=ON"));
}

TEST_F(TransferWindow, ADamagedFileIsKeptBeforeTheFirstSave) {
    const QByteArray damaged = HandWritten("transfer/windsor.cfg").left(100);
    OpenWith(damaged);
    List("cboBoard")->setCurrentIndex(2);
    Click("cmdSaveRules");
    ASSERT_EQ(DamagedCopies(machine), QStringList{QStringLiteral("GWT10_PRG.CFG.damaged-20160307-093000")});
    EXPECT_EQ(machine.Read(QStringLiteral("c:\\gradewell\\GWT10_PRG.CFG.damaged-20160307-093000")), damaged);
    Open();
    Click("cmdSaveRules");
    EXPECT_EQ(DamagedCopies(machine).size(), 1);
}

TEST_F(TransferWindow, ADamagedFileThatCannotBeKeptIsNotReplaced) {
    const QByteArray damaged("[t]\r\n[v]\r\n");
    OpenWith(damaged);
    calls.FailFirst(Kind::Write, ENOSPC, 1);
    machine.Screen.Answer(MessageAnswer::Ok);
    Click("cmdSaveRules");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(Saved(), damaged);
    Click("cmdSaveRules");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(DamagedCopies(machine).size(), 1);
}

TEST_F(TransferWindow, CancelKeepsADamagedFileAsItIs) {
    OpenWith("[t]\r\n");
    Click("cmdRulesCancel");
    EXPECT_EQ(Saved(), QByteArray("[t]\r\n"));
    EXPECT_TRUE(DamagedCopies(machine).isEmpty());
}

// The lines of a saved file whose values are these.
QByteArray FileOf(const char* lock, const QByteArray& path, int board, int number, const QByteArray& name) {
    return "[Gradewell 2016 Config - 2016 CY - Copyright (c) 2016]\r\n[2016 CY]\r\nProgram Config Lock=" +
           QByteArray(lock) + "\r\n[Path to Report Folder (may be blank)]\r\n\"" + path +
           "\"\r\n\"\"\r\n[Type of Board: 0 = Pub Elem | 1 = RC Elem | 2 = Pub Sec | 3 = RC Sec]\r\n" +
           QByteArray::number(board) + "\r\n\"\"\r\n[SIS Code Number]\r\n" + QByteArray::number(number) +
           "\r\n\"\"\r\n[SIS Name]\r\n\"" + name + "\"\r\n";
}

// Where the given line (from 1) begins.
qsizetype StartOfLine(const QByteArray& bytes, int line) {
    qsizetype at = 0;
    for (int before = 1; before < line; ++before) {
        at = bytes.indexOf('\n', at) + 1;
    }
    return at;
}

TEST_F(TransferWindow, AFileCutAtEveryByteOpensAndSaves) {
    const QByteArray whole = HandWritten("transfer/windsor.cfg");
    for (qsizetype cut = 0; cut <= whole.size(); ++cut) {
        OpenWith(whole.left(cut));
        Click("cmdSaveRules");
        EXPECT_FALSE(window->isVisible()) << cut;
        const char* lock = cut >= StartOfLine(whole, 12) + 2 ? "OFF" : "ON";
        const qsizetype digits = cut - StartOfLine(whole, 11);
        const QByteArray expected = cut <= StartOfLine(whole, 8) ? FileOf("ON", {}, 0, 0, ": Elementary - Public")
                                    : digits <= 0                ? FileOf("ON", {}, 2, 0, ": Secondary - Public")
                                    : digits == 1 ? FileOf("ON", {}, 2, 1, "Trillium: Secondary - Public")
                                                  : FileOf(lock, {}, 2, 10, "Windsor-Harts");
        EXPECT_EQ(Saved().toStdString(), expected.toStdString()) << cut;
        for (const QByteArray& copy : TakeAwayDamagedCopies(machine)) {
            EXPECT_EQ(copy, whole.left(cut));
        }
    }
}

TEST_F(TransferWindow, APathCutAtEveryByteIsNeverHalfRead) {
    const QByteArray whole = HandWritten("transfer/secondary.cfg");
    const QByteArray path("c:\\reports\\\xe9t\xe9 2016");
    for (qsizetype cut = StartOfLine(whole, 4); cut <= StartOfLine(whole, 8); ++cut) {
        OpenWith(whole.left(cut));
        Click("cmdSaveRules");
        const bool read = cut >= StartOfLine(whole, 6) - 2;
        EXPECT_EQ(Saved().toStdString(),
                  FileOf("ON", read ? path : QByteArray(), 0, 0, ": Elementary - Public").toStdString())
            << cut;
        TakeAwayDamagedCopies(machine);
    }
    EXPECT_TRUE(machine.Screen.Messages.empty());
}

// What is saved when a file with the pair is opened and saved at once. An elementary board ends at Trillium, a number
// that is not offered at none.
struct StoredPair {
    int Number;
    int SavedNumber;
    const char* PublicName;
    const char* CatholicName;
};

const StoredPair SecondaryPairs[] = {
    {0, 1, "Trillium: Secondary - Public", "Trillium: Secondary - Catholic"},
    {1, 1, "Trillium: Secondary - Public", "Trillium: Secondary - Catholic"},
    {2, 0, ": Secondary - Public", ": Secondary - Catholic"},
    {3, 3, "Trevlac: Secondary - Public", "Trevlac: Secondary - Catholic"},
    {4, 0, ": Secondary - Public", ": Secondary - Catholic"},
    {5, 5, "Peel DSB: Secondary - Public", "Peel DSB: Secondary - Catholic"},
    {6, 6, "Trillium - HWCDSB: Secondary - Public", "Trillium - HWCDSB: Secondary - Catholic"},
    {7, 0, ": Secondary - Public", ": Secondary - Catholic"},
    {8, 8, "Inkwell: Secondary - Public", "Inkwell: Secondary - Catholic"},
    {9, 0, ": Secondary - Public", ": Secondary - Catholic"},
    {10, 10, "Windsor-Harts", "Windsor-Harts"},
    {11, 0, ": Secondary - Public", ": Secondary - Catholic"},
    {12, 12, "Trillium - BWDSB: Secondary - Public", "Trillium - BWDSB: Secondary - Catholic"},
    {13, 13, "Trillium - OCDSB: Secondary - Public", "Trillium - OCDSB: Secondary - Catholic"},
    {14, 14, "Maplewood - Ont.: Secondary - Public", "Maplewood - Ont.: Secondary - Catholic"},
    {15, 15, "SASI - YCDSB: Secondary - Public", "SASI - YCDSB: Secondary - Catholic"},
    {16, 16, "eSIS - Ontario: Secondary - Public", "eSIS - Ontario: Secondary - Catholic"},
    {17, 17, "Maplewood: Secondary - Public", "Maplewood: Secondary - Catholic"},
    {18, 18, "MANAGELink: Secondary - Public", "MANAGELink: Secondary - Catholic"},
    {19, 19, "eSIS - Durham DSB: Secondary - Public", "eSIS - Durham DSB: Secondary - Catholic"},
    {20, 20, "Taylor's College: Secondary - Public", "Taylor's College: Secondary - Catholic"},
    {21, 21, "Trillium - KPRDSB: Secondary - Public", "Trillium - KPRDSB: Secondary - Catholic"},
    {22, 22, "Trillium - WRDSB: Secondary - Public", "Trillium - WRDSB: Secondary - Catholic"},
    {23, 1, "Trillium: Secondary - Public", "Trillium: Secondary - Catholic"},
};

TEST_F(TransferWindow, EveryStoredPairIsSavedAsItStandsAtTheEnd) {
    for (const StoredPair& row : SecondaryPairs) {
        const QByteArray expected[] = {FileOf("OFF", {}, 0, 1, "Trillium: Elementary - Public"),
                                       FileOf("OFF", {}, 1, 1, "Trillium: Elementary - Catholic"),
                                       FileOf("OFF", {}, 2, row.SavedNumber, row.PublicName),
                                       FileOf("OFF", {}, 3, row.SavedNumber, row.CatholicName)};
        for (int board = 0; board <= 3; ++board) {
            OpenWith(FileOf("OFF", {}, board, row.Number, "never read"));
            Click("cmdSaveRules");
            EXPECT_EQ(Saved().toStdString(), expected[board].toStdString()) << row.Number << " " << board;
        }
    }
    EXPECT_TRUE(DamagedCopies(machine).isEmpty());
}

} // namespace
