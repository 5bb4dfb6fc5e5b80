#pragma once

#include "app/CFG_2015.h"
#include "platform/widgets/FolderList.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/PrintText.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WindowInput.h"
#include "transfer/TransferStore.h"
#include "transfer/frmGWT_SU.h"

/// A program folder, its Transfer Program file where a test writes one, and the window over it.
class TransferWindow : public testing::Test {
protected:
    FaultyCalls calls;
    TestFolder machine{calls};
    std::unique_ptr<frmGWT_SU> window;
    const QString file = QStringLiteral("c:\\gradewell\\GWT10_PRG.CFG");
    const QString destination = QStringLiteral("c:\\gradewell\\GWT_DestPath.cfg");

    void SetUp() override {
        ProgramFolder = QStringLiteral("c:\\gradewell");
        SetProductTexts(Edition::English);
        SetTitleLine(2016);
        TransferLock = 0;
        machine.MakeFolder(ProgramFolder);
        machine.MakeFolder(QString::fromUtf8("c:\\Reports\\Été 2016"));
        machine.MakeFolder(QStringLiteral("c:\\marks, reports"));
    }

    void Open() {
        window = std::make_unique<frmGWT_SU>();
        ShowActive(*window);
    }
    void OpenWith(const QByteArray& bytes) {
        machine.Write(file, bytes);
        Open();
    }

    template <typename Control>
    Control* Get(const char* name) {
        return Find<Control>(*window, name);
    }
    QComboBox* List(const char* name) { return Get<QComboBox>(name); }
    QString Label(const char* name) { return Get<QLabel>(name)->text(); }
    void Click(const char* name) { QTest::mouseClick(Get<QWidget>(name), Qt::LeftButton); }
    QByteArray Saved() const { return machine.Read(file); }

    /// "16 eSIS - Ontario / 2, on, board": the choices, whether the system list is enabled, the frame that is shown.
    std::string Shown() {
        const bool board = Get<QWidget>("fraSetupBoard")->isVisible();
        const bool habits = Get<QWidget>("fraWH_WorkHabits")->isVisible();
        return (List("cboSIS")->currentText() + QStringLiteral(" / ") + List("cboBoard")->currentText()).toStdString() +
               (List("cboSIS")->isEnabled() ? ", on" : ", off") + (board ? ", board" : "") + (habits ? ", habits" : "");
    }
    std::string Lock() {
        const bool locked = Get<QWidget>("imgLocked")->isVisible();
        const bool unlocked = Get<QWidget>("imgUnlocked")->isVisible();
        return Label("lblLocked").toStdString() + (locked ? " closed" : "") + (unlocked ? " open" : "");
    }
};
