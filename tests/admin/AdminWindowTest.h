#pragma once

#include "admin/frmAdmin_SU.h"
#include "app/CFG_2015.h"
#include "platform/widgets/DriveList.h"
#include "platform/widgets/FolderList.h"
#include "platform/widgets/TextBox.h"
#include "tests/support/PrintText.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WindowInput.h"

/// A program folder with a configuration file of distinct values, read as at start-up, and the Admin window over it.
class AdminWindow : public testing::Test {
protected:
    TestFolder machine;
    std::unique_ptr<frmAdmin_SU> window;

    void SetUp() override {
        ProgramFolder = QStringLiteral("c:\\gradewell");
        SetProductTexts(Edition::English);
        SetTitleLine(2016);
        machine.MakeFolder(QStringLiteral("c:\\admin\\2015"));
        machine.MakeFolder(QStringLiteral("c:\\admin\\2016"));
        Start("admin/before.cfg");
    }

    void Start(const char* configuration) {
        machine.Write(QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG"), HandWritten(configuration));
        SetDefaultSettings();
        LocateProgramConfig();
    }

    void Open() {
        window = std::make_unique<frmAdmin_SU>();
        ShowActive(*window);
    }

    template <typename Control>
    Control* Get(const char* name) {
        return Find<Control>(*window, name);
    }
    TextBox* Box(const char* name) { return Get<TextBox>(name); }
    QComboBox* List(const char* name) { return Get<QComboBox>(name); }
    QString Label(const char* name) { return Get<QLabel>(name)->text(); }
    void Click(const char* name) { QTest::mouseClick(Get<QWidget>(name), Qt::LeftButton); }

    /// Clicks a box and types a text in place of the one in it.
    void Type(const char* name, const char* text) {
        Click(name);
        Box(name)->selectAll();
        QTest::keyClick(Box(name), Qt::Key_Delete);
        for (const QChar character : QString::fromUtf8(text)) {
            QTest::sendKeyEvent(QTest::Click, Box(name), Qt::Key_unknown, character, Qt::NoModifier);
        }
    }
    void Tab() { QTest::keyClick(window->focusWidget(), Qt::Key_Tab); }

    /// The three results, separated by bars.
    std::string Parts() {
        return (Label("lblCourseTest") + u'|' + Label("lblClassTest") + u'|' + Label("lblGradeTest")).toStdString();
    }

    QByteArray Saved() const { return machine.Read(QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG")); }
};
