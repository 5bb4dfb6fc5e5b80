#include "tests/screens/Palettes.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

namespace {

QPalette DarkPalette() {
    const QColor text(0xe6, 0xe6, 0xe6);
    const QColor faint(0x82, 0x82, 0x82);
    QPalette palette(QColor(0x3a, 0x3a, 0x3c), QColor(0x2b, 0x2b, 0x2d));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x20));
    palette.setColor(QPalette::AlternateBase, QColor(0x2b, 0x2b, 0x2d));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb7));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb2, 0xf5));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3a, 0x3c));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    return palette;
}

} // namespace

void UsePalette(bool dark) {
    QPalette palette = dark ? DarkPalette() : QApplication::style()->standardPalette();
    QApplication::style()->polish(palette);
    QApplication::setPalette(palette);
}

QFont Larger(QFont font) {
    constexpr double aFifthMore = 1.2;
    font.setPointSizeF(font.pointSizeF() * aFifthMore);
    return font;
}
