/// Takes a picture of every window and panel: screens english|french light|dark|manual PICTURE-FOLDER [larger |
/// WIDTHxHEIGHT]. The scale is that of QT_SCALE_FACTOR; "larger" makes the letters a fifth larger, and with a size
/// every window fills a screen of so many logical pixels. Those of the manual have light colours and small files, named
/// after what they show. Ends with 0 when every picture was taken and no window showed a message.

#include "platform/widgets/ProgramStyle.h"
#include "tests/screens/Palettes.h"
#include "tests/screens/Pictures.h"
#include "tests/screens/Windows.h"

#include <QApplication>
#include <QDir>
#include <cstdio>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

/// The size in "800x600"; none for another text.
QSize ScreenOf(const QString& text) {
    const QStringList sides = text.split(u'x');
    return sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString special = arguments.value(4);
    const QSize screen = ScreenOf(special);
    const bool isLarger = special == QLatin1String("larger");
    if (arguments.size() < 4 || !(special.isEmpty() || isLarger || !screen.isEmpty()) || !QDir().mkpath(arguments[3])) {
        std::fputs("Usage: screens english|french light|dark|manual PICTURE-FOLDER [larger | WIDTHxHEIGHT]\n", stderr);
        return 2;
    }
    ProgramStyle::Install();
    QApplication::setCursorFlashTime(0);
    UsePalette(arguments[2] == QLatin1String("dark"));
    if (isLarger) {
        QApplication::setFont(Larger(QApplication::font()));
    }
    const Edition edition = arguments[1] == QLatin1String("french") ? Edition::French : Edition::English;
    const int percent = qRound(qApp->devicePixelRatio() * 100);
    const QString prefix = QStringLiteral("%1-%2-%3")
                               .arg(arguments[1], arguments[2], special.isEmpty() ? QString::number(percent) : special);
    PictureTaker pictures(arguments[3], arguments[2] == QLatin1String("manual") ? QString() : prefix, screen);
    try {
        TakeMenu(edition, pictures);
        TakeGeneralOptions(edition, pictures);
        TakeImport(edition, pictures);
        TakeAdmin(edition, pictures);
        TakeTransfer(edition, pictures);
        TakeSaving(edition, pictures);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    std::printf("%s: %d pictures, %d controls clipped\n", qPrintable(prefix), pictures.Count(),
                pictures.ClippedCount());
    return testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 1 : 0;
}
