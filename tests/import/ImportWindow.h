#pragma once

#include "app/CFG_2015.h"
#include "import/frmImport_SU.h"
#include "platform/BackgroundWork.h"
#include "tests/import/FaultyDisk.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Text.h"

#include <QtTest>
#include <gtest/gtest.h>
#include <memory>

/// A machine with a program folder and a school's folder, and the import window on it.
class ImportWindowTest : public testing::Test {
protected:
    FaultyDisk calls;
    TestFolder folder{calls};
    const QString path = Text("c:\\School\\Students.txt");
    const QString setupFile = Text("c:\\School\\UpdField.cfg");
    std::unique_ptr<frmImport_SU> window;

    ImportWindowTest();
    ~ImportWindowTest() override;

    /// Writes the student data file, makes it the setting and shows the window; returns when it has been activated.
    void OpenWith(const QByteArray& bytes);
    /// Shows the window and returns when it has been activated.
    void Show();

    /// The control of a name; a miss fails the test and prints the names there are.
    QWidget* Find(const char* name) const;
    template <typename Kind>
    Kind* Control(const char* name) const {
        auto* control = qobject_cast<Kind*>(Find(name));
        EXPECT_NE(nullptr, control) << name << " is of another kind";
        return control;
    }

    FieldLabel* Field(int field) const { return window->preview->pnlFieldList->lblFieldList[std::size_t(field)]; }
    void Press(int field) { QTest::mousePress(Field(field), Qt::LeftButton); }
    /// A press, a release and a double click, as the mouse sends them.
    void DoubleClick(int field);
    void DoubleClick(std::initializer_list<int> fields);
    /// Drops what a field drag carries on the grid.
    bool DropOnGrid();
    void Click(const char* name) { QTest::mouseClick(Find(name), Qt::LeftButton); }

    QString Label(const char* name) const { return Control<QLabel>(name)->text(); }
    QString Cell(int row, int column) const { return window->preview->grdImport->item(row, column)->text(); }
    QStringList Column(int column) const;
    const std::vector<Message>& Messages() const { return folder.Screen.Messages; }
};
