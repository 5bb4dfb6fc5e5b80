#include "app/InputChecks.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

class InputChecks : public testing::Test {
protected:
    TestFolder Disk;

    // Runs the check in its reporting mode; the text of its one message, empty when there was none.
    QString Report(const std::function<void()>& check, bool fails = true) {
        Disk.Screen.Messages.clear();
        if (fails) {
            Disk.Screen.Answer(MessageAnswer::Ok);
        }
        check();
        if (Disk.Screen.Messages.empty()) {
            return {};
        }
        EXPECT_EQ(Disk.Screen.Messages.size(), 1U);
        EXPECT_EQ(Disk.Screen.Messages[0].Title, QStringLiteral("INPUT ERROR"));
        EXPECT_EQ(Disk.Screen.Messages[0].Icon, MessageIcon::Critical);
        EXPECT_EQ(Disk.Screen.Messages[0].Buttons, MessageButtons::Ok);
        return Disk.Screen.Messages[0].Text;
    }

    static int PositionIn(const char* text, bool commas, bool lineBreaks, const char* refused) {
        QString checked = QString::fromUtf8(text);
        const QString before = checked;
        CheckInputText(checked, commas ? 1 : 0, lineBreaks ? 1 : 0, QString::fromUtf8(refused), 0);
        EXPECT_EQ(checked, before) << "reporting changes no text";
        return ErrorPosition;
    }
};

TEST_F(InputChecks, AllowedCharactersLongReport) {
    const QString text = Report([] { CheckAllowedCharacters(QStringLiteral("12a"), QStringLiteral("0123456789"), 1); });
    EXPECT_EQ(ErrorPosition, 3);
    EXPECT_EQ(text, QStringLiteral("An error has been found in: 12 [a] \n\n [a] is not a valid character for this line."
                                   "\n\nValid characters are: 0123456789\n\nPlease ReEnter!"));
}

TEST_F(InputChecks, AllowedCharactersShortReport) {
    const QString text = Report([] { CheckAllowedCharacters(QStringLiteral("1x2"), QStringLiteral("0123456789"), 2); });
    EXPECT_EQ(ErrorPosition, 2);
    EXPECT_EQ(text, QStringLiteral("Sorry, [x] is not a valid character for this line."
                                   "\n\nValid characters are: 0123456789\n\nPlease ReEnter!"));
}

TEST_F(InputChecks, AllowedCharactersInSilence) {
    for (const int mode : {0, 3, -1}) {
        CheckAllowedCharacters(QStringLiteral("ABc"), QStringLiteral("ABC"), static_cast<std::int16_t>(mode));
        EXPECT_EQ(ErrorPosition, 3) << "case counts";
    }
    CheckAllowedCharacters(QStringLiteral("ABC"), QStringLiteral("CBA"), 1);
    EXPECT_EQ(ErrorPosition, 0);
    CheckAllowedCharacters(QString(), QString(), 1);
    EXPECT_EQ(ErrorPosition, 0) << "an empty text passes";
    CheckAllowedCharacters(QStringLiteral("x"), QString(), 0);
    EXPECT_EQ(ErrorPosition, 1);
    EXPECT_TRUE(Disk.Screen.Messages.empty());
}

TEST_F(InputChecks, EveryControlCharacter) {
    for (int code = 0; code < 256; ++code) {
        const bool lineBreak = code == 10 || code == 13;
        const bool refused = code < 32 || code == 34;
        for (const bool allowed : {false, true}) {
            QString text = QStringLiteral("ab") + QChar(code);
            const bool fails = refused && !(lineBreak && allowed);
            const QString message = Report([&] { CheckInputText(text, 1, allowed ? 1 : 0, QString(), 0); }, fails);
            EXPECT_EQ(ErrorPosition, fails ? 3 : 0) << code;
            EXPECT_EQ(message.isEmpty(), !fails) << code;
        }
    }
}

TEST_F(InputChecks, InputReport) {
    QString comma = QStringLiteral("A,B");
    EXPECT_EQ(Report([&] { CheckInputText(comma, 0, 0, QString(), 0); }),
              QStringLiteral("An error has been found in: A [,] B\n\n [,] is not a valid character for this line.\n\n"
                             "Non-printable characters, commas and quotation marks are not allowed on most lines."
                             "\n\nPlease Re-enter!"));
    EXPECT_EQ(ErrorPosition, 2);
    QString slash = QStringLiteral("a/");
    EXPECT_EQ(Report([&] { CheckInputText(slash, 1, 0, QStringLiteral("/\\:*?<>|"), 0); }),
              QStringLiteral("An error has been found in: a [/] \n\n [/] is not a valid character for this line.\n\n"
                             "Non-printable characters and quotation marks are not allowed on most lines."
                             " As well, the following characters are not allowed: /\\:*?<>|\n\nPlease Re-enter!"));
}

TEST_F(InputChecks, OnlyTheFirstRefusedCharacterIsReported) {
    QString text = QStringLiteral("x\",\"");
    Report([&] { CheckInputText(text, 0, 0, QString(), 0); });
    EXPECT_EQ(ErrorPosition, 2);
}

TEST_F(InputChecks, TextsThatPass) {
    EXPECT_EQ(PositionIn("", false, false, "x"), 0);
    EXPECT_EQ(PositionIn("a,b", true, false, ""), 0);
    EXPECT_EQ(PositionIn("a\r\nb", false, true, ""), 0);
    EXPECT_EQ(PositionIn("Élève n°1 «œ»", false, false, "?"), 0);
    EXPECT_EQ(PositionIn("case counts X", false, false, "x"), 0);
}

TEST_F(InputChecks, Cleaning) {
    struct Case {
        const char* text;
        const char* refused;
        bool commas;
        const char* changed;
        const char* cleaned;
    };
    for (const auto& [text, refused, commas, changed, cleaned] :
         {Case{" x\"y ", "", false, " x y ", "x y"}, Case{" x\"y ", "/", false, " x~y ", "x~y"},
          Case{"a,b/c", "/", false, "a~b~c", "a~b~c"}, Case{"a,b", "", true, "a,b", "a,b"},
          Case{"\ta\r\nb\x1f", "", false, " a  b ", "a  b"}, Case{"\"\"", "", false, "  ", ""},
          Case{"  fine  ", "", false, "  fine  ", "fine"}}) {
        QString checked = QString::fromUtf8(text);
        ErrorPosition = 9;
        CheckInputText(checked, commas ? 1 : 0, 0, QString::fromUtf8(refused), 1);
        EXPECT_EQ(ErrorPosition, 0) << text;
        EXPECT_EQ(checked, QString::fromUtf8(changed));
        EXPECT_EQ(CleanedText, QString::fromUtf8(cleaned));
    }
    QString empty;
    CleanedText = QStringLiteral("kept");
    CheckInputText(empty, 0, 0, QString(), 1);
    EXPECT_EQ(CleanedText, QStringLiteral("kept")) << "of an empty text nothing is cleaned";
    EXPECT_TRUE(Disk.Screen.Messages.empty());
}

} // namespace
