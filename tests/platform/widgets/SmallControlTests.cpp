#include "platform/qt/DialogFilters.h"
#include "platform/qt/HelperPrograms.h"
#include "platform/qt/PrinterFonts.h"
#include "platform/widgets/Captions.h"
#include "platform/widgets/DropDownList.h"
#include "platform/widgets/Pictures.h"
#include "platform/widgets/ProgramStyle.h"
#include "tests/support/PrintText.h"
#include "tests/support/WindowInput.h"

namespace {

TEST(Captions, EachKindOfControlTakesItsText) {
    constexpr Caption table[] = {{"label", "Drive:", "Lecture : "},
                                 {"button", "&Save", "&Enregistrer"},
                                 {"frame", "Frame", "Cadre"},
                                 {"tick", "&Tick", "&Cocher"}};
    QWidget window;
    QLabel label(&window);
    QPushButton button(&window);
    QGroupBox frame(&window);
    QCheckBox tick(&frame);
    label.setObjectName(QStringLiteral("label"));
    button.setObjectName(QStringLiteral("button"));
    frame.setObjectName(QStringLiteral("frame"));
    tick.setObjectName(QStringLiteral("tick"));
    ApplyCaptions(window, table, CaptionLanguage::French);
    EXPECT_EQ(label.text(), QStringLiteral("Lecture : "));
    EXPECT_EQ(button.text(), QStringLiteral("&Enregistrer"));
    EXPECT_EQ(frame.title(), QStringLiteral("Cadre"));
    EXPECT_EQ(tick.text(), QStringLiteral("&Cocher"));
    ApplyCaptions(window, table, CaptionLanguage::English);
    EXPECT_EQ(frame.title(), QStringLiteral("Frame"));
}

TEST(PictureButtons, SpaceEnterAndClickWorkThem) {
    PictureButton button(QStringLiteral("lock-closed"), 48, QStringLiteral("Unlock"));
    int clicks = 0;
    QObject::connect(&button, &QToolButton::clicked, [&] { ++clicks; });
    ShowActive(button);
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&button, Qt::Key_Return);
    QTest::keyClick(&button, Qt::Key_Enter);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks, 4);
    EXPECT_EQ(button.accessibleName(), QStringLiteral("Unlock"));
}

TEST(ClickableLabels, OnlyAPressAndReleaseOnThemIsAClick) {
    ClickableLabel label;
    label.resize(60, 20);
    int clicks = 0;
    QObject::connect(&label, &ClickableLabel::Clicked, [&] { ++clicks; });
    label.show();
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    QTest::mouseClick(&label, Qt::RightButton);
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(200, 200));
    EXPECT_EQ(clicks, 1);
}

TEST(Pictures, EachIsSharpAtEveryScale) {
    for (const char* name : {"lock-closed", "lock-open", "disk", "hourglass", "icon"}) {
        const QString base = QStringLiteral(":/pictures/") + QString::fromLatin1(name);
        EXPECT_FALSE(Picture(QString::fromLatin1(name)).pixmap(48).isNull()) << name;
        const QSize single = QImage(base + QStringLiteral(".png")).size();
        EXPECT_FALSE(single.isEmpty()) << name;
        EXPECT_EQ(QImage(base + QStringLiteral("@2x.png")).size(), single * 2) << name;
        EXPECT_EQ(QImage(base + QStringLiteral("@4x.png")).size(), single * 4) << name;
    }
}

TEST(DropDownLists, TheWheelActsOnlyWithTheFocus) {
    QWidget window;
    QVBoxLayout column(&window);
    DropDownList list;
    QPushButton other;
    column.addWidget(&list);
    column.addWidget(&other);
    list.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    ShowActive(window);
    other.setFocus();
    const auto turn = [&] {
        QWheelEvent event(QPointF(5, 5), list.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&list, &event);
    };
    turn();
    EXPECT_EQ(list.currentIndex(), 0);
    list.setFocus();
    turn();
    EXPECT_EQ(list.currentIndex(), 1);
}

TEST(DropDownLists, ALetterChoosesOnlyWithoutAlt) {
    QWidget window;
    DropDownList list(&window);
    list.addItems({QStringLiteral("apple"), QStringLiteral("bee")});
    ShowActive(window);
    list.setFocus();
    for (const Qt::KeyboardModifier with : {Qt::AltModifier, Qt::ControlModifier, Qt::MetaModifier}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_B, with, QStringLiteral("b"));
        QApplication::sendEvent(&list, &event);
        EXPECT_EQ(list.currentIndex(), 0);
        EXPECT_FALSE(event.isAccepted()) << "the window may want it";
    }
    QTest::keyClick(&list, Qt::Key_B);
    EXPECT_EQ(list.currentIndex(), 1);
}

#ifdef Q_OS_WIN
TEST(DialogFilters, AsTheSystemsDialogTakesThem) {
    EXPECT_EQ(QtFilters(QStringLiteral("All Files (*.*)|*.*")), QStringList({QStringLiteral("All Files (*.*)")}));
    EXPECT_EQ(QtFilters(QStringLiteral("JPeg (*.jpg)|*.jpg|Bit Map (*.bmp)|*.bmp")),
              QStringList({QStringLiteral("JPeg (*.jpg)"), QStringLiteral("Bit Map (*.bmp)")}));
    EXPECT_EQ(QtFilters(QString()), QStringList());
}

TEST(HelperPrograms, ThePathIsOneQuotedArgument) {
    for (const char* path : {"c:\\x.txt", "c:\\a b\\x.txt", "c:\\a,b=c\\it's.txt", "\\\\server\\apps,1\\x.txt"}) {
        const QString native = QString::fromLatin1(path);
        const HelperCommand viewer = CommandFor(HelperProgram::FileViewer, native, {});
        EXPECT_EQ(viewer.Program, QStringLiteral("explorer.exe"));
        EXPECT_EQ(viewer.Line, QStringLiteral("\"%1\"").arg(native));
        const HelperCommand editor = CommandFor(HelperProgram::TextEditor, native, {});
        EXPECT_EQ(editor.Program, QStringLiteral("notepad.exe"));
        EXPECT_EQ(editor.Line, QStringLiteral("\"%1\"").arg(native));
    }
}
#else
TEST(DialogFilters, AsQtTakesThem) {
    EXPECT_EQ(QtFilters(QStringLiteral("All Files (*.*)|*.*")), QStringList({QStringLiteral("All Files (*.*) (*)")}));
    EXPECT_EQ(QtFilters(QStringLiteral("Schemes (*.scm)|*.scm")),
              QStringList({QStringLiteral("Schemes (*.scm) (*.[sS][cC][mM])")}));
    EXPECT_EQ(QtFilters(QStringLiteral("JPeg (*.jpg)|*.jpg|Bit Map (*.bmp)|*.bmp")),
              QStringList({QStringLiteral("JPeg (*.jpg) (*.[jJ][pP][gG])"),
                           QStringLiteral("Bit Map (*.bmp) (*.[bB][mM][pP])")}));
    EXPECT_EQ(QtFilters(QString()), QStringList());
}
#endif

TEST(PrinterFonts, APrinterAndTheFontAreNeeded) {
    const QStringList families{QStringLiteral("DejaVu Sans"), QStringLiteral("ARIAL")};
    int asked = 0;
    const auto printer = [&] { return ++asked > 0; };
    const auto noPrinter = [] { return false; };
    EXPECT_TRUE(PrinterCanUse(QStringLiteral("Arial"), families, printer));
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(PrinterCanUse(QStringLiteral("Arial"), families, noPrinter));
    EXPECT_FALSE(PrinterCanUse(QStringLiteral("Arial"), {QStringLiteral("Arial Black")}, printer));
    EXPECT_FALSE(PrinterCanUse(QString(), families, printer));
    EXPECT_EQ(asked, 1) << "without the font the printers are not asked";
}

#ifndef Q_OS_WIN
HelperSurroundings Machine(const QStringList& programs, const char* editor, bool fileExists) {
    return {[programs](const QString& name) {
                return !name.isEmpty() && programs.contains(name) ? QStringLiteral("/usr/bin/") + name : QString();
            },
            QString::fromLatin1(editor), fileExists};
}

TEST(HelperPrograms, ThePathIsOneArgumentOfItsOwn) {
    const QStringList all{QStringLiteral("xdg-open"), QStringLiteral("x-terminal-emulator"), QStringLiteral("vi")};
    const QString odd = QStringLiteral("/srv/a \"b\" & $(c);-d");
    const HelperCommand viewer = CommandFor(HelperProgram::FileViewer, odd, Machine(all, "vi", true));
    EXPECT_EQ(viewer.Program, QStringLiteral("/usr/bin/xdg-open"));
    EXPECT_EQ(viewer.Arguments, QStringList({odd}));
    const HelperCommand fresh = CommandFor(HelperProgram::TextEditor, odd, Machine(all, "vi", false));
    EXPECT_EQ(fresh.Program, QStringLiteral("/usr/bin/x-terminal-emulator"));
    EXPECT_EQ(fresh.Arguments, QStringList({QStringLiteral("-e"), QStringLiteral("/usr/bin/vi"), odd}));
    EXPECT_EQ(CommandFor(HelperProgram::TextEditor, odd, Machine(all, "vi", true)).Program,
              QStringLiteral("/usr/bin/xdg-open"));
}

TEST(HelperPrograms, NothingWhereTheMachineHasNothing) {
    const QString file = QStringLiteral("/srv/x.txt");
    EXPECT_EQ(CommandFor(HelperProgram::FileViewer, file, Machine({QStringLiteral("x-terminal-emulator")}, "vi", true))
                  .Program,
              QString());
    EXPECT_EQ(CommandFor(HelperProgram::TextEditor, file, Machine({QStringLiteral("xdg-open")}, "vi", false)).Program,
              QString());
    EXPECT_EQ(
        CommandFor(HelperProgram::TextEditor, file, Machine({QStringLiteral("x-terminal-emulator")}, "", true)).Program,
        QString());
}
#endif

TEST(ProgramStyles, FramesHoldTheirTitleInside) {
    QGroupBox frame(QStringLiteral("Title"));
    QVBoxLayout column(&frame);
    column.setContentsMargins(0, 0, 0, 0);
    QLabel label(QStringLiteral("text"));
    column.addWidget(&label);
    frame.resize(200, 100);
    frame.show();
    const int title = QFontMetrics(frame.font()).height();
    EXPECT_GE(label.mapTo(&frame, QPoint()).y(), title) << "the contents begin below the title";
    EXPECT_GT(frame.grab().toImage().pixelColor(100, 0).alpha(), 0);
}

qreal Luminance(const QColor& color) {
    const auto linear = [](qreal part) { return part <= 0.04045 ? part / 12.92 : qPow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

qreal Contrast(const QColor& one, const QColor& other) {
    const qreal light = qMax(Luminance(one), Luminance(other));
    const qreal dark = qMin(Luminance(one), Luminance(other));
    return (light + 0.05) / (dark + 0.05);
}

// The greatest contrast of the pixels of a part of a picture with one colour.
qreal GreatestContrast(const QImage& picture, const QRect& part, const QColor& around) {
    qreal greatest = 1;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            greatest = qMax(greatest, Contrast(picture.pixelColor(x, y), around));
        }
    }
    return greatest;
}

TEST(ProgramStyles, EmptyBoxesAndMarksStandOutOfACardInADarkPalette) {
    QGroupBox card;
    QPalette dark(QColor(0x3a, 0x3a, 0x3c), QColor(0x2b, 0x2b, 0x2d));
    dark.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x20));
    card.setPalette(dark);
    card.resize(300, 200);
    QRadioButton option(&card);
    QCheckBox tick(&card);
    QLineEdit box(&card);
    QListWidget list(&card);
    option.setGeometry(20, 20, 30, 24);
    tick.setGeometry(20, 50, 30, 24);
    box.setGeometry(20, 80, 100, 24);
    list.setGeometry(20, 110, 100, 60);
    card.setFocus();
    const QImage picture = card.grab().toImage();
    const QColor around = picture.pixelColor(200, 40);
    for (const QWidget* control : std::initializer_list<QWidget*>{&option, &tick, &box, &list}) {
        EXPECT_GE(GreatestContrast(picture, control->geometry(), around), 3) << control->metaObject()->className();
    }
}

} // namespace
