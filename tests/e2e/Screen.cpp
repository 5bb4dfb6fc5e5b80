#include "tests/e2e/Screen.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QThread>
#include <stdexcept>

namespace {

constexpr int MillisecondsForOneStep = 20'000;
constexpr unsigned long MillisecondsBetweenLooks = 60;

void SendEvents(const QStringList& arguments) {
    QProcess sender;
    sender.start(QStringLiteral("xdotool"), arguments);
    if (!sender.waitForFinished(MillisecondsForOneStep) || sender.exitCode() != 0) {
        throw std::runtime_error("xdotool " + arguments.join(QLatin1Char(' ')).toStdString() +
                                 " failed: " + sender.readAllStandardError().toStdString());
    }
}

// The answer about the active window; empty when there is none or it goes away meanwhile.
QString AskActive(const QStringList& question) {
    QProcess asked;
    asked.start(QStringLiteral("xdotool"), QStringList{QStringLiteral("getactivewindow")} + question);
    asked.waitForFinished(MillisecondsForOneStep);
    return QString::fromUtf8(asked.readAllStandardOutput()).trimmed();
}

int mouseMoves = 0;

QStringList Move(const QPoint& place) {
    ++mouseMoves;
    return {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())};
}

QImage Look(const QRect& part) {
    QScreen* screen = QGuiApplication::primaryScreen();
    return screen->grabWindow(0, part.x(), part.y(), part.width(), part.height()).toImage();
}

} // namespace

void ClickAt(const QPoint& place) {
    SendEvents(Move(place) + QStringList{QStringLiteral("click"), QStringLiteral("1")});
}

void DoubleClickAt(const QPoint& place) {
    SendEvents(Move(place) + QStringList{QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"),
                                         QStringLiteral("--delay"), QStringLiteral("20"), QStringLiteral("1")});
}

void PressButtonAt(const QPoint& place) {
    SendEvents(Move(place) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")});
}

void MoveMouseTo(const QPoint& place) {
    SendEvents(Move(place));
}

void ReleaseButton() {
    SendEvents({QStringLiteral("mouseup"), QStringLiteral("1")});
}

int MouseMoves() {
    return mouseMoves;
}

void PressKey(const QString& chord) {
    SendEvents({QStringLiteral("key"), chord});
}

void TypeText(const QString& text) {
    SendEvents({QStringLiteral("type"), QStringLiteral("--"), text});
}

QString ActiveTitle() {
    return AskActive({QStringLiteral("getwindowname")});
}

void GiveKeysTo(const QString& title) {
    static const QRegularExpression special(QStringLiteral("([.^$*+?()\\[\\]{}|\\\\])"));
    const QString whole =
        QLatin1Char('^') + QString(title).replace(special, QStringLiteral("\\\\1")) + QLatin1Char('$');
    QProcess::execute(QStringLiteral("xdotool"), {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                                  QStringLiteral("--name"), whole, QStringLiteral("windowactivate")});
}

QPoint ActiveOrigin() {
    const QString place = AskActive({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell")});
    QPoint origin;
    for (const QString& line : place.split(QLatin1Char('\n'))) {
        if (line.startsWith(QStringLiteral("X="))) {
            origin.setX(line.mid(2).toInt());
        } else if (line.startsWith(QStringLiteral("Y="))) {
            origin.setY(line.mid(2).toInt());
        }
    }
    return origin;
}

void SavePicture(const QRect& part, const QString& file) {
    QImage before = Look(part);
    for (int looks = 0; looks < MillisecondsForOneStep / int(MillisecondsBetweenLooks); ++looks) {
        QThread::msleep(MillisecondsBetweenLooks);
        const QImage now = Look(part);
        if (now == before && !now.isNull()) {
            if (!now.save(file)) {
                throw std::runtime_error("Cannot write the picture " + file.toStdString());
            }
            return;
        }
        before = now;
    }
    throw std::runtime_error("The screen does not stand still for the picture " + file.toStdString());
}
