#include "tests/import/ImportWindow.h"
#include "tests/support/Text.h"

namespace {

class PagingTest : public ImportWindowTest {
protected:
    void ChangeFile(const QByteArray& bytes) {
        folder.Write(path, bytes);
        const auto later = std::filesystem::last_write_time(folder.Native(path)) + std::chrono::seconds(2);
        std::filesystem::last_write_time(folder.Native(path), later);
    }
};

TEST_F(PagingTest, PagesAndStopsAtBothEnds) {
    OpenWith("a,b,c\nd,e,f\ng,h,i");
    Click("spnRecords.Next");
    EXPECT_EQ(List("d|e|f"), Column(1));
    EXPECT_EQ(Text("Record 2 of 3"), Label("lblRecordCount"));
    Click("spnRecords.Next");
    Click("spnRecords.Next");
    EXPECT_EQ(List("g|h|i"), Column(1));
    EXPECT_EQ(Text("Record 3 of 3"), Label("lblRecordCount"));
    Click("spnRecords.Previous");
    Click("spnRecords.Previous");
    Click("spnRecords.Previous");
    EXPECT_EQ(List("a|b|c"), Column(1));
    EXPECT_EQ(Text("Record 1 of 3"), Label("lblRecordCount"));
}

TEST_F(PagingTest, StaysOnTheOnlyRecord) {
    OpenWith("a,b");
    Click("spnRecords.Next");
    EXPECT_EQ(Text("Record 1 of 1"), Label("lblRecordCount"));
    Click("spnRecords.Previous");
    EXPECT_EQ(Text("Record 1 of 1"), Label("lblRecordCount"));
    EXPECT_EQ(List("a|b"), Column(1));
}

TEST_F(PagingTest, WorksByTheKeyboard) {
    OpenWith("a\nb\nc\nd");
    auto* next = Control<QToolButton>("spnRecords.Next");
    const struct {
        Qt::Key key;
        const char* record;
    } keys[] = {{Qt::Key_End, "d"},  {Qt::Key_Left, "c"}, {Qt::Key_Up, "b"},   {Qt::Key_Right, "c"},
                {Qt::Key_Home, "a"}, {Qt::Key_Down, "b"}, {Qt::Key_Space, "c"}};
    for (const auto& row : keys) {
        QTest::keyClick(next, row.key);
        EXPECT_EQ(Text(row.record), Cell(0, 1)) << row.record;
    }
}

TEST_F(PagingTest, KeepsTheRowsOfTheFirstRecord) {
    OpenWith("a,b,c\nd\ng,h,i,j,k");
    Click("spnRecords.Next");
    EXPECT_EQ(List("d|b|c"), Column(1));
    EXPECT_EQ(Text("Matched: 0 of 3"), Label("lblMatched"));
    Click("spnRecords.Next");
    EXPECT_EQ(List("g|h|i"), Column(1));
    EXPECT_EQ(Text("Matched: 0 of 5"), Label("lblMatched"));
}

TEST_F(PagingTest, MatchesNoMoreThanTheRowsWhateverRecordIsShown) {
    OpenWith("a,b\nd,e,f,g\nh");
    Click("spnRecords.Next");
    DoubleClick({1, 2, 3, 4});
    EXPECT_EQ(List(" <-- Last Name| <-- First Name"), Column(2));
    EXPECT_EQ(Text("Matched: 2 of 2"), Label("lblMatched"));
    Click("cmdClearAll");
    Click("spnRecords.Next");
    DoubleClick({1, 2});
    EXPECT_EQ(Text("Matched: 2 of 2"), Label("lblMatched"));
}

TEST_F(PagingTest, CountsMoreRecordsThan16BitsHold) {
    OpenWith(QByteArray("x\n").repeated(99999) + "last");
    EXPECT_EQ(Text("Record 1 of 100000"), Label("lblRecordCount"));
    QTest::keyClick(Find("spnRecords.Next"), Qt::Key_End);
    EXPECT_EQ(Text("last"), Cell(0, 1));
    EXPECT_EQ(Text("Record 100000 of 100000"), Label("lblRecordCount"));
}

TEST_F(PagingTest, TellsThatTheFileVanished) {
    OpenWith("a,b\nc,d");
    folder.Remove(path);
    folder.Screen.Answer(MessageAnswer::Ok);
    Click("spnRecords.Next");
    ASSERT_EQ(1U, Messages().size());
    EXPECT_EQ(Text("IMPORT ERROR: 53"), Messages()[0].Title);
    EXPECT_EQ(Text("Unexpected Error while trying to read: c:\\School\\Students.txt\n\nFile not found"),
              Messages()[0].Text);
    EXPECT_EQ(List("a|b"), Column(1));
    EXPECT_EQ(Text("Record 1 of 2"), Label("lblRecordCount"));
    folder.Write(path, "a,b\nc,d");
    folder.Screen.Answer(MessageAnswer::Ok);
    Click("spnRecords.Next");
    EXPECT_EQ(List("c|d"), Column(1));
}

TEST_F(PagingTest, CountsAgainAfterTheFileGrewOrShrank) {
    OpenWith("a\nb\nc\n");
    QTest::keyClick(Find("spnRecords.Next"), Qt::Key_End);
    ChangeFile("a\nb\nc\nd\ne\n");
    folder.Screen.Answer(MessageAnswer::Ok);
    Click("spnRecords.Previous");
    EXPECT_EQ(Text("The import file has changed since it was opened.\n\nNumber of records now: 5"),
              Messages().back().Text);
    EXPECT_EQ(Text("b"), Cell(0, 1));
    EXPECT_EQ(Text("Record 2 of 5"), Label("lblRecordCount"));
    QTest::keyClick(Find("spnRecords.Next"), Qt::Key_End);
    EXPECT_EQ(Text("e"), Cell(0, 1));
    ChangeFile("other,x\nlast,y");
    folder.Screen.Answer(MessageAnswer::Ok);
    Click("spnRecords.Next");
    EXPECT_EQ(Text("last"), Cell(0, 1));
    EXPECT_EQ(Text("Record 2 of 2"), Label("lblRecordCount"));
    EXPECT_EQ(2U, Messages().size());
}

TEST_F(PagingTest, TellsThatTheFileBecameEmpty) {
    OpenWith("a\nb\n");
    ChangeFile("");
    folder.Screen.Answer(MessageAnswer::Ok);
    Click("spnRecords.Next");
    EXPECT_EQ(Text("IMPORT ERROR: 62"), Messages().back().Title);
    EXPECT_EQ(Text("a"), Cell(0, 1));
}

TEST_F(PagingTest, TellsThatTheDeviceFails) {
    OpenWith("a\nb\n");
    calls.ReadFailure = EIO;
    folder.Screen.Answer(MessageAnswer::Ok);
    Click("spnRecords.Next");
    EXPECT_EQ(Text("IMPORT ERROR: 57"), Messages().back().Title);
    EXPECT_EQ(Text("Record 1 of 2"), Label("lblRecordCount"));
}

TEST_F(PagingTest, KeepsWhatWasReadBeforeTheDeviceFailed) {
    folder.Write(setupFile, "ActiveFields=1\nField1=Last Name\n");
    calls.LongestRead = std::int64_t{64} * 1024;
    calls.ReadFailure = EIO;
    calls.ReadsBeforeFailure = 9;
    folder.Screen.Answer(MessageAnswer::Ok);
    OpenWith(QByteArray("0123456,89abcde\n").repeated(100000));
    EXPECT_EQ(Text("IMPORT ERROR: 57"), Messages().back().Title);
    EXPECT_EQ(List("0123456|89abcde"), Column(1));
    EXPECT_EQ(Text(" <-- Last Name"), Cell(0, 2));
    calls.ReadFailure = 0;
    QTest::keyClick(Find("spnRecords.Next"), Qt::Key_End);
    EXPECT_EQ(List("0123456|89abcde"), Column(1));
}

} // namespace
