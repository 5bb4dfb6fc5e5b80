#include "tests/polish/EveryWindow.h"
#include "tests/screens/Clipped.h"
#include "tests/screens/Palettes.h"
#include "tests/support/PrintText.h"

#include <QtWidgets>

namespace {

constexpr QSize SmallestScreen(800, 600); // logical pixels
constexpr QSize OrdinaryScreen(1366, 768);

// Every window opens on the screen, fills it, and shows every text whole.
void ExpectAllFitOn(const QSize& screen) {
    const auto look = [&screen](QWidget& window, const std::string& name) {
        EXPECT_LE(window.minimumWidth(), screen.width()) << name;
        EXPECT_LE(window.minimumHeight(), screen.height()) << name;
        window.resize(screen);
        EXPECT_EQ(window.size(), screen) << name;
        QCoreApplication::processEvents();
        for (const QString& line : ClippedControls(window)) {
            ADD_FAILURE() << name << " at " << screen.width() << " x " << screen.height() << ": " << line.toStdString();
        }
    };
    LookAtEveryWindow(look, screen);
}

TEST(Fit, TheSmallestScreen) {
    ExpectAllFitOn(SmallestScreen);
}

TEST(Fit, AnOrdinaryScreen) {
    ExpectAllFitOn(OrdinaryScreen);
}

// A desktop whose letters are a fifth larger.
class FitOfLargeLetters : public testing::Test {
protected:
    void SetUp() override { QApplication::setFont(Larger(usual)); }
    void TearDown() override { QApplication::setFont(usual); }

private:
    const QFont usual = QApplication::font();
};

TEST_F(FitOfLargeLetters, TheSmallestScreen) {
    ExpectAllFitOn(SmallestScreen);
}

TEST_F(FitOfLargeLetters, AnOrdinaryScreen) {
    ExpectAllFitOn(OrdinaryScreen);
}

} // namespace
