#include "tools/manual/ManualPages.h"

#include <gtest/gtest.h>

namespace {

const char* const Style =
    "<html><head><title>T</title><style>h1 { page-break-before: always } p { margin: 0px 0px 8px 0px }"
    " .keep { margin-bottom: 0px }</style></head><body>";

QString Lines(int count) {
    QString lines;
    for (int i = 0; i < count; ++i) {
        lines += QStringLiteral("<p>Line</p>");
    }
    return lines;
}

ManualPages PagesOf(const QString& body) {
    return ManualPages(QString::fromLatin1(Style) + body, QUrl());
}

TEST(ManualPages, TellsThePagesOfHeadingsNamesAndTerms) {
    const ManualPages pages =
        PagesOf(QStringLiteral("<p>Title</p><p><!--contents--></p><h1>First</h1><p>See @page:far@"
                               "</p><h1>Second</h1><p><a name=\"far\"></a>"
                               "<a name=\"index:one|two\"></a>Far</p><p><a name=\"index:one\"></a>"
                               "Again</p><h1>Third</h1><p><a name=\"index:one\"></a>Last</p>"));
    const ManualPlaces& places = pages.Places();
    ASSERT_EQ(places.Headings.size(), 3U);
    EXPECT_EQ(places.Headings[0].Page, 2);
    EXPECT_EQ(places.Headings[1].Page, 3);
    EXPECT_EQ(places.Pages.value(QStringLiteral("far")), 3);
    EXPECT_EQ(places.Index.value(QStringLiteral("one")), std::vector<int>({3, 4}));
    EXPECT_EQ(places.Index.value(QStringLiteral("two")), std::vector<int>({3}));
    EXPECT_EQ(pages.Count(), 4);
    EXPECT_EQ(pages.Title(), QStringLiteral("T"));
}

TEST(ManualPages, KeepsAHeadingWithItsText) {
    for (int lines = 30; lines < 50; ++lines) { // somewhere between, the heading is the last line of the page
        const ManualPages pages =
            PagesOf(Lines(lines) + QStringLiteral("<p class=\"keep\"><a name=\"kept\"></a>Kept</p><h2>"
                                                  "Heading</h2><p><a name=\"text\"></a>Text</p>"));
        const ManualPlaces& places = pages.Places();
        EXPECT_EQ(places.Headings[0].Page, places.Pages.value(QStringLiteral("text"))) << lines;
        EXPECT_EQ(places.Headings[0].Page, places.Pages.value(QStringLiteral("kept"))) << lines;
    }
}

TEST(ManualPages, DoesNotCutAShortParagraph) {
    const QString paragraph =
        QStringLiteral("<p><a name=\"first\"></a>One<br>Two<br>Three<br><a name=\"last\"></a>Four</p>");
    for (int lines = 30; lines < 50; ++lines) {
        const ManualPages pages = PagesOf(Lines(lines) + paragraph + Lines(2));
        EXPECT_EQ(pages.Places().Pages.value(QStringLiteral("first")),
                  pages.Places().Pages.value(QStringLiteral("last")))
            << lines;
    }
}

TEST(ManualPages, BookmarksTwoLevelsAndTargetsAllNames) {
    const ManualPages pages =
        PagesOf(QStringLiteral("<p>Title</p><h1>First</h1><h2><a name=\"in\"></a>Inner</h2><h3>Deep"
                               "</h3><p>Text</p>"));
    const PdfNavigation navigation = pages.Navigation();
    ASSERT_EQ(navigation.Bookmarks.size(), 2U);
    EXPECT_EQ(navigation.Bookmarks[1].Title, QStringLiteral("Inner"));
    EXPECT_EQ(navigation.Bookmarks[1].Level, 2);
    EXPECT_EQ(navigation.Bookmarks[1].Place.Page, 1);
    EXPECT_LT(navigation.Bookmarks[1].Place.Height, navigation.Bookmarks[0].Place.Height);
    for (const char* name : {"heading-0", "heading-2", "in", "page-1", "page-2"}) {
        EXPECT_TRUE(navigation.LinkTargets.contains(QString::fromLatin1(name))) << name;
    }
}

TEST(ManualPages, NamesPicturesThatAreMissing) {
    const ManualPages pages = PagesOf(QStringLiteral("<p><img src=\"nowhere.png\"></p>"));
    EXPECT_EQ(pages.MissingPictures(), QStringList({QStringLiteral("nowhere.png")}));
}

} // namespace
