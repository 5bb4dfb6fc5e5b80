#include "tests/import/ImportWindow.h"
#include "tests/support/Text.h"

namespace {

/// A student data file with a setup on a share whose reads may hang.
class StalledShareTest : public ImportWindowTest {
protected:
    bool acted = false;

    StalledShareTest() {
        folder.Write(setupFile, "ActiveFields=1\nField1=Gender\nAddNames=1\n");
        folder.Write(path, "M,a\nF,b\n");
        ProgramConfig.ImportStudentsFile = path;
        QObject::connect(&watch, &QTimer::timeout, [this] { ActIfStalled(); });
        watch.setInterval(1);
    }

    /// Does something, once, as soon as a read hangs and the window shows that it waits.
    void WhenStalled(const std::function<void()>& actToDo) {
        act = actToDo;
        acted = false;
        watch.start();
    }

    void ExpectAnOpenedFile() const {
        EXPECT_EQ(List("M|a"), Column(1));
        EXPECT_EQ(List(" <-- Gender|"), Column(2));
        EXPECT_EQ(Text("Record 1 of 2"), Label("lblRecordCount"));
        EXPECT_EQ(Text("Matched: 1 of 2"), Label("lblMatched"));
        EXPECT_EQ(QString(), Label("lblNotice"));
        EXPECT_TRUE(Control<QCheckBox>("chkCLUpd(0)")->isChecked());
        EXPECT_TRUE(Find("spnRecords")->isVisible());
        EXPECT_FALSE(Find("imgLoading")->isVisible());
    }

private:
    QTimer watch;
    std::function<void()> act;

    void ActIfStalled() {
        if (window != nullptr && calls.IsStalled() && window->preview->imgLoading->isVisible()) {
            watch.stop();
            acted = true;
            act();
        }
    }
};

TEST_F(StalledShareTest, EscapeStopsWhateverReadHangsAndTheWindowWorks) {
    int reads = 0;
    do {
        calls.StallAfter(reads++);
        WhenStalled([this] { QTest::keyClick(window.get(), Qt::Key_Escape); });
        Show();
        if (acted) {
            EXPECT_TRUE(window->isVisible()) << reads;
            EXPECT_FALSE(Find("imgLoading")->isVisible()) << reads;
            EXPECT_TRUE(Label("lblNotice").startsWith(Text("The reading was stopped"))) << reads;
            EXPECT_EQ(path, Label("lblFileName"));
            calls.Recover();
            folder.Screen.AnswerFile(path);
            Click("cmdOpen");
        }
        ExpectAnOpenedFile();
        calls.Recover();
        AwaitBackgroundWork();
        ImportUpdateOptions = UpdateOptions();
    } while (acted && reads < 50);
    EXPECT_GT(reads, 4); // setup file, first record and counting
    EXPECT_LT(reads, 50);
}

TEST_F(StalledShareTest, GoesOnAsSoonAsTheShareAnswers) {
    for (const int reads : {0, 2, 4}) {
        calls.StallAfter(reads);
        WhenStalled([this] { calls.Recover(); });
        Show();
        EXPECT_TRUE(acted) << reads;
        ExpectAnOpenedFile();
    }
}

TEST_F(StalledShareTest, CancelAndTheCloseButtonAnswer) {
    const struct {
        std::function<void()> way;
        bool leaves;
    } ways[] = {{[this] { QTest::mouseClick(window->cmdExitImport, Qt::LeftButton); }, false},
                {[this] { QTest::keyClick(window->cmdExitImport, Qt::Key_Space); }, false},
                {[this] { window->close(); }, true}};
    for (const auto& row : ways) {
        calls.StallAfter(2);
        WhenStalled(row.way);
        Show();
        EXPECT_TRUE(acted);
        EXPECT_EQ(row.leaves, !window->isVisible());
        calls.Recover();
        AwaitBackgroundWork();
    }
}

TEST_F(StalledShareTest, ShowsNoRecordWhenTheFirstOneWasStopped) {
    calls.StallAfter(2);
    WhenStalled([this] { QTest::keyClick(window.get(), Qt::Key_Escape); });
    Show();
    EXPECT_EQ(Text("The reading was stopped before the first record came."), Label("lblNotice"));
    EXPECT_EQ(0, window->preview->grdImport->rowCount());
    EXPECT_FALSE(Find("spnRecords")->isVisible());
    EXPECT_FALSE(Find("lblRecordCount")->isVisible());
    EXPECT_TRUE(Messages().empty());
}

TEST_F(StalledShareTest, KeepsTheShownRecordWhenTheNextOneWasStopped) {
    Show();
    calls.StallAfter(0);
    WhenStalled([this] {
        EXPECT_FALSE(Find("spnRecords")->isVisible());
        QTest::keyClick(window.get(), Qt::Key_Escape);
    });
    Click("spnRecords.Next");
    EXPECT_TRUE(acted);
    ExpectAnOpenedFile();
    calls.Recover();
    Click("spnRecords.Next");
    EXPECT_EQ(List("F|b"), Column(1));
    EXPECT_EQ(Text("Record 2 of 2"), Label("lblRecordCount"));
}

} // namespace
