#include "tests/polish/Contrast.h"

#include <QHash>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int Enlargement = 4;
constexpr std::size_t PixelsOfAStroke = 20; // fewer may be an accident of smoothing

double Linear(int channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(QRgb colour) {
    return 0.2126 * Linear(qRed(colour)) + 0.7152 * Linear(qGreen(colour)) + 0.0722 * Linear(qBlue(colour));
}

} // namespace

QImage LargePicture(QWidget& window) {
    QImage picture(window.size() * Enlargement, QImage::Format_RGB32);
    picture.setDevicePixelRatio(Enlargement);
    window.render(&picture);
    return picture;
}

double Contrast(QRgb one, QRgb other) {
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

double ContrastOfText(const QImage& picture, const QRect& place) {
    const QRect part = QRect(place.topLeft() * Enlargement, place.size() * Enlargement) & picture.rect();
    QHash<QRgb, std::size_t> pixels;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = part.left(); x <= part.right(); ++x) {
            ++pixels[line[x]];
        }
    }
    QRgb behind = 0;
    std::size_t most = 0;
    for (auto colour = pixels.cbegin(); colour != pixels.cend(); ++colour) {
        if (colour.value() > most) {
            most = colour.value();
            behind = colour.key();
        }
    }
    std::vector<std::pair<double, std::size_t>> contrasts;
    for (auto colour = pixels.cbegin(); colour != pixels.cend(); ++colour) {
        contrasts.emplace_back(Contrast(colour.key(), behind), colour.value());
    }
    std::sort(contrasts.rbegin(), contrasts.rend());
    std::size_t counted = 0;
    for (const auto& [contrast, count] : contrasts) {
        counted += count;
        if (counted >= PixelsOfAStroke) {
            return contrast;
        }
    }
    return 1;
}
