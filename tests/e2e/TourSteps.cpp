#include "tests/e2e/TourSteps.h"

#include <QDir>
#include <QFile>
#include <stdexcept>
#include <utility>

namespace {

const QString FirstMailServer = QStringLiteral("smtp.school.example");
const QString SecondMailServer = QStringLiteral("mail.school.example");

} // namespace

TourSteps::TourSteps(const EditionNames& editionToTour, const QString& programFolder, const QString& pictureFolder)
    : edition(editionToTour), folder(programFolder),
      transferProgram(QDir(programFolder).filePath(editionToTour.TransferProgram)), pictures(pictureFolder),
      program(programFolder, editionToTour.Executable) {}

TourSteps::TransferProgram::TransferProgram(QString fileToMake) : file(std::move(fileToMake)) {
    QFile missing(file);
    made = !missing.exists() && missing.open(QIODevice::WriteOnly);
}

TourSteps::TransferProgram::~TransferProgram() {
    if (made) {
        QFile::remove(file);
    }
}

void TourSteps::Go() {
    program.AwaitWindow(edition.PrinterTitle);
    TakePicture(edition.PrinterTitle, QStringLiteral("printer-message"));
    program.AnswerMessage(edition.PrinterTitle);
    program.AwaitWindow(edition.MenuTitle);
    TakePicture(edition.MenuTitle, QStringLiteral("main-menu"));
    ToggleLock();
    TakePicture(edition.MenuTitle, QStringLiteral("main-menu-lock-changed"));
    VisitGeneralOptions();
    VisitImport();
    VisitAdmin();
    VisitTransfer();
    program.Press(edition.MenuTitle, edition.ExitKeys);
    if (const int status = program.AwaitEnd(); status != 0) {
        throw std::runtime_error("The program ended with status " + std::to_string(status));
    }
}

void TourSteps::TakePicture(const QString& title, const QString& name) {
    const QString number = QString::number(taken.size() + 1).rightJustified(2, QLatin1Char('0'));
    const QString file = QDir(pictures).filePath(QStringLiteral("%1-%2-%3.png").arg(edition.Component, number, name));
    program.TakePicture(title, file);
    taken.append(file);
}

void TourSteps::ToggleLock() {
    const SeenWindow menu = program.AwaitWindow(edition.MenuTitle);
    const bool locked = menu.Control(QStringLiteral("imgLocked")).Visible;
    program.Click(edition.MenuTitle, locked ? QStringLiteral("imgLocked") : QStringLiteral("imgUnlocked"));
    program.AwaitText(edition.MenuTitle, QStringLiteral("lblLocked"),
                      locked ? QStringLiteral("Unlocked") : QStringLiteral("Locked"));
}

void TourSteps::VisitGeneralOptions() {
    program.Press(edition.MenuTitle, QStringLiteral("alt+g"));
    const QString title = edition.OptionsTitle;
    const QStringList panels = {QStringLiteral("paths"),        QStringLiteral("dates"),
                                QStringLiteral("mail"),         QStringLiteral("bar-codes"),
                                QStringLiteral("printer"),      QStringLiteral("html-report"),
                                QStringLiteral("grade-schemes")};
    for (qsizetype panel = 0; panel < panels.size(); ++panel) {
        program.Click(title, QStringLiteral("cmdSetup(%1)").arg(panel));
        program.AwaitControl(title, QStringLiteral("p3dSetup(%1)").arg(panel), QStringLiteral("to show"),
                             [](const auto& seen) { return seen.Visible; });
        TakePicture(title, QStringLiteral("general-options-") + panels[panel]);
    }
    ChangeDateFormatAndMailServer(title);
    BackToMenu(title, edition.SaveKeys);
    TakePicture(edition.MenuTitle, QStringLiteral("main-menu-new-date"));
}

void TourSteps::BackToMenu(const QString& title, const QString& keys) {
    program.Press(title, keys);
    program.AwaitNoWindow(title);
    program.AwaitWindow(edition.MenuTitle);
}

void TourSteps::ChangeDateFormatAndMailServer(const QString& title) {
    program.Click(title, QStringLiteral("cmdSetup(1)"));
    program.Click(title, QStringLiteral("optDFormat(6)"));
    program.AwaitControl(title, QStringLiteral("optDFormat(6)"), QStringLiteral("to be chosen"),
                         [](const auto& seen) { return seen.Checked; });
    program.Click(title, QStringLiteral("cmdSetup(2)"));
    const SeenControl box = program.AwaitControl(title, QStringLiteral("txtSMTP"), QStringLiteral("to show"),
                                                 [](const auto& seen) { return seen.Visible; });
    program.Enter(title, QStringLiteral("txtSMTP"), box.Text == FirstMailServer ? SecondMailServer : FirstMailServer);
    TakePicture(title, QStringLiteral("general-options-mail-server-typed"));
}
