#include "import/Utf8Suspicion.h"

#include <QByteArray>
#include <gtest/gtest.h>

namespace {

struct BytesCase {
    QByteArray bytes;
    bool suspected;
};

const BytesCase Cases[] = {
    {"", false},
    {"plain text only", false},
    {"\xEF\xBB\xBF", true},
    {"\xEF\xBB\xBFplain", true},
    {"\xEF\xBB\xBF\xE9 Windows behind a mark", true},
    {"\xEF\xBB", false},
    {"Ren\xE9,x", false},
    {"Ren\xC3\xA9,x", true},
    {"Ren\xC3\xA9", true},
    {"Ren\xC3", false},
    {"Ren\xC3\xA9 Andr\xE9", false},
    {"\xA9", false},
    {"\x80", false},
    {"\xC3\xC3\xA9", false},
    {"\xC0\x80", false},
    {"\xC1\xBF", false},
    {"\xC2\x80", true},
    {"\xDF\xBF", true},
    {"\xE0\x9F\xBF", false},
    {"\xE0\xA0\x80", true},
    {"\xE2\x82\xAC", true},
    {"\xE2\x82", false},
    {"\xED\x9F\xBF", true},
    {"\xED\xA0\x80", false},
    {"\xF0\x8F\xBF\xBF", false},
    {"\xF0\x9F\x98\x80", true},
    {"\xF4\x8F\xBF\xBF", true},
    {"\xF4\x90\x80\x80", false},
    {"\xF5\x80\x80\x80", false},
    {"\xFF", false},
    {"text \xEF\xBB\xBF in the middle", true},
    {"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\xE9", false},
    {"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\xC3\xA9", true},
};

TEST(Utf8SuspicionTest, JudgesByMarkOrValidCharacters) {
    for (const BytesCase& row : Cases) {
        for (qsizetype piece = 1; piece <= row.bytes.size() + 1; ++piece) {
            Utf8Suspicion suspicion;
            for (qsizetype at = 0; at < row.bytes.size(); at += piece) {
                suspicion.Add(row.bytes.constData() + at, std::min(piece, row.bytes.size() - at));
            }
            EXPECT_EQ(row.suspected, suspicion.Suspected()) << row.bytes.toPercentEncoding().constData() << piece;
        }
    }
}

TEST(Utf8SuspicionTest, FindsTheOneOddCharacterOfALongText) {
    for (const qsizetype place : {0, 1, 4095, 4096, 4097, 9000, 19998}) {
        for (const bool valid : {true, false}) {
            QByteArray text(20000, 'x');
            text[place] = '\xC3';
            text[place + 1] = valid ? '\xA9' : 'x';
            Utf8Suspicion suspicion;
            suspicion.Add(text.constData(), text.size());
            EXPECT_EQ(valid, suspicion.Suspected()) << place;
        }
    }
}

TEST(Utf8SuspicionTest, LetsManyValidCharactersSettleIt) {
    Utf8Suspicion few;
    const QByteArray text = QByteArray("\xC3\xA9").repeated(999);
    few.Add(text.constData(), text.size());
    few.Add("\xE9 ", 2);
    EXPECT_FALSE(few.Suspected());
    Utf8Suspicion many;
    many.Add(text.constData(), text.size());
    many.Add("\xC3\xA9", 2);
    many.Add("\xE9 ", 2);
    EXPECT_TRUE(many.Suspected());
}

} // namespace
