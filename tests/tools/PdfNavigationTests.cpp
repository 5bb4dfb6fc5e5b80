#include "tools/manual/PdfFile.h"
#include "tools/manual/PdfNavigation.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>
#include <gtest/gtest.h>

namespace {

QByteArray TwoPages() {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    painter.drawText(100, 100, QStringLiteral("One"));
    writer.newPage();
    painter.drawText(100, 100, QStringLiteral("Two"));
    painter.end();
    return buffer.data();
}

QByteArray PageWithLink(const char* html) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    QTextDocument document;
    document.setHtml(QString::fromLatin1(html));
    document.print(&writer);
    return buffer.data();
}

const std::vector<PdfBookmark> Bookmarks = {{QStringLiteral("Été"), 1, {0, 700}},
                                            {QStringLiteral("Inner"), 2, {0, 600}},
                                            {QStringLiteral("More"), 2, {1, 800}},
                                            {QStringLiteral("Last"), 1, {1, 500.5}}};

// Reads as a viewer does: the newest table first, the one before it for all other objects.
QByteArray NewestObject(const QByteArray& pdf, int number) {
    const QByteArray head = QByteArray::number(number) + " 0 obj\n";
    const qsizetype start = pdf.lastIndexOf("\n" + head) + 1 + head.size();
    return pdf.mid(start, pdf.indexOf("endobj", start) - start);
}

TEST(PdfNavigation, KeepsEveryByteAndAppends) {
    const QByteArray before = TwoPages();
    const QByteArray after = AddNavigation(before, {Bookmarks, {}, "fr"});
    ASSERT_FALSE(after.isEmpty());
    EXPECT_TRUE(after.startsWith(before));
    EXPECT_TRUE(after.endsWith("%%EOF\n"));
}

TEST(PdfNavigation, PointsItsTableAtTheObjects) {
    const QByteArray before = TwoPages();
    const QByteArray after = AddNavigation(before, {Bookmarks, {}, "en"});
    const qsizetype startxref = after.lastIndexOf("startxref\n") + 10;
    const qsizetype table = after.mid(startxref, after.indexOf('\n', startxref) - startxref).toLongLong();
    ASSERT_EQ(after.mid(table, 5).toStdString(), "xref\n");
    const QList<QByteArray> lines = after.mid(table + 5, after.lastIndexOf("trailer") - table - 5).split('\n');
    int objects = 0;
    for (qsizetype i = 0; i + 1 < lines.size(); i += 2) {
        const QByteArray number = lines[i].split(' ').first();
        EXPECT_EQ(lines[i + 1].size(), 19) << "with its line end an entry has 20 bytes";
        EXPECT_EQ(after.mid(lines[i + 1].left(10).toLongLong(), number.size() + 6).toStdString(),
                  (number + " 0 obj").toStdString());
        ++objects;
    }
    EXPECT_EQ(objects, 6) << "catalogue, outline, four lines";
    const qsizetype old = before.lastIndexOf("startxref\n") + 10;
    const QByteArray oldTable = before.mid(old, before.indexOf('\n', old) - old).trimmed();
    EXPECT_TRUE(after.mid(after.lastIndexOf("trailer")).contains("/Prev " + oldTable + "\n"));
}

TEST(PdfNavigation, MakesATreeOfBookmarks) {
    const QByteArray before = TwoPages();
    const QByteArray after = AddNavigation(before, {Bookmarks, {}, "en"});
    const PdfFile file(before);
    const int outline = file.Count() + 1;
    const QByteArray catalog = NewestObject(after, file.Root());
    EXPECT_EQ(ReferenceIn(catalog, "/Outlines"), outline);
    EXPECT_TRUE(catalog.contains("/PageMode /UseOutlines"));
    EXPECT_TRUE(catalog.contains("/Lang (en)"));
    EXPECT_GT(ReferenceIn(catalog, "/Pages"), 0);

    const QByteArray root = NewestObject(after, outline);
    EXPECT_EQ(ReferenceIn(root, "/First"), outline + 1);
    EXPECT_EQ(ReferenceIn(root, "/Last"), outline + 4);
    EXPECT_TRUE(root.contains("/Count 2\n"));

    const QByteArray first = NewestObject(after, outline + 1);
    EXPECT_TRUE(first.contains("/Title <FEFF00C9007400E9>")) << first.constData();
    EXPECT_EQ(ReferenceIn(first, "/First"), outline + 2);
    EXPECT_EQ(ReferenceIn(first, "/Last"), outline + 3);
    EXPECT_EQ(ReferenceIn(first, "/Next"), outline + 4);
    EXPECT_FALSE(first.contains("/Prev"));
    EXPECT_TRUE(first.contains("/Count -2\n"));
    const QByteArray page = QByteArray::number(file.Pages().at(0)) + " 0 R";
    EXPECT_TRUE(first.contains("/Dest [" + page + " /XYZ 0 700.0 null]"));

    const QByteArray inner = NewestObject(after, outline + 2);
    EXPECT_EQ(ReferenceIn(inner, "/Parent"), outline + 1);
    EXPECT_EQ(ReferenceIn(inner, "/Next"), outline + 3);
    const QByteArray more = NewestObject(after, outline + 3);
    EXPECT_EQ(ReferenceIn(more, "/Prev"), outline + 2);
    EXPECT_EQ(ReferenceIn(more, "/Next"), 0) << "the next line has another parent";
    const QByteArray last = NewestObject(after, outline + 4);
    EXPECT_EQ(ReferenceIn(last, "/Parent"), outline);
    EXPECT_EQ(ReferenceIn(last, "/Prev"), outline + 1);
    EXPECT_EQ(ReferenceIn(last, "/First"), 0);
}

TEST(PdfNavigation, LeadsLinksToTheirPlaces) {
    const QByteArray before = PageWithLink("<p><a href=\"#there\">There</a></p><p><a href=\"#lost\">Lost</a></p>");
    ASSERT_TRUE(before.contains("/URI (#there)"));
    const QByteArray after = AddNavigation(before, {{}, {{QStringLiteral("there"), {0, 321}}}, "en"});
    const QByteArray added = after.mid(before.size());
    EXPECT_EQ(added.count("/Subtype /Link"), 1) << "a link without a target keeps what it has";
    EXPECT_TRUE(added.contains("/XYZ 0 321.0 null]"));
    EXPECT_FALSE(added.contains("/URI"));
    EXPECT_TRUE(added.contains("/Rect ["));
    EXPECT_FALSE(added.contains("/Outlines"));
}

TEST(PdfNavigation, RefusesWhatItDoesNotUnderstand) {
    const QByteArray good = TwoPages();
    const PdfNavigation navigation{Bookmarks, {}, "en"};
    const QByteArray bad[] = {"",
                              "no PDF",
                              good.left(good.size() / 2),
                              QByteArray(good).replace("xref\n0 ", "xref\n1 "),
                              QByteArray(good).replace("/Type /Catalog", "/Type /Cataloe"),
                              QByteArray(good).replace("/Root", "/Ruut")};
    for (const QByteArray& bytes : bad) {
        EXPECT_TRUE(AddNavigation(bytes, navigation).isEmpty()) << bytes.left(60).constData();
    }
    EXPECT_TRUE(AddNavigation(good, {{{QStringLiteral("Beyond"), 1, {2, 0}}}, {}, "en"}).isEmpty());
    EXPECT_TRUE(AddNavigation(good, {{}, {{QStringLiteral("before"), {-1, 0}}}, "en"}).isEmpty());
}

} // namespace
