#include "platform/qt/QtDesktop.h"

#include "platform/ProgramPath.h"
#include "platform/Volumes.h"
#include "platform/qt/DialogFilters.h"
#include "platform/qt/FileDialogRules.h"
#include "platform/qt/FrenchTexts.h"
#include "platform/qt/HelperPrograms.h"
#include "platform/qt/PrinterFonts.h"
#include "platform/qt/SlowSave.h"
#include "platform/qt/StartedPrograms.h"
#ifdef _WIN32
#include "platform/qt/windows/SystemFontDialog.h"
#endif

#include <QApplication>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>

namespace {

QString TextOf(const NativePath& path) {
    return QString::fromStdU16String(path.u16string());
}

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::RetryCancel:
        return QMessageBox::Retry | QMessageBox::Cancel;
    case MessageButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

MessageAnswer AnswerOf(int button) {
    switch (button) {
    case QMessageBox::Cancel:
        return MessageAnswer::Cancel;
    case QMessageBox::Retry:
        return MessageAnswer::Retry;
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    default:
        return MessageAnswer::Ok;
    }
}

// The window that a box belongs over. One that has just been opened is not the active one before the system says so,
// and a box over the window behind it would wake that one in the end.
QWidget* Owner() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

// What a frame takes: that of a window which has one already, or else a usual one's.
QSize FrameSize() {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        const QSize frame = window->frameGeometry().size() - window->size();
        if (window->isVisible() && window->isWindow() && frame.height() > 0) {
            return frame;
        }
    }
    const QStyle* style = QApplication::style();
    const int edge = style->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    return {2 * edge, 2 * edge + style->pixelMetric(QStyle::PM_TitleBarHeight)};
}

// A message box reads rich text where a text looks like it; names of files may hold anything.
class PlainMessageBox : public QMessageBox {
public:
    explicit PlainMessageBox(const Message& message) : QMessageBox(Owner()) {
        setWindowTitle(message.Title);
        setTextFormat(Qt::PlainText);
        setText(message.Text);
        setIcon(IconOf(message.Icon));
        setStandardButtons(ButtonsOf(message.Buttons));
    }
};

void Propose(QFileDialog& asked, const FileDialog& dialog, const Volumes& volumes) {
    const QString folder = FolderOf(dialog.FileName);
    const auto native = volumes.ToNative(folder.isEmpty() ? QStringLiteral("c:\\") : folder + QLatin1Char('\\'));
    if (!native.Error) {
        asked.setDirectory(TextOf(native.Path));
    }
    if (!dialog.FileName.isEmpty()) {
        asked.selectFile(NameOf(dialog.FileName));
    }
}

} // namespace

QtDesktop::QtDesktop(std::unique_ptr<Volumes> volumesToUse, SystemCalls& callsToUse, CaptionLanguage languageToUse)
    : volumes(std::move(volumesToUse)), calls(callsToUse), language(languageToUse) {
    if (language == CaptionLanguage::French) {
        frenchTexts = std::make_unique<FrenchTexts>();
        QCoreApplication::installTranslator(frenchTexts.get());
    }
}

QtDesktop::~QtDesktop() = default;

MessageAnswer QtDesktop::AskUser(const Message& message) {
    PlainMessageBox box(message);
    return AnswerOf(box.exec());
}

FileDialogAnswer QtDesktop::AskForFile(const FileDialog& dialog) {
    const bool saving = dialog.DialogKind == FileDialog::Kind::Save;
    QFileDialog asked(Owner(), dialog.Title);
    asked.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    asked.setFileMode(dialog.FileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    asked.setOption(QFileDialog::DontConfirmOverwrite, !dialog.OverwritePrompt);
#ifndef _WIN32
    asked.setOption(QFileDialog::HideNameFilterDetails); // "*.[jJ][pP][gG]"
#endif
    asked.setNameFilters(QtFilters(dialog.Filter));
    asked.setDefaultSuffix(dialog.DefaultExtension.mid(1));
    Propose(asked, dialog, *volumes);
    QString chosen;
    for (bool fits = false; !fits;) {
        if (asked.exec() != QDialog::Accepted || asked.selectedFiles().isEmpty()) {
            return {QString(), MakeError(ErrorNumber::DialogCancelled)};
        }
        chosen = asked.selectedFiles().first();
        const QString objection = ObjectionTo(chosen, dialog, language);
        fits = objection.isEmpty();
        if (!fits) {
            ShowMessage({dialog.Title, objection, MessageButtons::Ok, MessageIcon::Exclamation});
        }
    }
    const auto found = volumes->FromNative(NativePath(chosen.toStdU16String()));
    if (found.Error) {
        ShowMessage({dialog.Title, RefusedFolderText(chosen, found.Error, language), MessageButtons::Ok,
                     MessageIcon::Critical});
        return {QString(), MakeError(ErrorNumber::DialogCancelled)};
    }
    return {found.Path, {}};
}

FontDialogAnswer QtDesktop::AskForFont(const QString& fontName, int pointSize) {
#ifdef _WIN32
    return AskSystemForFont(Owner(), fontName, pointSize);
#else
    QFont initial = QApplication::font();
    if (!fontName.isEmpty()) {
        initial.setFamily(fontName);
    }
    initial.setPointSize(pointSize);
    QFontDialog asked(initial, Owner());
    if (asked.exec() != QDialog::Accepted) {
        return {QString(), MakeError(ErrorNumber::DialogCancelled)};
    }
    return {asked.selectedFont().family(), {}};
#endif
}

SystemError QtDesktop::StartProgram(HelperProgram program, const QString& path, std::function<void()> whenFailed) {
    const auto native = volumes->ToNative(path);
    const QString file = TextOf(native.Path);
    const bool exists = !native.Error && QFileInfo::exists(file);
    if (native.Error || (program == HelperProgram::FileViewer && !exists)) {
        return MakeError(ErrorNumber::FileNotFound);
    }
    const auto find = [](const QString& name) { return name.isEmpty() ? name : QStandardPaths::findExecutable(name); };
    const HelperCommand command = CommandFor(program, file, {find, qEnvironmentVariable("EDITOR"), exists});
    const bool started = !command.Program.isEmpty() && StartWatched(command, std::move(whenFailed));
    return started ? SystemError() : MakeError(ErrorNumber::FileNotFound);
}

QSize QtDesktop::ScreenSize() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->size() : QSize();
}

QSize QtDesktop::RoomForWindow() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->availableSize() - FrameSize() : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

bool QtDesktop::SetPrinterFont(const QString& fontName) {
    return PrinterCanUse(fontName, QFontDatabase::families(),
                         [] { return !QPrinterInfo::defaultPrinterName().isEmpty(); });
}

void QtDesktop::ProcessPendingEvents() {
    QCoreApplication::processEvents();
}

void QtDesktop::PaintPendingWindows() {
    ProcessAllButPresses();
}

void QtDesktop::RunSave(const std::function<void()>& save) {
    RunSlowSave(save, Owner(), language);
}

QDateTime QtDesktop::Now() {
    return QDateTime::currentDateTime();
}

Volumes& QtDesktop::TheVolumes() {
    return *volumes;
}

SystemCalls& QtDesktop::TheSystemCalls() {
    return calls;
}
