#include "platform/widgets/Pictures.h"
#include "platform/widgets/TextBox.h"
#include "tests/support/PrintText.h"
#include "tests/support/WindowInput.h"

// Ways out of a text box that send it no key, no press and no loss of the focus.

namespace {

class Leaving : public testing::Test {
protected:
    Leaving() {
        auto* column = new QVBoxLayout(&Window);
        for (QWidget* widget : std::initializer_list<QWidget*>{&Box, &Other, &Save, &Tick, &Choice, &Lock}) {
            column->addWidget(widget);
        }
        Box.SetLostFocusRule([this] {
            ++RuleRuns;
            ActsAtTheRule = Acts;
            return Accepts;
        });
        const auto act = [this] { ++Acts; };
        QObject::connect(&Save, &QPushButton::clicked, act);
        QObject::connect(&Tick, &QCheckBox::toggled, act);
        QObject::connect(&Choice, &QRadioButton::toggled, act);
        QObject::connect(&Lock, &QToolButton::clicked, act);
        ShowActive(Window);
        Box.setFocus();
    }

    // Works the button as a screen reader would.
    static void Work(QAbstractButton& button) {
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&button);
        ASSERT_NE(seen, nullptr);
        QAccessibleActionInterface* actions = seen->actionInterface();
        ASSERT_NE(actions, nullptr);
        ASSERT_FALSE(actions->actionNames().isEmpty());
        actions->doAction(actions->actionNames().constFirst());
    }

    QAbstractButton* Buttons[4] = {&Save, &Tick, &Choice, &Lock};
    QWidget Window;
    TextBox Box{&Window};
    TextBox Other{&Window};
    QPushButton Save{QStringLiteral("&Save && go"), &Window};
    QCheckBox Tick{QStringLiteral("&Tick"), &Window};
    QRadioButton Choice{QStringLiteral("&Choice"), &Window};
    PictureButton Lock{QStringLiteral("lock-open"), 32, QStringLiteral("Lock"), &Window};
    bool Accepts = true;
    int RuleRuns = 0;
    int Acts = 0;
    int ActsAtTheRule = -1;
};

TEST_F(Leaving, AScreenReadersPressRunsTheRuleFirst) {
    int runs = 0;
    for (QAbstractButton* button : Buttons) {
        Box.setText(button->text()); // changed: the rule is due again
        Acts = 0;
        Work(*button);
        EXPECT_TRUE(QTest::qWaitFor([this] { return Acts == 1; })) << button->text().toStdString();
        EXPECT_EQ(RuleRuns, ++runs) << button->text().toStdString();
        EXPECT_EQ(ActsAtTheRule, 0) << button->text().toStdString();
    }
    EXPECT_TRUE(Tick.isChecked());
    EXPECT_TRUE(Choice.isChecked());
}

TEST_F(Leaving, ARefusalStopsAScreenReadersPress) {
    Accepts = false;
    int runs = 0;
    for (QAbstractButton* button : Buttons) {
        Work(*button);
        ++runs;
        EXPECT_TRUE(QTest::qWaitFor([&] { return RuleRuns == runs; })) << button->text().toStdString();
        QCoreApplication::processEvents();
        EXPECT_EQ(Acts, 0) << button->text().toStdString();
        EXPECT_TRUE(Box.hasFocus()) << button->text().toStdString();
    }
    EXPECT_EQ(RuleRuns, runs) << "once for each try";
}

TEST_F(Leaving, ADisabledButtonIsNotWorked) {
    Save.setEnabled(false);
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(&Save)->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
    QAccessible::queryAccessibleInterface(&Save)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    EXPECT_EQ(Acts, 0);
    EXPECT_EQ(RuleRuns, 0);
}

TEST_F(Leaving, AScreenReaderIsToldWhatAButtonIs) {
    struct Row {
        QAbstractButton* button;
        QAccessible::Role role;
        const char* name;
        const char* key;
        bool checkable;
    };
    Tick.setChecked(true);
    for (const Row& row : {Row{&Save, QAccessible::Button, "Save & go", "Alt+S", false},
                           Row{&Tick, QAccessible::CheckBox, "Tick", "Alt+T", true},
                           Row{&Choice, QAccessible::RadioButton, "Choice", "Alt+C", true},
                           Row{&Lock, QAccessible::Button, "Lock", "", false}}) {
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(row.button);
        EXPECT_EQ(seen->role(), row.role) << row.name;
        EXPECT_EQ(seen->text(QAccessible::Name), QString::fromUtf8(row.name));
        EXPECT_EQ(seen->text(QAccessible::Accelerator), QString::fromUtf8(row.key)) << row.name;
        EXPECT_EQ(seen->state().checkable, row.checkable) << row.name;
        EXPECT_EQ(seen->state().checked, row.button->isChecked()) << row.name;
        EXPECT_FALSE(seen->state().disabled) << row.name;
    }
}

// While another window is the active one, a moved focus sends no event to the box.
class FocusMovedUnseen : public Leaving {
protected:
    FocusMovedUnseen() {
        ShowActive(Elsewhere);
        Other.setFocus();
        EXPECT_EQ(RuleRuns, 0);
    }

    void ComeBack() {
        Window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Window));
        EXPECT_TRUE(QTest::qWaitFor([this] { return RuleRuns > 0; }));
    }

    QWidget Elsewhere;
};

TEST_F(FocusMovedUnseen, RunsTheRuleWhenTheWindowIsBack) {
    ComeBack();
    EXPECT_EQ(RuleRuns, 1);
    EXPECT_TRUE(Other.hasFocus());
    QTest::mouseClick(&Save, Qt::LeftButton);
    EXPECT_EQ(RuleRuns, 1) << "it was left";
    EXPECT_EQ(Acts, 1);
}

TEST_F(FocusMovedUnseen, GoesBackWhenTheRuleRefuses) {
    Accepts = false;
    ComeBack();
    EXPECT_EQ(RuleRuns, 1);
    EXPECT_TRUE(Box.hasFocus());
    EXPECT_EQ(Box.selectedText(), Box.text());
    QTest::mouseClick(&Save, Qt::LeftButton);
    EXPECT_EQ(Acts, 0);
}

TEST_F(FocusMovedUnseen, AScreenReadersPressInTheInactiveWindowRunsTheRule) {
    Accepts = false;
    Work(Save);
    EXPECT_TRUE(QTest::qWaitFor([this] { return RuleRuns == 1; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(Acts, 0);
    EXPECT_EQ(Window.focusWidget(), &Box);
}

TEST_F(Leaving, ABoxThatWasTakenAwayIsNotLeftLater) {
    Box.setEnabled(false);
    Box.setEnabled(true);
    const int runs = RuleRuns; // taking it away moves the focus on
    Other.setFocus();
    Save.setFocus();
    QTest::mouseClick(&Save, Qt::LeftButton);
    EXPECT_EQ(RuleRuns, runs);
    EXPECT_EQ(Acts, 1);
}

} // namespace
