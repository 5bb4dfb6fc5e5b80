#include "platform/widgets/Pictures.h"
#include "platform/widgets/TextBox.h"
#include "tests/support/PrintText.h"
#include "tests/support/WindowInput.h"

namespace {

// Two text boxes, a button with an access key, a picture and a label that can be clicked.
class TextBoxes : public testing::Test {
protected:
    TextBoxes() {
        auto* column = new QVBoxLayout(&Window);
        for (QWidget* widget :
             std::initializer_list<QWidget*>{&First, &Second, &Save, &Tick, &Lock, &Label, &Passive}) {
            column->addWidget(widget);
        }
        First.SetLostFocusRule([this] {
            ++RuleRuns;
            return Accepts;
        });
        QObject::connect(&Save, &QPushButton::clicked, [this] { ++Saves; });
        QObject::connect(&Lock, &QToolButton::clicked, [this] { ++LockClicks; });
        QObject::connect(&Label, &ClickableLabel::Clicked, [this] { ++LabelClicks; });
        ShowActive(Window);
        QTest::keyClick(&First, Qt::Key_Tab);
        RuleRuns = 0;
        First.setText(QStringLiteral("first"));
        First.setFocus(Qt::TabFocusReason);
    }

    void ExpectRefused(const char* how) {
        EXPECT_EQ(RuleRuns, 1) << how << ": the rule runs once";
        EXPECT_TRUE(First.hasFocus()) << how;
        EXPECT_EQ(Saves + LockClicks + LabelClicks, 0) << how;
        EXPECT_FALSE(Tick.isChecked()) << how;
    }

    QWidget Window;
    TextBox First{&Window};
    TextBox Second{&Window};
    QPushButton Save{QStringLiteral("&Save"), &Window};
    QCheckBox Tick{QStringLiteral("&Tick"), &Window};
    PictureButton Lock{QStringLiteral("lock-open"), 32, QStringLiteral("Lock"), &Window};
    ClickableLabel Label{&Window};
    QLabel Passive{QStringLiteral("passive"), &Window};
    bool Accepts = true;
    int RuleRuns = 0;
    int Saves = 0;
    int LockClicks = 0;
    int LabelClicks = 0;
};

TEST_F(TextBoxes, FocusSelectsTheWholeText) {
    EXPECT_EQ(First.selectedText(), QStringLiteral("first"));
    Second.setText(QStringLiteral("second"));
    QTest::mouseClick(&Second, Qt::LeftButton, {}, QPoint(20, 8));
    EXPECT_TRUE(Second.hasFocus());
    EXPECT_EQ(Second.selectedText(), QStringLiteral("second")) << "by a click, too";
    QTest::mouseClick(&Second, Qt::LeftButton, {}, QPoint(20, 8));
    EXPECT_EQ(Second.selectedText(), QString()) << "a second click places the cursor";
}

TEST_F(TextBoxes, TheFocusThatAWindowOpensWithCounts) {
    QWidget window;
    TextBox box(&window);
    int runs = 0;
    box.setText(QStringLiteral("text"));
    box.SetLostFocusRule([&] { return ++runs > 0; });
    QSignalSpy entered(&box, &TextBox::GotFocus);
    ShowActive(window);
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(entered.count(), 1);
    EXPECT_EQ(box.selectedText(), QStringLiteral("text"));
    EXPECT_TRUE(box.Leave());
    EXPECT_EQ(runs, 1);
}

TEST_F(TextBoxes, EnterActsAsTab) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        First.setFocus();
        QTest::keyClick(&First, key);
        EXPECT_TRUE(Second.hasFocus());
    }
    EXPECT_EQ(RuleRuns, 2);
}

TEST_F(TextBoxes, CharactersOutsideTheCodePageShowAsQuestionMarks) {
    First.clear();
    for (const QChar character : QString::fromUtf8("aΩé")) {
        QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QApplication::sendEvent(&First, &typed);
    }
    EXPECT_EQ(First.text(), QString::fromUtf8("a?é"));
    EXPECT_EQ(First.cursorPosition(), 3);
    QGuiApplication::clipboard()->setText(QString::fromUtf8("x😀y€"));
    First.home(false);
    First.paste();
    EXPECT_EQ(First.text(), QString::fromUtf8("x?y€a?é"));
    EXPECT_EQ(First.cursorPosition(), 4);
}

TEST_F(TextBoxes, TheRuleRunsOnceForOneLeaving) {
    QTest::keyClick(&First, Qt::Key_Tab);
    EXPECT_EQ(RuleRuns, 1);
    QTest::keyClick(&Second, Qt::Key_Backtab);
    EXPECT_TRUE(First.hasFocus());
    QTest::mouseClick(&Save, Qt::LeftButton);
    EXPECT_EQ(RuleRuns, 2);
    EXPECT_EQ(Saves, 1);
    First.setFocus();
    AccessKey(Window, Qt::Key_S);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Saves == 2; }));
    EXPECT_EQ(RuleRuns, 3);
    EXPECT_TRUE(Save.hasFocus()) << "the access key moves the focus, as a click does";
}

TEST_F(TextBoxes, ARefusalStopsTab) {
    Accepts = false;
    QTest::keyClick(&First, Qt::Key_Tab);
    ExpectRefused("Tab");
}

TEST_F(TextBoxes, ARefusalStopsBacktab) {
    Accepts = false;
    QTest::keyClick(&First, Qt::Key_Backtab, Qt::ShiftModifier);
    ExpectRefused("Shift+Tab");
}

TEST_F(TextBoxes, ARefusalStopsEnter) {
    Accepts = false;
    QTest::keyClick(&First, Qt::Key_Return);
    ExpectRefused("Enter");
}

TEST_F(TextBoxes, ARefusalStopsAClickOnAButton) {
    Accepts = false;
    QTest::mouseClick(&Save, Qt::LeftButton);
    ExpectRefused("button");
}

TEST_F(TextBoxes, ARefusalStopsAClickOnATickBox) {
    Accepts = false;
    QTest::mouseClick(&Tick, Qt::LeftButton, {}, QPoint(8, Tick.height() / 2));
    ExpectRefused("check box");
}

TEST_F(TextBoxes, ARefusalStopsAClickOnAPicture) {
    Accepts = false;
    QTest::mouseClick(&Lock, Qt::LeftButton);
    ExpectRefused("picture");
}

TEST_F(TextBoxes, ARefusalStopsAClickOnALabelThatActs) {
    Accepts = false;
    QTest::mouseClick(&Label, Qt::LeftButton);
    ExpectRefused("label");
}

TEST_F(TextBoxes, ARefusalStopsAClickOnAnotherBox) {
    Accepts = false;
    QTest::mouseClick(&Second, Qt::LeftButton);
    ExpectRefused("text box");
}

TEST_F(TextBoxes, ARefusalStopsAnAccessKey) {
    Accepts = false;
    AccessKey(Window, Qt::Key_S);
    ExpectRefused("access key");
    EXPECT_FALSE(Save.isDown()) << "the button has not even begun to act";
}

TEST_F(TextBoxes, ARefusalBringsTheFocusBackThatCodeMoved) {
    Accepts = false;
    Second.setFocus();
    EXPECT_EQ(RuleRuns, 1);
    EXPECT_TRUE(First.hasFocus());
}

TEST_F(TextBoxes, AfterARefusalTheNextTryRunsTheRuleAgain) {
    Accepts = false;
    QTest::mouseClick(&Save, Qt::LeftButton);
    Accepts = true;
    QTest::mouseClick(&Save, Qt::LeftButton);
    EXPECT_EQ(RuleRuns, 2);
    EXPECT_EQ(Saves, 1);
}

TEST_F(TextBoxes, APressThatDoesNothingIsNoLeaving) {
    QTest::mouseClick(&Passive, Qt::LeftButton);
    EXPECT_EQ(RuleRuns, 0);
    EXPECT_TRUE(First.hasFocus());
}

TEST_F(TextBoxes, AMessageBoxOfTheRuleDoesNotRunItAgain) {
    First.SetLostFocusRule([this] {
        ++RuleRuns;
        QMessageBox box(&Window);
        QTimer::singleShot(0, &box, &QDialog::accept);
        box.exec();
        return false;
    });
    QTest::keyClick(&First, Qt::Key_Tab);
    EXPECT_EQ(RuleRuns, 1);
    Window.activateWindow(); // as a window manager does when the box has closed
    EXPECT_TRUE(QTest::qWaitFor([this] { return First.hasFocus(); }));
    EXPECT_EQ(RuleRuns, 1);
}

// The message has taken the focus away when the press goes on; it must not act all the same.
TEST_F(TextBoxes, APressThatARuleRefusedWithAMessageDoesNotAct) {
    First.SetLostFocusRule([this] {
        ++RuleRuns;
        QMessageBox box(&Window);
        QTimer::singleShot(0, &box, &QDialog::accept);
        box.exec();
        return false;
    });
    QTest::mousePress(&Save, Qt::LeftButton);
    EXPECT_FALSE(Save.isDown());
    EXPECT_EQ(RuleRuns, 1);
    QTest::mouseRelease(&Save, Qt::LeftButton);
    EXPECT_EQ(Saves, 0);
}

TEST_F(TextBoxes, TypingAfterTheRuleRanMakesItRunAgain) {
    QTest::mouseClick(&Label, Qt::LeftButton);
    EXPECT_EQ(RuleRuns, 1);
    EXPECT_TRUE(First.hasFocus()) << "a label takes no focus";
    QTest::keyClick(&First, Qt::Key_A);
    Accepts = false;
    QTest::mouseClick(&Save, Qt::LeftButton);
    EXPECT_EQ(RuleRuns, 2);
    EXPECT_EQ(Saves, 0);
}

TEST_F(TextBoxes, UndoGoesOnWorkingAfterAFilteredCharacter) {
    First.clear();
    QTest::keyClick(&First, Qt::Key_A);
    QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUtf8("Ω"));
    QApplication::sendEvent(&First, &typed);
    EXPECT_EQ(First.text(), QStringLiteral("a?"));
    EXPECT_TRUE(First.isUndoAvailable());
    EXPECT_FALSE(First.acceptDrops());
}

TEST_F(TextBoxes, ClosingTheWindowRunsNoRule) {
    Accepts = false;
    Window.close();
    EXPECT_EQ(RuleRuns, 0);
}

TEST_F(TextBoxes, GotFocusIsRaisedForEachEntering) {
    QSignalSpy entered(&Second, &TextBox::GotFocus);
    QTest::keyClick(&First, Qt::Key_Tab);
    EXPECT_EQ(entered.count(), 1);
    First.setFocus();
    Second.setFocus();
    EXPECT_EQ(entered.count(), 2);
}

} // namespace
