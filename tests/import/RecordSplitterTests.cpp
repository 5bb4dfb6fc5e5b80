#include "import/RecordSplitter.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>
#include <random>

namespace {

struct RecordCase {
    QByteArray record;
    char separator;
    QStringList fields;
};

TEST(SplitImportRecordTest, TakesRecordsApart) {
    const RecordCase cases[] = {
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
    for (const RecordCase& row : cases) {
        const ImportRecord record = SplitImportRecord(row.record);
        EXPECT_EQ(row.separator, record.Separator) << row.record.constData();
        EXPECT_EQ(row.fields, record.Fields) << row.record.constData();
    }
}

QString Trimmed(QString text) {
    while (text.startsWith(QChar(u' '))) {
        text.remove(0, 1);
    }
    while (text.endsWith(QChar(u' '))) {
        text.chop(1);
    }
    return text;
}

// The rule step by step on a text, without a thought to its length.
QStringList SplitPlainly(QString line) {
    line = Trimmed(line);
    const QString separator = line.contains(QChar(u'\t')) ? Text("\t") : Text(",");
    QStringList fields;
    if (!line.contains(separator)) {
        return {line};
    }
    while (fields.size() < 24) {
        const qsizetype closing = line.startsWith(QChar(u'"')) ? line.indexOf(QChar(u'"'), 1) : -1;
        for (qsizetype at = 0; at <= closing; ++at) {
            line[at] = Text("\t\",").contains(line[at]) ? QChar(u' ') : line[at];
        }
        const qsizetype place = line.indexOf(separator);
        if (place < 0) {
            return line.isEmpty() ? fields : fields << Trimmed(line);
        }
        fields.append(Trimmed(line.left(place)));
        line = line.mid(place + 1);
    }
    return fields;
}

TEST(SplitImportRecordTest, AgreesWithThePlainRuleOnRandomRecords) {
    std::mt19937_64 random(20160307);
    const char letters[] = "ab   \"\"\",,,,\t";
    for (int round = 0; round < 20000; ++round) {
        QByteArray record;
        const int wordSize = static_cast<int>(random() % 12) + 2; // with or without tabs
        for (auto length = random() % 60; length > 0; --length) {
            record.append(letters[random() % static_cast<unsigned>(wordSize)]);
        }
        ASSERT_EQ(SplitPlainly(QString::fromLatin1(record)), SplitImportRecord(record).Fields) << record.constData();
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
    const QByteArray blanks(qsizetype{2} * ShownCharacters, ' ');
    EXPECT_EQ(List("x|y"),
              SplitImportRecord(blanks + "x" + blanks + ",\"" + blanks + "y" + blanks + "\"" + blanks).Fields);
}

} // namespace
