#include "tests/e2e/OptionsWindow.h"

#include "tests/e2e/MenuSteps.h"
#include "tests/e2e/Screen.h"

namespace {

const QString FileNameBox = QStringLiteral("fileNameEdit");
const QString NetworkDrive = QStringLiteral("g:");

QString Name(const char* text) {
    return QString::fromUtf8(text);
}

} // namespace

OptionsWindow::OptionsWindow() : Installed(GetParam() == "french" ? FrenchNames() : EnglishNames()) {
    for (const char* folder : {"marks/2016", "marks/old", "backup/daily", "photos", "pictures", "html", "reports"}) {
        Installed.MakeFolder(QStringLiteral("network/") + Name(folder));
    }
    Installed.Write(QStringLiteral("network/pictures/7.BMP"), "BM");
    Installed.Write(QStringLiteral("drives.conf"), "G=" + Network.toUtf8() + "\n");
}

QByteArray OptionsWindow::State(const char* state) const {
    return EditionGolden(Installed, state);
}

// A path on g: as the program shows it here.
QString OptionsWindow::Placed(const char* shown) const {
    QString text = Name(shown);
    if (!UnderWine() || !text.startsWith(NetworkDrive)) {
        return text;
    }
    const QString below = text.mid(NetworkDrive.size() + 1);
    return Installed.Shown(below.isEmpty() ? QStringLiteral("network") : QStringLiteral("network/") + below);
}

QByteArray OptionsWindow::Here(QByteArray configFile) const {
    return UnderWine() ? configFile.replace("g:\\", Installed.Shown(QStringLiteral("network/")).toLatin1())
                       : configFile;
}

void OptionsWindow::Open(const QByteArray& configFile, const QString& active) {
    Installed.Write(Newer, Here(configFile));
    Program = StartToMenu(Installed);
    Program->Press(Installed.Edition.MenuTitle, QStringLiteral("alt+g"));
    Program->AwaitWindow(active.isEmpty() ? Title : active);
}

void OptionsWindow::Click(const char* control) {
    Program->Click(Title, Name(control));
}

void OptionsWindow::Press(const char* chord) {
    Program->Press(Title, Name(chord));
}

void OptionsWindow::TabTo(const char* control) {
    Program->TabTo(Title, Name(control));
}

void OptionsWindow::Work(const char* control, const char* chord) {
    Work(Title, control, chord);
}

void OptionsWindow::Work(const QString& window, const char* control, const char* chord) {
    Program->TabTo(window, Name(control));
    Program->Press(window, Name(chord));
}

void OptionsWindow::AwaitText(const char* control, const char* text) {
    Program->AwaitText(Title, Name(control), Placed(text));
}

void OptionsWindow::AwaitChecked(const char* option) {
    Program->AwaitControl(Title, Name(option), QStringLiteral("to be chosen"),
                          [](const auto& seen) { return seen.Checked; });
}

void OptionsWindow::ClickPanel(int panel) {
    Program->Click(Title, QStringLiteral("cmdSetup(%1)").arg(panel));
    Program->AwaitControl(Title, QStringLiteral("p3dSetup(%1)").arg(panel), QStringLiteral("to show"),
                          [](const auto& seen) { return seen.Visible; });
}

void OptionsWindow::WorkPanel(int panel) {
    Work(QStringLiteral("cmdSetup(%1)").arg(panel).toUtf8().constData(), "space");
    Program->AwaitControl(Title, QStringLiteral("p3dSetup(%1)").arg(panel), QStringLiteral("to show"),
                          [](const auto& seen) { return seen.Visible; });
}

void OptionsWindow::AnswerNotice(const char* title) {
    Program->Press(Name(title), QStringLiteral("Return"));
}

// The information box before a dialog may have the dialog's title.
void OptionsWindow::AnswerFileDialog(const char* title, const QString& nativeName) {
    if (UnderWine()) {
        Program->ChooseFile(Name(title), NativeName(nativeName));
        Program->Await(QStringLiteral("the dialog to go"),
                       [&](const SeenScreen&) { return !Program->FileDialogIsOpen(Name(title)); });
        return;
    }
    Program->Await(QStringLiteral("the dialog \"%1\"").arg(Name(title)), [&](const SeenScreen& screen) {
        const SeenWindow* dialog = screen.Window(Name(title));
        return dialog != nullptr && dialog->Active && dialog->Has(FileNameBox) && dialog->Control(FileNameBox).Focused;
    });
    PressKey(QStringLiteral("ctrl+a"));
    TypeText(nativeName);
    Program->AwaitText(Name(title), FileNameBox, nativeName);
    PressKey(QStringLiteral("Return"));
    Program->AwaitNoWindow(Name(title));
}

void OptionsWindow::ChooseFont(const QString& name) {
    if (UnderWine()) { // it opens with the keyboard in the box for the name
        Program->Await(QStringLiteral("the system's font dialog"),
                       [](const SeenScreen&) { return ActiveTitle() == QStringLiteral("Font"); });
        TypeText(name);
        PressKey(QStringLiteral("Return"));
        return;
    }
    const QString dialog = Installed.Edition.Shown("Select Font");
    Program->AwaitWindow(dialog);
    TypeText(name);
    Program->Press(dialog, QStringLiteral("Return"));
    Program->AwaitNoWindow(dialog);
}

void OptionsWindow::ExpectSaved(const QByteArray& bytes) {
    Program->AwaitNoWindow(Title);
    Program->AwaitWindow(Installed.Edition.MenuTitle);
    AwaitBothFiles(*Program, Installed, Here(bytes));
}
