#include "tests/polish/Contrast.h"
#include "tests/polish/EveryWindow.h"
#include "tests/polish/TextPlaces.h"
#include "tests/screens/Palettes.h"
#include "tests/support/PrintText.h"

#include <QtWidgets>

namespace {

constexpr double LeastContrast = 4.5;

int ExpectReadable(QWidget& window, const std::string& name) {
    const QImage picture = LargePicture(window);
    const QList<TextPlace> places = TextPlacesOf(window);
    for (const TextPlace& text : places) {
        EXPECT_GE(ContrastOfText(picture, text.Place), LeastContrast) << name << ": " << text.Name.toStdString();
    }
    return static_cast<int>(places.size());
}

// Every window as it is, with the text of each box in turn selected, and with everything disabled.
void ExpectEveryStateReadable(bool dark) {
    UsePalette(dark);
    int seen = 0;
    LookAtEveryWindow([&seen](QWidget& window, const std::string& name) {
        seen += ExpectReadable(window, name);
        for (QLineEdit* box : window.findChildren<QLineEdit*>()) {
            if (box->isVisible() && box->isEnabled() && !box->text().isEmpty()) {
                box->selectAll();
            }
        }
        ExpectReadable(window, name + ", selected");
        window.setEnabled(false);
        ExpectReadable(window, name + ", disabled");
        window.setEnabled(true);
    });
    EXPECT_GT(seen, 500);
    UsePalette(false);
}

TEST(ContrastOf, Colours) {
    EXPECT_NEAR(Contrast(qRgb(0, 0, 0), qRgb(255, 255, 255)), 21, 0.001);
    EXPECT_NEAR(Contrast(qRgb(255, 255, 255), qRgb(255, 255, 255)), 1, 0.001);
    EXPECT_NEAR(Contrast(qRgb(0x76, 0x76, 0x76), qRgb(255, 255, 255)), 4.54, 0.01);
}

TEST(ContrastOf, AText) {
    QLabel label(QStringLiteral("Faint"));
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, qRgb(0x99, 0x99, 0x99));
    palette.setColor(QPalette::Window, Qt::white);
    label.setPalette(palette);
    label.resize(label.sizeHint());
    EXPECT_NEAR(ContrastOfText(LargePicture(label), label.rect()), 2.85, 0.1);
}

TEST(ContrastOf, EveryStateInLight) {
    ExpectEveryStateReadable(false);
}

TEST(ContrastOf, EveryStateInDark) {
    ExpectEveryStateReadable(true);
}

} // namespace
