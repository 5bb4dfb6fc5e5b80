#include "app/CFG_2015.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

TEST(ProductTextsOf, EnglishEdition) {
    SetProductTexts(Edition::English);
    SetTitleLine(2026);
    EXPECT_EQ(ProductName, QStringLiteral("Gradewell"));
    EXPECT_EQ(VersionText, QStringLiteral("2016 CY"));
    EXPECT_EQ(WindowTitle, QStringLiteral("Gradewell 2016 Config"));
    EXPECT_EQ(TransferExeName, QStringLiteral("GWTCY_2016.exe"));
    EXPECT_EQ(ConfigFilesText, QStringLiteral("GW_v11_PRG.CFG and GW_v12_PRG.CFG"));
    EXPECT_EQ(NoticeText, QStringLiteral("Copyright (c) 2026"));
    EXPECT_EQ(TitleLine, QStringLiteral("[Gradewell 2016 Config - 2016 CY - Copyright (c) 2026]"));
    EXPECT_EQ(MonthNames[1], QStringLiteral("January"));
    EXPECT_EQ(MonthNames[12], QStringLiteral("December"));
    EXPECT_EQ(WeekdayNames[1], QStringLiteral("Sunday"));
    EXPECT_EQ(WeekdayNames[7], QStringLiteral("Saturday"));
}

TEST(ProductTextsOf, FrenchEdition) {
    SetProductTexts(Edition::French);
    SetTitleLine(2016);
    EXPECT_EQ(ProductName, QStringLiteral("Carnelle"));
    EXPECT_EQ(VersionText, QStringLiteral("2016 CY"));
    EXPECT_EQ(WindowTitle, QStringLiteral("Carnelle 2016 Config"));
    EXPECT_EQ(TransferExeName, QStringLiteral("CNT_2016.exe"));
    EXPECT_EQ(ConfigFilesText, QString());
    EXPECT_EQ(ConfigFileName, QStringLiteral("CrNl7PRG.CFG"));
    EXPECT_EQ(TitleLine, QStringLiteral("[Carnelle 2016 Config - 2016 CY - Copyright (c) 2016]"));
    const char* months[] = {"janvier", "février", "mars",      "avril",   "mai",      "juin",
                            "juillet", "aôut",    "septembre", "octobre", "novembre", "décembre"};
    const char* weekdays[] = {"dimanche", "lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi"};
    for (std::size_t i = 0; i < 12; ++i) {
        EXPECT_EQ(MonthNames[i + 1], QString::fromUtf8(months[i]));
    }
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(WeekdayNames[i + 1], QString::fromUtf8(weekdays[i]));
    }
}

TEST(ProgramFolderOf, OneTrailingBackslashGoes) {
    EXPECT_EQ(ProgramFolderFrom(QStringLiteral("C:\\")), QStringLiteral("C:"));
    EXPECT_EQ(ProgramFolderFrom(QStringLiteral("c:\\gradewell\\")), QStringLiteral("c:\\gradewell"));
    EXPECT_EQ(ProgramFolderFrom(QStringLiteral("c:\\gradewell")), QStringLiteral("c:\\gradewell"));
    EXPECT_EQ(ProgramFolderFrom(QStringLiteral("c:\\gradewell\\\\")), QStringLiteral("c:\\gradewell\\"));
}

TEST(DefaultScheme, ThirteenLevels) {
    ProgramConfig.SchemeSymbol.fill(QStringLiteral("kept"));
    ProgramConfig.SchemeValue.fill(77);
    SetDefaultSettings();
    const char* symbols[] = {"F", "D-", "D", "D+", "C-", "C", "C+", "B-", "B", "B+", "A-", "A", "A+"};
    const int values[] = {0, 50, 53, 57, 60, 63, 67, 70, 73, 77, 80, 85, 90};
    EXPECT_EQ(ProgramConfig.SchemeHeading, QStringLiteral("ABC"));
    EXPECT_EQ(ProgramConfig.SchemeLast, 12);
    for (std::size_t i = 0; i < 19; ++i) {
        EXPECT_EQ(ProgramConfig.SchemeSymbol[i], i < 13 ? QString::fromLatin1(symbols[i]) : QString()) << i;
        EXPECT_EQ(ProgramConfig.SchemeValue[i], i < 13 ? values[i] : 0) << i;
    }
    EXPECT_EQ(ProgramConfig.PrinterFontName, QStringLiteral("Arial"));
    EXPECT_EQ(ProgramConfig.SchoolYearSecondWord, 1);
    EXPECT_EQ(ProgramConfig.TwoDigitYear, 0);
}

class PrinterFont : public testing::Test {
protected:
    PrinterFont() { SetDefaultSettings(); }
    TestFolder Disk;
};

TEST_F(PrinterFont, NothingIsSaidWhenThePrinterHasTheFont) {
    SetProductTexts(Edition::English);
    CheckPrinterFont();
    EXPECT_TRUE(Disk.Screen.Messages.empty());
    EXPECT_EQ(Disk.Screen.PrinterFonts, QStringList({QStringLiteral("Arial")}));
}

TEST_F(PrinterFont, WithoutAPrinterOneMessageTellsIt) {
    SetProductTexts(Edition::English);
    Disk.Screen.HasPrinter = false;
    Disk.Screen.Answer(MessageAnswer::Ok);
    ProgramConfig.PrinterFontName = QStringLiteral("Gone Sans");
    CheckPrinterFont();
    ASSERT_EQ(Disk.Screen.Messages.size(), 1U);
    EXPECT_EQ(Disk.Screen.Messages[0].Title, QStringLiteral("PRINTER FONT ERROR"));
    EXPECT_EQ(Disk.Screen.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_EQ(Disk.Screen.Messages[0].Buttons, MessageButtons::Ok);
    EXPECT_EQ(
        Disk.Screen.Messages[0].Text,
        QStringLiteral("The following printer font(s) is not available on this computer: \n"
                       " -> [Gone Sans] used on all Gradewell printed forms.\n\n\n"
                       "ARIAL has been substituted. If Arial is not on this system, printing errors will occur.\n\n"
                       "Note: This message may be appearing because this computer does not have a printer "
                       "installed or there is a problem with your printer driver.\n"));
    EXPECT_EQ(ProgramConfig.PrinterFontName, QStringLiteral("Arial"));
}

TEST_F(PrinterFont, FrenchMessage) {
    SetProductTexts(Edition::French);
    Disk.Screen.HasPrinter = false;
    Disk.Screen.Answer(MessageAnswer::Ok);
    CheckPrinterFont();
    ASSERT_EQ(Disk.Screen.Messages.size(), 1U);
    EXPECT_EQ(Disk.Screen.Messages[0].Title, QStringLiteral("Erreur de police d'imprimante"));
    EXPECT_EQ(
        Disk.Screen.Messages[0].Text,
        QString::fromUtf8("Les polices d'imprimante suivates ne sont pas disponible sur cet ordinateur: \n"
                          " -> [Arial] est la police utilisée sur toutes les formes imprimées de Carnelle.\n\n\n"
                          "ARIAL vient d'être substitué. Si la police Arial ne se trouve pas sur ce système, il y "
                          "aura des erreurs d'impression.\n\n"
                          "Notez: Il se peut que ce message apparaisse parce que cet ordinateur manque "
                          "l'installation d'une imprimante ou il y a un problème avec le pilote d'imprimante.\n"));
}

} // namespace
