#include "tests/screens/Pictures.h"

#include "tests/screens/Clipped.h"

#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QtTest>
#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace {

constexpr qsizetype MostColours = 256;

int Difference(QRgb left, QRgb right) {
    return std::abs(qRed(left) - qRed(right)) + std::abs(qGreen(left) - qGreen(right)) +
           std::abs(qBlue(left) - qBlue(right));
}

// The picture with its most frequent colours; each other colour becomes the one that is nearest to it.
QImage WithFewColours(const QImage& picture) {
    const QImage full = picture.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < full.height(); ++y) {
        for (int x = 0; x < full.width(); ++x) {
            ++counts[full.pixel(x, y)];
        }
    }
    QList<QRgb> colours = counts.keys();
    std::sort(colours.begin(), colours.end(), [&counts](QRgb left, QRgb right) {
        return std::pair(-counts[left], left) < std::pair(-counts[right], right);
    });
    const QList<QRgb> kept = colours.first(std::min(colours.size(), MostColours));
    QHash<QRgb, uint> places;
    for (const QRgb colour : colours) {
        const auto nearest = std::min_element(kept.begin(), kept.end(), [colour](QRgb left, QRgb right) {
            return Difference(left, colour) < Difference(right, colour);
        });
        places.insert(colour, static_cast<uint>(nearest - kept.begin()));
    }
    QImage few(full.size(), QImage::Format_Indexed8);
    few.setColorTable(kept);
    for (int y = 0; y < full.height(); ++y) {
        for (int x = 0; x < full.width(); ++x) {
            few.setPixel(x, y, places[full.pixel(x, y)]);
        }
    }
    return few;
}

} // namespace

PictureTaker::PictureTaker(QString folderToFill, QString prefixToUse, QSize screenToFill)
    : folder(std::move(folderToFill)), prefix(std::move(prefixToUse)), screen(screenToFill) {}

void PictureTaker::Take(QWidget& window, const char* name) {
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        throw std::runtime_error(std::string("The window does not become active for ") + name);
    }
    if (!screen.isEmpty()) {
        window.resize(screen);
    }
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    ++count;
    const QString file = FileFor(name);
    const QImage picture = window.grab().toImage();
    if (!(prefix.isEmpty() ? WithFewColours(picture) : picture).save(file)) {
        throw std::runtime_error("The picture cannot be saved: " + file.toStdString());
    }
    for (const QString& line : ClippedControls(window)) {
        std::printf("%s: %s\n", qPrintable(QFileInfo(file).fileName()), qPrintable(line));
        ++clipped;
    }
}

QString PictureTaker::FileFor(const char* name) const {
    const QString number = QString::number(count).rightJustified(2, u'0');
    const QString start = prefix.isEmpty() ? QString() : QStringLiteral("%1-%2-").arg(prefix, number);
    return QDir(folder).filePath(start + QString::fromUtf8(name) + QStringLiteral(".png"));
}
