#include "import/RecordSplitter.h"
#include "tests/import/Text.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    QByteArray record;
    char separator;
    QStringList fields;
};

QStringList List(const char* separatedByBars) {
    return Text(separatedByBars).split(QChar(u'|'));
}

TEST(SplitImportRecordTest, TakesRecordsApart) {
    const Case cases[] = {
        {"Smith,John,M", ',', List("Smith|John|M")},
        {"Smith\tJohn\tM", '\t', List("Smith|John|M")},
        {"Smith, Jr\tJohn", '\t', List("Smith, Jr|John")},
        {"a,b\t", '\t', List("a,b")},
        {"alone", '\0', List("alone")},
        {"  alone  ", '\0', List("alone")},
        {"", '\0', List("")},
        {"    ", '\0', List("")},
        {"a,,b", ',', List("a||b")},
        {"a,b,", ',', List("a|b")},
        {"a,b, ", ',', List("a|b")},
        {"a,b,,", ',', List("a|b|")},
        {",a", ',', List("|a")},
        {",", ',', List("")},
        {",,", ',', List("|")},
        {"\t", '\t', List("")},
        {"  a , b  ,c  ", ',', List("a|b|c")},
        {"a\t \t b", '\t', List("a||b")},
        // A field that begins with a quote: quotes, commas and tabs up to the next quote become blanks.
        {"\"Smith, Jr\",John", ',', List("Smith  Jr|John")},
        {"\"Smith\",\"John\"", ',', List("Smith|John")},
        {"\"a\tb\",c", '\t', List("a b ,c")},
        {"\"a,b\tc\"\td", '\t', List("a b c|d")},
        {"\"\",x", ',', List("|x")},
        {"a,\"\"", ',', List("a|")},
        {"\"a\"b\"c,d", ',', List("a b\"c|d")},
        {"\"a\"\"b,c\",d", ',', List("a \"b|c\"|d")},
        {"\"Smith, John", ',', List("\"Smith|John")},
        {"\"", '\0', List("\"")},
        {"\"a b\"", '\0', List("\"a b\"")},
        {"a\"b,c\",d", ',', List("a\"b|c\"|d")},
        {"a, \"b,c\",d", ',', List("a|\"b|c\"|d")},
        {" \"a,b\",c", ',', List("a b|c")},
        {"\",\",x", ',', List("|x")},
        {"x,\"a,b\"", ',', List("x|a b")},
        // Bytes as they come.
        {"\xEF\xBB\xBF\"a,b\",c", ',', List("ï»¿\"a|b\"|c")},
        {"\xC9tienne,\x80", ',', List("Étienne|€")},
        {QByteArray("a\0b,c", 5), ',', {QString::fromUtf8("a\0b", 3), Text("c")}},
    };
    for (const Case& row : cases) {
        const ImportRecord record = SplitImportRecord(row.record);
        EXPECT_EQ(row.separator, record.Separator) << row.record.constData();
        EXPECT_EQ(row.fields, record.Fields) << row.record.constData();
    }
}

TEST(SplitImportRecordTest, KeepsAtMost24Fields) {
    QByteArray record;
    QStringList expected;
    for (int field = 1; field <= 30; ++field) {
        record += "f" + QByteArray::number(field) + (field < 30 ? "," : "");
        if (field <= 24) {
            expected.append(Text("f") + QString::number(field));
        }
        const QStringList fields = SplitImportRecord(record).Fields;
        EXPECT_EQ(expected, fields) << field;
    }
}

TEST(SplitImportRecordTest, CutsALongFieldForShowing) {
    const QByteArray longField(ShownCharacters + 100, 'x');
    const QStringList fields = SplitImportRecord(longField + ",   " + longField + ",y").Fields;
    ASSERT_EQ(3, fields.size());
    EXPECT_EQ(QString(ShownCharacters, QChar(u'x')), fields[0]);
    EXPECT_EQ(QString(ShownCharacters, QChar(u'x')), fields[1]);
    EXPECT_EQ(Text("y"), fields[2]);
}

TEST(SplitImportRecordTest, TrimsBlanksBeyondTheCut) {
    const QByteArray blanks(2 * ShownCharacters, ' ');
    EXPECT_EQ(List("x|y"),
              SplitImportRecord(blanks + "x" + blanks + ",\"" + blanks + "y" + blanks + "\"" + blanks).Fields);
}

} // namespace
