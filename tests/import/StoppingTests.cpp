#include "tests/import/ImportWindow.h"
#include "tests/support/Text.h"

namespace {

/// Lets the window's user act while the file is counted.
class StoppingTest : public ImportWindowTest {
protected:
    /// Does something once as soon as the bar is seen.
    void WhileReading(const std::function<void()>& act) {
        class Watcher : public QObject {
        public:
            std::function<void()> act;
            bool eventFilter(QObject* receiver, QEvent* event) override {
                auto* bar = qobject_cast<QProgressBar*>(receiver);
                if (bar != nullptr && event->type() == QEvent::Paint && bar->value() > 0 && act) {
                    std::exchange(act, nullptr)();
                }
                return false;
            }
        };
        watcher = std::make_unique<Watcher>();
        acted = false;
        static_cast<Watcher*>(watcher.get())->act = [this, act] {
            acted = true;
            act();
        };
        qApp->installEventFilter(watcher.get());
    }

    /// Whether there was a time to act.
    bool Acted() const { return acted; }

    void OpenLargeFile() { OpenWith(QByteArray("0123456,89abcde\n").repeated(500000)); }

private:
    std::unique_ptr<QObject> watcher;
    bool acted = false;
};

TEST_F(StoppingTest, EscapeAndCancelStopTheReadingAndLeaveAWorkingWindow) {
    const std::function<void()> ways[] = {[this] { QTest::keyClick(window.get(), Qt::Key_Escape); },
                                          [this] { QTest::mouseClick(window->cmdExitImport, Qt::LeftButton); },
                                          [this] { QTest::keyClick(window->cmdExitImport, Qt::Key_Space); }};
    for (const auto& way : ways) {
        WhileReading(way);
        OpenLargeFile();
        EXPECT_TRUE(window->isVisible());
        EXPECT_TRUE(Label("lblNotice").startsWith(Text("The reading was stopped: only the first ")));
        EXPECT_FALSE(Find("prgLoading")->isVisible());
        const qint64 count = Label("lblRecordCount").section(QChar(u' '), -1).toLongLong();
        EXPECT_GT(count, 0);
        EXPECT_LT(count, 500000);
        QTest::keyClick(Find("spnRecords.Next"), Qt::Key_End);
        EXPECT_EQ(List("0123456|89abcde"), Column(1));
        DoubleClick(LastNameField);
        EXPECT_EQ(Text(" <-- Last Name"), Cell(0, 2));
        QTest::keyClick(window.get(), Qt::Key_Escape);
        EXPECT_FALSE(window->isVisible());
    }
}

TEST_F(StoppingTest, TheCloseButtonStopsTheReadingAndLeaves) {
    WhileReading([this] { window->close(); });
    OpenLargeFile();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(StoppingTest, ShowsTheFileThatItReads) {
    WhileReading([this] {
        EXPECT_EQ(path, Label("lblFileName"));
        EXPECT_EQ(List("0123456|89abcde"), Column(1));
        EXPECT_TRUE(Find("imgLoading")->isVisible());
        EXPECT_FALSE(Find("lblRecordCount")->isVisible());
    });
    OpenLargeFile();
    EXPECT_TRUE(Acted());
}

TEST_F(StoppingTest, IsReadyWhenThePictureGoes) {
    class Onlooker : public QObject {
    public:
        std::function<void()> Look;
        bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
            if (event->type() == QEvent::Hide) {
                Look();
            }
            return false;
        }
    };
    folder.Write(setupFile, "ActiveFields=1\nField1=Last Name\n");
    OpenWith("a,b\nc,d");
    Click("spnRecords.Next");
    QStringList seen;
    Onlooker onlooker;
    onlooker.Look = [&] { seen.append(Cell(0, 2) + QChar(u'/') + Label("lblRecordCount")); };
    window->preview->imgLoading->installEventFilter(&onlooker);
    folder.Remove(setupFile);
    folder.Screen.AnswerFile(path);
    Click("cmdOpen");
    window->preview->imgLoading->removeEventFilter(&onlooker);
    EXPECT_EQ(QStringList({Text("/Record 1 of 2")}), seen);
}

TEST_F(StoppingTest, NothingElseWorksWhileTheFileIsRead) {
    WhileReading([this] {
        Click("cmdOpen");
        Click("cmdSave");
        Click("cmdClearAll");
        DoubleClick(LastNameField);
        QTest::keyClick(Find("cmdOpen"), Qt::Key_Space);
        EXPECT_TRUE(Find("imgLoading")->isVisible());
        EXPECT_TRUE(Find("prgLoading")->isVisible());
        EXPECT_FALSE(Find("spnRecords")->isVisible());
    });
    OpenLargeFile();
    EXPECT_TRUE(Acted());
    EXPECT_EQ(Text("Record 1 of 500000"), Label("lblRecordCount"));
    EXPECT_EQ(QString(), Cell(0, 2));
    EXPECT_EQ(QString(), Label("lblNotice"));
}

} // namespace
