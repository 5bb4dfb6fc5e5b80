#include "tests/e2e/Screen.h"
#include "tests/e2e/TourSteps.h"

#include <QDir>

// The tour through the import setup, the Admin Edition rules and the options of the Transfer Program.

namespace {

const QString StudentFile = QStringLiteral("students.txt");
const QString OpenDialog = QStringLiteral("Open an Import File");
const QString ImportError = QStringLiteral("IMPORT ERROR");
const QString Escape = QStringLiteral("Escape");

QString FieldName(int field) {
    return QStringLiteral("lblFieldList(%1)").arg(field);
}

const SeenWindow* ActiveOf(const SeenScreen& screen) {
    for (const SeenWindow& window : screen.Windows) {
        if (window.Active) {
            return &window;
        }
    }
    return nullptr;
}

} // namespace

void TourSteps::VisitImport() {
    const QString title = edition.MenuTitle + QStringLiteral(" - IMPORT FILE SETUP");
    program.Press(edition.MenuTitle, QStringLiteral("alt+i"));
    PassFileOfSettings(title);
    program.ChooseFile(OpenDialog, NativeName(QDir(folder).absoluteFilePath(StudentFile)));
    program.AwaitControl(
        title, QStringLiteral("lblRecordCount"), QStringLiteral("to show the first record"),
        [](const auto& seen) { return seen.Visible && seen.Text.startsWith(QLatin1String("Record 1 of")); });
    program.Press(title, QStringLiteral("alt+a"));
    program.AwaitText(title, QStringLiteral("lblMatched"), QStringLiteral("Matched: 0 of 12"));
    TakePicture(title, QStringLiteral("import-opened"));
    MatchFields(title);
    program.Click(title, QStringLiteral("spnRecords.Next"));
    TakePicture(title, QStringLiteral("import-matched"));
    BackToMenu(title, QStringLiteral("alt+s"));
}

// The window opens the file of the settings, which the samples' own is not on this machine, or asks for one.
void TourSteps::PassFileOfSettings(const QString& title) {
    const SeenScreen seen =
        program.Await(QStringLiteral("the import window to be ready"), [&](const SeenScreen& screen) {
            const SeenWindow* window = ActiveOf(screen);
            return program.FileDialogIsOpen(OpenDialog) ||
                   (window != nullptr &&
                    (window->Title.startsWith(ImportError) ||
                     (window->Title == title && window->Control(QStringLiteral("lblRecordCount")).Visible)));
        });
    if (program.FileDialogIsOpen(OpenDialog)) {
        return;
    }
    const QString active = ActiveOf(seen)->Title;
    if (active != title) {
        TakePicture(active, QStringLiteral("import-error"));
        program.Press(active, QStringLiteral("Return"));
    }
    program.Press(title, QStringLiteral("alt+o"));
}

// By drag and drop, by double click and by the keyboard.
void TourSteps::MatchFields(const QString& title) {
    const QString grid = QStringLiteral("grdImport");
    const auto await = [&](int count) {
        program.AwaitText(title, QStringLiteral("lblMatched"), QStringLiteral("Matched: %1 of 12").arg(count));
    };
    program.Drag(title, FieldName(6), grid);
    await(1);
    program.DoubleClick(title, FieldName(1));
    await(2);
    program.DoubleClick(title, FieldName(2));
    await(3);
    program.DoubleClick(title, FieldName(4));
    await(4);
    program.AwaitControl(title, FieldName(5), QStringLiteral("to take the keyboard"),
                         [](const auto& seen) { return seen.Focused; });
    program.Press(title, QStringLiteral("Down")); // past the used ones
    program.AwaitControl(title, FieldName(7), QStringLiteral("to take the keyboard"),
                         [](const auto& seen) { return seen.Focused; });
    TakePicture(title, QStringLiteral("import-field-chosen"));
    program.Press(title, QStringLiteral("space"));
    await(5);
    program.Drag(title, FieldName(5), grid);
    await(6);
}

void TourSteps::VisitAdmin() {
    const QString title = edition.MenuTitle + QStringLiteral(" - TRANSFER to ADMIN EDITION");
    program.Press(edition.MenuTitle, QStringLiteral("alt+a"));
    program.AwaitWindow(title);
    program.Enter(title, QStringLiteral("txtAdminTest"), QStringLiteral("ENG2D1-02"));
    program.Press(title, QStringLiteral("Tab"));
    TakePicture(title, QStringLiteral("admin-rules"));
    BackToMenu(title, Escape);
}

void TourSteps::VisitTransfer() {
    const QString title = edition.MenuTitle + QStringLiteral(" - TRANSFER PROGRAM");
    program.Press(edition.MenuTitle, QStringLiteral("alt+t"));
    program.AwaitWindow(title);
    TakePicture(title, QStringLiteral("transfer-program"));
    BackToMenu(title, Escape);
}
