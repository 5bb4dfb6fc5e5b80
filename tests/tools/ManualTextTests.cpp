#include "tools/manual/ManualText.h"

#include <gtest/gtest.h>

namespace {

std::string Filled(const char* html, const ManualPlaces& places) {
    return FilledManual(QString::fromUtf8(html), places).toStdString();
}

TEST(ManualText, PutsPagesInThePlaceOfNames) {
    ManualPlaces places;
    places.Pages = {{QStringLiteral("lock"), 7}, {QStringLiteral("save error"), 12}};
    EXPECT_EQ(Filled("see @page:lock@, @page:save error@ and @page:none@ @ page:lock", places),
              "see 7, 12 and ? @ page:lock");
    EXPECT_EQ(Filled("nothing", places), "nothing");
}

TEST(ManualText, MakesContentsOfTwoLevels) {
    ManualPlaces places;
    places.Headings = {{QStringLiteral("1. A <b>"), 1, 3, 0},
                       {QStringLiteral("Inner"), 2, 4, 50},
                       {QStringLiteral("Deep"), 3, 4, 90},
                       {QStringLiteral("2. Z"), 1, 15, 0}};
    const std::string filled = Filled("<!--contents-->", places);
    EXPECT_NE(filled.find("<b><a href=\"#heading-0\">1. A &lt;b&gt;</a></b>"), std::string::npos) << filled;
    EXPECT_NE(filled.find("<a href=\"#heading-1\""), std::string::npos);
    EXPECT_NE(filled.find("<a href=\"#heading-3\">2. Z</a>"), std::string::npos) << "the deep one is counted, too";
    EXPECT_EQ(filled.find("Deep"), std::string::npos);
    EXPECT_NE(filled.find(">15</td>"), std::string::npos);
}

TEST(ManualText, SortsTheIndexAsPeopleDo) {
    ManualPlaces places;
    places.Index = {{QStringLiteral("zero"), {9}},
                    {QStringLiteral("élèves"), {4, 11}},
                    {QStringLiteral("Exit"), {2}},
                    {QStringLiteral("(deb)"), {1}}};
    const std::string filled = Filled("<!--index-->", places);
    const std::size_t deb = filled.find("(deb), <a href=\"#page-1\">1</a>");
    const std::size_t students = filled.find("élèves, <a href=\"#page-4\">4</a>, <a href=\"#page-11\">11</a>");
    const std::size_t exit = filled.find("Exit, ");
    const std::size_t zero = filled.find("zero, ");
    EXPECT_LT(deb, students);
    EXPECT_LT(students, exit);
    EXPECT_LT(exit, zero);
    EXPECT_NE(zero, std::string::npos);
}

TEST(ManualText, KnowsWhetherAPageNumberChanged) {
    ManualPlaces places;
    places.Headings = {{QStringLiteral("A"), 1, 3, 0}};
    places.Pages = {{QStringLiteral("a"), 3}};
    ManualPlaces same = places;
    same.Headings[0].Top = 20;
    EXPECT_TRUE(places == same) << "only pages are printed";
    same.Headings[0].Page = 4;
    EXPECT_FALSE(places == same);
    same = places;
    same.Index[QStringLiteral("term")] = {1};
    EXPECT_FALSE(places == same);
}

} // namespace
