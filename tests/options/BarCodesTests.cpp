#include "options/BarCodes.h"

#include <gtest/gtest.h>

namespace {

struct CodeCase {
    std::int16_t Code;
    int Index;
    const char* Text;
    const char* Result;
};

TEST(BarCodes, ListHoldsNoneTabEnterDollarAndLetters) {
    const QStringList texts = BarCodeListTexts();
    ASSERT_EQ(texts.size(), 30);
    for (const CodeCase& row :
         {CodeCase{0, 0, "[None]", ""}, CodeCase{9, 1, "[Tab]", "*$I*"}, CodeCase{13, 2, "[Enter]", "*$M*"},
          CodeCase{36, 3, "$", "*$*"}, CodeCase{65, 4, "A", "*A*"}, CodeCase{90, 29, "Z", "*Z*"}}) {
        EXPECT_EQ(texts[row.Index], QString::fromUtf8(row.Text));
        EXPECT_EQ(BarCodeIndex(row.Code), row.Index) << row.Code;
        EXPECT_EQ(BarCodeOfText(QString::fromUtf8(row.Text)), row.Code);
        EXPECT_EQ(BarCodeResult(row.Code), QString::fromUtf8(row.Result)) << row.Code;
    }
}

TEST(BarCodes, EveryEntryKeepsItsCode) {
    const QStringList texts = BarCodeListTexts();
    for (int index = 0; index < texts.size(); ++index) {
        EXPECT_EQ(BarCodeIndex(BarCodeOfText(texts[index])), index) << texts[index].toStdString();
    }
}

TEST(BarCodes, CodesOutsideTheListSelectNothing) {
    for (const std::int16_t code : std::initializer_list<std::int16_t>{-1, 1, 10, 35, 37, 64, 91, 300, 32767, -32768}) {
        EXPECT_EQ(BarCodeIndex(code), -1) << code;
    }
    EXPECT_EQ(BarCodeResult(300), QString());
    EXPECT_EQ(BarCodeResult(-1), QString());
    EXPECT_EQ(BarCodeResult(97), QStringLiteral("*a*"));
    EXPECT_EQ(BarCodeResult(1), QStringLiteral("*\u0001*"));
    EXPECT_EQ(BarCodeResult(255), QStringLiteral("*\u00FF*"));
    EXPECT_EQ(BarCodeResult(256), QString());
    EXPECT_EQ(BarCodeOfText(QString()), 0);
}

} // namespace
