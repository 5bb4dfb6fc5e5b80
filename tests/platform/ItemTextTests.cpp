#include "platform/CodePage.h"
#include "platform/ItemText.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

namespace {

QStringList ItemsOf(const QByteArray& bytes, ItemError* error = nullptr) {
    ItemReader reader(bytes);
    QStringList items;
    QString item;
    while (!reader.AtEnd() && reader.ReadText(item)) {
        items.append(item);
    }
    if (error != nullptr) {
        *error = reader.Error();
    } else {
        EXPECT_FALSE(reader.Error()) << bytes.toStdString();
    }
    return items;
}

} // namespace

TEST(ItemReader, TakesItemsApart) {
    const struct {
        QByteArray Bytes;
        QStringList Items;
    } cases[] = {
        {"", {}},
        {"\r\n", {Latin("")}},
        {"a", {Latin("a")}},
        {"a\r\nb", {Latin("a"), Latin("b")}},
        {"a\r\nb\r\n", {Latin("a"), Latin("b")}},
        {"a\nb\n", {Latin("a"), Latin("b")}},
        {"a\rb\r", {Latin("a"), Latin("b")}},
        {"a\r\rb", {Latin("a"), Latin(""), Latin("b")}},
        {"a\n\rb", {Latin("a"), Latin(""), Latin("b")}},
        {"a\r\n\r\nb", {Latin("a"), Latin(""), Latin("b")}},
        {"a\rb\nc\r\nd", {Latin("a"), Latin("b"), Latin("c"), Latin("d")}},
        {"a,b", {Latin("a"), Latin("b")}},
        {"a,b,\r\nc", {Latin("a"), Latin("b"), Latin(""), Latin("c")}},
        {"a,", {Latin("a"), Latin("")}},
        {",", {Latin(""), Latin("")}},
        {",,\r\n", {Latin(""), Latin(""), Latin("")}},
        {" a b ", {Latin(" a b ")}},
        {"a , b", {Latin("a "), Latin(" b")}},
        {"\"\"", {Latin("")}},
        {"\"\"\r\n\"\"\r\n", {Latin(""), Latin("")}},
        {"\"a\"", {Latin("a")}},
        {"\"a,b\",c", {Latin("a,b"), Latin("c")}},
        {"\" a \"", {Latin(" a ")}},
        {"  \"a\"  ,b", {Latin("a"), Latin("b")}},
        {"\"a\"dropped,b", {Latin("a"), Latin("b")}},
        {"\"a\"\"b\",c", {Latin("a"), Latin("c")}},
        {"\"a\",1,\"b\",-2\r\n\"c\"", {Latin("a"), Latin("1"), Latin("b"), Latin("-2"), Latin("c")}},
        {"a\"b,c", {Latin("a\"b"), Latin("c")}},
        {"a\"b,c\"", {Latin("a\"b"), Latin("c\"")}},
        {"\t\"a\"", {Latin("\t\"a\"")}},
        {QByteArray("a\0b,c", 5), {QString::fromLatin1("a\0b", 3), Latin("c")}},
        {"\xEF\xBB\xBF"
         "a",
         {TextFromBytes("\xEF\xBB\xBF"
                        "a")}},
    };
    for (const auto& row : cases) {
        const QStringList items = ItemsOf(row.Bytes);
        EXPECT_EQ(items, row.Items) << row.Bytes.toStdString() << " gave " << items.join(u'|').toStdString();
    }
}

TEST(ItemReader, EveryByteComesThroughInAPlainAndAQuotedItem) {
    for (int byte = 128; byte < 256; ++byte) {
        const QByteArray bytes(1, static_cast<char>(byte));
        EXPECT_EQ(ItemsOf(bytes + ",\"" + bytes + "\"\r\n"), (QStringList{TextFromBytes(bytes), TextFromBytes(bytes)}))
            << byte;
    }
}

TEST(ItemReader, AnErrorKnowsItsLine) {
    const struct {
        QByteArray Bytes;
        qsizetype Items;
        int Number;
        int Line;
    } cases[] = {
        {"\"a", 0, 75, 1},
        {"\"", 0, 75, 1},
        {"a\r\nb\r\n\"c\r\nd\"", 2, 75, 3},
        {"a\n\"b\nc\"", 1, 75, 2},
        {"a\r\"b\rc\"", 1, 75, 2},
        {"\"a\",\"b", 1, 75, 1},
        {"a\r\n\r\n  \"b", 2, 75, 3},
    };
    for (const auto& row : cases) {
        ItemError error;
        EXPECT_EQ(ItemsOf(row.Bytes, &error).size(), row.Items) << row.Bytes.toStdString();
        EXPECT_EQ(error.Error.Number, row.Number) << row.Bytes.toStdString();
        EXPECT_EQ(error.Line, row.Line) << row.Bytes.toStdString();
    }
}

TEST(ItemReader, TheEndOfTheFileIsNumber62InTheLineAfterTheLast) {
    const struct {
        QByteArray Bytes;
        int Items;
        int Line;
    } cases[] = {{"", 0, 1}, {"a", 1, 1}, {"a\r\n", 1, 2}, {"a,b", 2, 1}, {"a\nb\n", 2, 3}, {"a\r\n\r\n", 2, 3}};
    for (const auto& row : cases) {
        ItemReader reader(row.Bytes);
        EXPECT_TRUE(reader.Skip(row.Items)) << row.Bytes.toStdString();
        EXPECT_TRUE(reader.AtEnd()) << row.Bytes.toStdString();
        QString value = Latin("kept");
        EXPECT_FALSE(reader.ReadText(value)) << row.Bytes.toStdString();
        EXPECT_EQ(value, Latin("kept"));
        EXPECT_EQ(reader.Error().Error.Number, 62) << row.Bytes.toStdString();
        EXPECT_EQ(reader.Error().Line, row.Line) << row.Bytes.toStdString();
    }
}

TEST(ItemReader, ReadsNumbersAndKeepsTheValueOnFailure) {
    ItemReader reader("a\r\n 12 ,\"-3\"\r\nx\r\n7\r\n");
    std::int16_t number = 99;
    EXPECT_TRUE(reader.Skip());
    EXPECT_TRUE(reader.ReadNumber(number));
    EXPECT_EQ(number, 12);
    EXPECT_TRUE(reader.ReadNumber(number));
    EXPECT_EQ(number, -3);
    EXPECT_FALSE(reader.ReadNumber(number));
    EXPECT_EQ(number, -3);
    EXPECT_EQ(reader.Error().Error.Number, 13);
    EXPECT_EQ(reader.Error().Line, 3);
    EXPECT_FALSE(reader.ReadNumber(number)) << "the first failure is the last read";
    EXPECT_FALSE(reader.Skip());
    EXPECT_EQ(reader.Error().Error.Number, 13);
    EXPECT_EQ(number, -3);
}

TEST(ItemReader, TheCallersOwnErrorStopsTheReading) {
    ItemReader reader("1\r\n2\r\n3\r\n");
    std::int16_t number = 0;
    EXPECT_TRUE(reader.ReadNumber(number) && reader.ReadNumber(number));
    EXPECT_FALSE(reader.Fail(ErrorNumber::SubscriptOutOfRange));
    EXPECT_FALSE(reader.Fail(ErrorNumber::Overflow));
    EXPECT_FALSE(reader.ReadNumber(number));
    EXPECT_EQ(reader.Error().Error.Number, 9);
    EXPECT_EQ(reader.Error().Line, 2);
}

TEST(ItemReader, SkipsNothingWhenAskedForNothing) {
    ItemReader reader("a\r\n");
    EXPECT_TRUE(reader.Skip(0));
    EXPECT_FALSE(reader.Skip(2));
    EXPECT_EQ(reader.Error().Error.Number, 62);
}

TEST(ParseNumber, TakesDecimalNumbersOf16BitsOnly) {
    const struct {
        const char* Text;
        int Value;
    } good[] = {{"0", 0},   {"7", 7},         {" 7 ", 7},        {"+7", 7},
                {"-7", -7}, {"007", 7},       {"32767", 32767},  {"-32768", -32768},
                {"-0", 0},  {"  -12  ", -12}, {"+32767", 32767}, {"0000000000000000000000032767", 32767}};
    for (const auto& row : good) {
        std::int16_t value = 99;
        EXPECT_FALSE(ParseNumber(Latin(row.Text), value)) << row.Text;
        EXPECT_EQ(value, row.Value) << row.Text;
    }
    const struct {
        const char* Text;
        int Number;
    } bad[] = {{"", 13},
               {" ", 13},
               {"a", 13},
               {"7a", 13},
               {"a7", 13},
               {"1 2", 13},
               {"+", 13},
               {"-", 13},
               {"+-1", 13},
               {"--1", 13},
               {"- 1", 13},
               {"1.5", 13},
               {"1,5", 13},
               {"1e3", 13},
               {"0x10", 13},
               {"&H10", 13},
               {"1-", 13},
               {"\t1", 13},
               {"1\t", 13},
               {"\xB2", 13},
               {"\xA0"
                "1",
                13},
               {"32768", 6},
               {"-32769", 6},
               {"+32768", 6},
               {"65536", 6},
               {"70000", 6},
               {"99999999999999999999999999", 6},
               {"99999999999999x", 13}};
    for (const auto& row : bad) {
        std::int16_t value = 99;
        EXPECT_EQ(ParseNumber(Latin(row.Text), value).Number, row.Number) << row.Text;
        EXPECT_EQ(value, 99) << row.Text;
    }
    std::int16_t value = 99;
    EXPECT_EQ(ParseNumber(QString(QChar(0x0663)), value).Number, 13) << "digits of other scripts";
}

TEST(ItemWriter, WritesBothLineForms) {
    ItemWriter writer;
    writer.PlainLine(Latin("[Title]"));
    writer.PlainLine(QString());
    writer.PlainNumber(0);
    writer.PlainNumber(6);
    writer.PlainNumber(-1);
    writer.PlainNumber(-32768);
    writer.Separator();
    writer.QuotedLine({Latin("a,b"), std::int16_t{-5}, QString(), std::int16_t{0}});
    writer.QuotedLine({std::int16_t{32767}});
    EXPECT_EQ(writer.Bytes(), QByteArray("[Title]\r\n\r\n 0 \r\n 6 \r\n-1 \r\n-32768 \r\n\"\"\r\n"
                                         "\"a,b\",-5,\"\",0\r\n32767\r\n"));
}

TEST(ItemWriter, WritesEveryByteAndAQuestionMarkForTheRest) {
    for (int byte = 128; byte < 256; ++byte) {
        const QByteArray bytes(1, static_cast<char>(byte));
        ItemWriter writer;
        writer.PlainLine(TextFromBytes(bytes));
        writer.QuotedLine({TextFromBytes(bytes)});
        EXPECT_EQ(writer.Bytes(), bytes + "\r\n\"" + bytes + "\"\r\n") << byte;
    }
    ItemWriter writer;
    writer.PlainLine(QString::fromUtf8("\xCE\xB1\xF0\x9F\x98\x80"));
    EXPECT_EQ(writer.Bytes(), QByteArray("??\r\n"));
}

TEST(ItemWriter, WhatItWritesIsReadBack) {
    ItemWriter writer;
    writer.QuotedLine({Latin(" a, b "), std::int16_t{-12}});
    writer.PlainLine(Latin("plain text"));
    writer.PlainNumber(42);
    ItemReader reader(writer.Bytes());
    QString quoted;
    QString plain;
    std::int16_t first = 0;
    std::int16_t second = 0;
    EXPECT_TRUE(reader.ReadText(quoted) && reader.ReadNumber(first) && reader.ReadText(plain) &&
                reader.ReadNumber(second));
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_EQ(quoted, Latin(" a, b "));
    EXPECT_EQ(plain, Latin("plain text"));
    EXPECT_EQ(first, -12);
    EXPECT_EQ(second, 42);
}
