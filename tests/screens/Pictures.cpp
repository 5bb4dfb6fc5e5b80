#include "tests/screens/Pictures.h"

#include "tests/screens/Clipped.h"

#include <QDir>
#include <QPixmap>
#include <QtTest>
#include <cstdio>
#include <stdexcept>

PictureTaker::PictureTaker(QString folderToFill, QString prefixToUse)
    : folder(std::move(folderToFill)), prefix(std::move(prefixToUse)) {}

void PictureTaker::Take(QWidget& window, const char* name) {
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        throw std::runtime_error(std::string("The window does not become active for ") + name);
    }
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    ++count;
    const QString number = QString::number(count).rightJustified(2, u'0');
    const QString file =
        QDir(folder).filePath(QStringLiteral("%1-%2-%3.png").arg(prefix, number, QString::fromUtf8(name)));
    if (!window.grab().save(file)) {
        throw std::runtime_error("The picture cannot be saved: " + file.toStdString());
    }
    for (const QString& line : ClippedControls(window)) {
        std::printf("%s: %s\n", qPrintable(QFileInfo(file).fileName()), qPrintable(line));
        ++clipped;
    }
}
