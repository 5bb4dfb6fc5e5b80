/// Takes a picture of every window and panel: screens english|french light|dark|manual PICTURE-FOLDER. The scale is
/// that of QT_SCALE_FACTOR. Those of the manual have light colours and small files, named after what they show. Ends
/// with 0 when every picture was taken and no window showed a message.

#include "platform/widgets/ProgramStyle.h"
#include "tests/screens/Pictures.h"
#include "tests/screens/Windows.h"

#include <QApplication>
#include <QDir>
#include <QStyle>
#include <cstdio>
#include <gtest/gtest.h>
#include <stdexcept>

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

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4 || !QDir().mkpath(arguments[3])) {
        std::fputs("Usage: screens english|french light|dark|manual PICTURE-FOLDER\n", stderr);
        return 2;
    }
    ProgramStyle::Install();
    QApplication::setCursorFlashTime(0);
    QApplication::setPalette(arguments[2] == QLatin1String("dark") ? DarkPalette()
                                                                   : QApplication::style()->standardPalette());
    const Edition edition = arguments[1] == QLatin1String("french") ? Edition::French : Edition::English;
    const int percent = qRound(qApp->devicePixelRatio() * 100);
    const QString prefix = QStringLiteral("%1-%2-%3").arg(arguments[1], arguments[2]).arg(percent);
    PictureTaker pictures(arguments[3], arguments[2] == QLatin1String("manual") ? QString() : prefix);
    try {
        TakeMenu(edition, pictures);
        TakeGeneralOptions(edition, pictures);
        TakeImport(edition, pictures);
        TakeAdmin(edition, pictures);
        TakeTransfer(edition, pictures);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    std::printf("%s %s %d %%: %d pictures, %d controls clipped\n", qPrintable(arguments[1]), qPrintable(arguments[2]),
                percent, pictures.Count(), pictures.ClippedCount());
    return testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 1 : 0;
}
