#include "options/HtmlFileName.h"

#include <gtest/gtest.h>

namespace {

struct HtmlNameCase {
    const char* School;
    std::int16_t Order;
    const char* Name;
    const char* Sep1After;
    const char* Sep2After;
};

class HtmlNames : public testing::TestWithParam<HtmlNameCase> {};

TEST_P(HtmlNames, AreBuiltAndMayEmptyASeparator) {
    QString first = QStringLiteral("-");
    QString second = QStringLiteral("_");
    QString name = QStringLiteral("as it was");
    ConstructHtmlFileName(QString::fromUtf8(GetParam().School), QStringLiteral("C"), QStringLiteral("K"), first, second,
                          GetParam().Order, name);
    EXPECT_EQ(name, QString::fromUtf8(GetParam().Name));
    EXPECT_EQ(first, QString::fromUtf8(GetParam().Sep1After));
    EXPECT_EQ(second, QString::fromUtf8(GetParam().Sep2After));
}

INSTANTIATE_TEST_SUITE_P(
    Orders, HtmlNames,
    testing::Values(HtmlNameCase{"S1", 0, "K-C.htm", "-", "_"}, HtmlNameCase{"S1", 1, "C-K.htm", "-", "_"},
                    HtmlNameCase{"S1", 2, "S1-K_C.htm", "-", "_"}, HtmlNameCase{"S1", 3, "S1-C_K.htm", "-", "_"},
                    HtmlNameCase{"S1", 4, "K-C_S1.htm", "-", "_"}, HtmlNameCase{"S1", 5, "C-K_S1.htm", "-", "_"},
                    HtmlNameCase{"S1", 6, "K-S1_C.htm", "-", "_"}, HtmlNameCase{"S1", 7, "C-S1_K.htm", "-", "_"},
                    HtmlNameCase{"", 0, "K-C.htm", "-", "_"}, HtmlNameCase{"", 1, "C-K.htm", "-", "_"},
                    HtmlNameCase{"", 2, "K_C.htm", "", "_"}, HtmlNameCase{"", 3, "C_K.htm", "", "_"},
                    HtmlNameCase{"", 4, "K-C.htm", "-", ""}, HtmlNameCase{"", 5, "C-K.htm", "-", ""},
                    HtmlNameCase{"", 6, "K-C.htm", "-", ""}, HtmlNameCase{"", 7, "C-K.htm", "-", ""},
                    HtmlNameCase{"S1", 8, "as it was", "-", "_"}, HtmlNameCase{"S1", -1, "as it was", "-", "_"},
                    HtmlNameCase{"", 8, "as it was", "-", ""}, HtmlNameCase{"", -1, "as it was", "-", "_"}));

TEST(HtmlOrders, AreEightTexts) {
    EXPECT_EQ(
        HtmlOrderTexts().join(u'|'),
        QStringLiteral("Student# + Sep1 + Course|Course + Sep1 + Student#|School + Sep1 + Student# + Sep2 + Course|"
                       "School + Sep1 + Course + Sep2 + Student#|Student# + Sep1 + Course + Sep2 + School|"
                       "Course + Sep1 + Student# + Sep2 + School|Student# + Sep1 + School + Sep2 + Course|"
                       "Course + Sep1 + School + Sep2 + Student#"));
}

} // namespace
