#include "tests/import/ImportWindow.h"
#include "tests/support/Text.h"

namespace {

using MatchingWindowTest = ImportWindowTest;

TEST_F(MatchingWindowTest, ADoubleClickMatchesTheNextRow) {
    OpenWith("a,b,c");
    DoubleClick(LastNameField);
    EXPECT_EQ(Text(" <-- Last Name"), Cell(0, 2));
    EXPECT_EQ(Text("Matched: 1 of 3"), Label("lblMatched"));
    EXPECT_FALSE(Field(LastNameField)->isEnabled());
    EXPECT_TRUE(Field(LastNameField)->font().bold());
    DoubleClick({LastNameField, IgnoreField, IgnoreField, FirstNameField});
    EXPECT_EQ(List(" <-- Last Name| <-- Ignore this field| <-- Ignore this field"), Column(2));
    EXPECT_EQ(Text("Matched: 3 of 3"), Label("lblMatched"));
    EXPECT_TRUE(Field(IgnoreField)->isEnabled());
    EXPECT_FALSE(Field(IgnoreField)->font().bold());
    EXPECT_TRUE(Field(FirstNameField)->isEnabled());
}

TEST_F(MatchingWindowTest, TakesImportIf1First) {
    OpenWith("a,b,c");
    DoubleClick({ImportIf2Field, ImportIf2Field});
    EXPECT_EQ(List(" <-- Import If #1| <-- Import If #2|"), Column(2));
}

TEST_F(MatchingWindowTest, OnlyTheLeftButtonChooses) {
    OpenWith("a,b,c");
    QTest::mouseDClick(Field(1), Qt::RightButton);
    QTest::mousePress(Field(1), Qt::RightButton);
    DropOnGrid();
    EXPECT_EQ(Text("Matched: 0 of 3"), Label("lblMatched"));
}

TEST_F(MatchingWindowTest, ADropMatchesTheFieldPressedOnce) {
    OpenWith("a,b,c");
    EXPECT_TRUE(DropOnGrid());
    EXPECT_EQ(Text("Matched: 0 of 3"), Label("lblMatched"));
    Press(4);
    DropOnGrid();
    DropOnGrid();
    EXPECT_EQ(List(" <-- Gender||"), Column(2));
    Press(ImportIf2Field);
    DropOnGrid();
    Press(ImportIf2Field);
    DropOnGrid();
    EXPECT_EQ(List(" <-- Gender| <-- Import If #1| <-- Import If #2"), Column(2));
    EXPECT_EQ(Text("Matched: 3 of 3"), Label("lblMatched"));
}

TEST_F(MatchingWindowTest, RefusesADropOfAnythingElse) {
    OpenWith("a,b,c");
    Press(4);
    QMimeData data;
    data.setText(Text("Gender"));
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window->preview->grdImport->viewport(), &enter);
    EXPECT_FALSE(enter.isAccepted());
    EXPECT_EQ(Text("Matched: 0 of 3"), Label("lblMatched"));
}

TEST_F(MatchingWindowTest, TheGridTakesADragOnlyWhileARowIsFree) {
    OpenWith("a,b");
    for (int row = 0; row < 2; ++row) {
        Press(IgnoreField);
        EXPECT_TRUE(DropOnGrid()) << row;
    }
    Press(IgnoreField);
    EXPECT_FALSE(DropOnGrid());
}

TEST_F(MatchingWindowTest, ADisabledFieldNeitherMatchesNorDrags) {
    OpenWith("a,b,c");
    DoubleClick(LastNameField);
    QSignalSpy drags(window->preview->pnlFieldList, &FieldListPanel::Dragged);
    Press(LastNameField);
    QTest::mouseMove(Field(LastNameField), QPoint(60, 60));
    EXPECT_EQ(0, drags.count());
    DropOnGrid();
    EXPECT_EQ(Text("Matched: 1 of 3"), Label("lblMatched"));
}

TEST_F(MatchingWindowTest, ClearLastGivesTheFieldBack) {
    OpenWith("a,b,c");
    DoubleClick({LastNameField, IgnoreField});
    Click("cmdClearMatch");
    EXPECT_EQ(List(" <-- Last Name||"), Column(2));
    EXPECT_EQ(Text("Matched: 1 of 3"), Label("lblMatched"));
    EXPECT_TRUE(window->cmdSave->isEnabled());
    Click("cmdClearMatch");
    EXPECT_EQ(Text("Matched: 0 of 3"), Label("lblMatched"));
    EXPECT_TRUE(Field(LastNameField)->isEnabled());
    EXPECT_FALSE(Field(LastNameField)->font().bold());
    EXPECT_FALSE(window->cmdSave->isEnabled());
    Click("cmdClearMatch");
    EXPECT_EQ(Text("Matched: 0 of 3"), Label("lblMatched"));
    DoubleClick(LastNameField);
    EXPECT_TRUE(window->cmdSave->isEnabled());
}

TEST_F(MatchingWindowTest, ClearAllLeavesSaveAsItIs) {
    OpenWith("a,b,c");
    DoubleClick({LastNameField, DobField});
    Click("cmdClearAll");
    EXPECT_EQ(List("||"), Column(2));
    EXPECT_EQ(Text("Matched: 0 of 3"), Label("lblMatched"));
    EXPECT_TRUE(Field(DobField)->isEnabled());
    EXPECT_TRUE(window->cmdSave->isEnabled());
    DoubleClick(LastNameField);
    Click("cmdClearMatch");
    Click("cmdClearAll");
    EXPECT_FALSE(window->cmdSave->isEnabled());
}

TEST_F(MatchingWindowTest, AnotherFormatChangesTheMatchedBirthDate) {
    OpenWith("a,b,c,d");
    DoubleClick({1, 2, 3, DobField});
    EXPECT_EQ(Text(" <-- DOB (Year/Mth/Day)"), Cell(3, 2));
    const char* const formats[] = {"Year/Mth/Day", "Mth/Day/Year", "Day/Mth/Year", "YearMMDD", "MMDDYear", "DDMMYear"};
    for (int code = 5; code >= 0; --code) {
        window->cboDOB->setCurrentIndex(code);
        const QString caption = Text("DOB (") + Text(formats[code]) + Text(")");
        EXPECT_EQ(Text(formats[code]), window->cboDOB->currentText());
        EXPECT_EQ(caption, Field(DobField)->text());
        EXPECT_EQ(Text(" <-- ") + caption, Cell(3, 2));
        EXPECT_EQ(code < 3 ? Text("Month and Day may be 1 or 2 digits; Year, 2 or 4 digits.\n"
                                  "Characters other than [ / ] may separate values.")
                           : Text("Month and Day MUST be 2 digits; Year may be 2 or 4 digits.\n"
                                  "There MUST NOT be any separator."),
                  Label("lblDOBInstr"));
    }
}

TEST_F(MatchingWindowTest, StartsWithTheStoredFormat) {
    OpenWith("a");
    EXPECT_EQ(0, window->cboDOB->currentIndex());
    EXPECT_EQ(Text("DOB (Year/Mth/Day)"), Field(DobField)->text());
    EXPECT_NE(QString(), Label("lblDOBInstr"));
    ProgramConfig.ImportFields[0] = Text("3");
    Show();
    EXPECT_EQ(3, window->cboDOB->currentIndex());
}

TEST_F(MatchingWindowTest, UsesTheBirthDateForEveryEntryThatBeginsSo) {
    folder.Write(setupFile, "ActiveFields=1\nField1=dob (MMDDYear)\n");
    OpenWith("a,b");
    EXPECT_EQ(Text(" <-- dob (MMDDYear)"), Cell(0, 2));
    EXPECT_FALSE(Field(DobField)->isEnabled());
    EXPECT_TRUE(Field(DobField)->font().bold());
    QTest::keyClick(window->cboDOB, Qt::Key_Up);
    EXPECT_EQ(Text(" <-- DOB (YearMMDD)"), Cell(0, 2));
    QTest::keyClick(window->cboDOB, Qt::Key_Down);
    EXPECT_EQ(Text(" <-- DOB (MMDDYear)"), Cell(0, 2));
    Click("cmdClearMatch");
    EXPECT_TRUE(Field(DobField)->isEnabled());
}

TEST_F(MatchingWindowTest, ChoosingTheSameFormatAgainCountsAsChoosing) {
    folder.Write(setupFile, "ActiveFields=1\nField1=dob (MMDDYear)\n");
    OpenWith("a,b");
    Q_EMIT window->cboDOB->activated(4);
    EXPECT_EQ(Text(" <-- DOB (MMDDYear)"), Cell(0, 2));
}

TEST_F(MatchingWindowTest, WorksByTheKeyboard) {
    OpenWith("a,b,c,d");
    window->activateWindow();
    Field(1)->setFocus();
    ASSERT_TRUE(Field(1)->hasFocus());
    EXPECT_EQ(0, window->preview->grdImport->MarkedRow());
    QTest::keyClick(Field(1), Qt::Key_Return);
    ASSERT_TRUE(Field(2)->hasFocus()); // the focus leaves a used field
    EXPECT_EQ(1, window->preview->grdImport->MarkedRow());
    QTest::keyClick(Field(2), Qt::Key_Up); // there is no free field above
    ASSERT_TRUE(Field(2)->hasFocus());
    QTest::keyClick(Field(2), Qt::Key_End);
    ASSERT_TRUE(Field(IgnoreField)->hasFocus());
    QTest::keyClick(Field(IgnoreField), Qt::Key_Space);
    QTest::keyClick(Field(IgnoreField), Qt::Key_Enter);
    QTest::keyClick(Field(IgnoreField), Qt::Key_Down);
    ASSERT_TRUE(Field(IgnoreField)->hasFocus());
    QTest::keyClick(Field(IgnoreField), Qt::Key_Home);
    ASSERT_TRUE(Field(2)->hasFocus());
    QTest::keyClick(Field(2), Qt::Key_Down);
    ASSERT_TRUE(Field(3)->hasFocus());
    QTest::keyClick(Field(3), Qt::Key_Space);
    EXPECT_EQ(List(" <-- Last Name| <-- Ignore this field| <-- Ignore this field| <-- Program"), Column(2));
    EXPECT_EQ(ImportGrid::NoRow, window->preview->grdImport->MarkedRow());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(MatchingWindowTest, BringsTheNextRowIntoView) {
    OpenWith(QByteArray("x,").repeated(24));
    for (int match = 1; match <= 20; ++match) {
        Field(IgnoreField)->setFocus();
        QTest::keyClick(Field(IgnoreField), Qt::Key_Space);
    }
    window->activateWindow();
    Field(IgnoreField)->setFocus();
    const ImportGrid* grid = window->preview->grdImport;
    EXPECT_EQ(20, grid->MarkedRow());
    EXPECT_TRUE(grid->viewport()->rect().contains(grid->visualItemRect(grid->item(20, 1)).center()));
}

TEST_F(MatchingWindowTest, BoxesCountByMouseAndKeyboard) {
    OpenWith("a,b");
    Click("chkCLUpd(1)");
    QTest::keyClick(Find("chkCLUpdFields(3)"), Qt::Key_Space);
    EXPECT_EQ(1, window->pnlUpdateOpts->Options().Actions[1]);
    EXPECT_EQ(1, window->pnlUpdateOpts->Options().Fields[3]);
    QTest::keyClick(Find("chkCLUpdFields(3)"), Qt::Key_Space);
    EXPECT_EQ(0, window->pnlUpdateOpts->Options().Fields[3]);
}

} // namespace
