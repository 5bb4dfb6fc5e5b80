#include "import/PieceReader.h"
#include "tests/import/FaultyDisk.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

namespace {

constexpr int LongWait = 10'000; // milliseconds; only a broken reader needs it

class PieceReaderTest : public testing::Test {
protected:
    FaultyDisk calls;
    TestFolder folder{calls};
    const QString path = Text("c:\\school\\students.txt");

    ~PieceReaderTest() override {
        calls.Recover();
        AwaitBackgroundWork();
    }

    static QByteArray ReadAll(PieceReader& reader) {
        QByteArray bytes;
        PieceReader::Piece piece = reader.Next(LongWait);
        while (piece.What == PieceReader::State::Read) {
            bytes.append(piece.Bytes, piece.Size);
            piece = reader.Next(LongWait);
        }
        EXPECT_EQ(PieceReader::State::Ended, piece.What);
        return bytes;
    }
};

QByteArray Numbers(qsizetype size) {
    QByteArray bytes;
    for (int number = 0; bytes.size() < size; ++number) {
        bytes += QByteArray::number(number) + ' ';
    }
    return bytes.left(size);
}

TEST_F(PieceReaderTest, GivesTheWholeFileWhateverItsSize) {
    for (const qsizetype size : {0, 1, 131071, 131072, 131073, 1048576, 1048577, 5000000}) {
        const QByteArray bytes = Numbers(size);
        folder.Write(path, bytes);
        PieceReader reader(path);
        EXPECT_TRUE(bytes == ReadAll(reader)) << size;
        EXPECT_FALSE(reader.Error()) << size;
        EXPECT_EQ(size, reader.Stamp().Size);
        EXPECT_EQ(PieceReader::State::Ended, reader.Next(0).What);
    }
}

// Whoever waits and whoever tells meet at every possible moment.
TEST_F(PieceReaderTest, MissesNoEndHoweverShortTheWait) {
    constexpr int Readings = 500;
    const QByteArray bytes = Numbers(200);
    folder.Write(path, bytes);
    for (int reading = 0; reading < Readings; ++reading) {
        PieceReader reader(path);
        QByteArray came;
        PieceReader::Piece piece;
        while (piece.What != PieceReader::State::Ended) {
            piece = reader.Next(reading % 3);
            came.append(piece.Bytes, piece.Size);
        }
        ASSERT_TRUE(bytes == came) << reading;
    }
}

TEST_F(PieceReaderTest, TellsWhyTheFileCannotBeOpened) {
    folder.MakeFolder(Text("c:\\school"));
    PieceReader reader(path);
    EXPECT_EQ(QByteArray(), ReadAll(reader));
    EXPECT_EQ(53, reader.Error().Number);
    EXPECT_EQ(FileStamp(), reader.Stamp());
}

TEST_F(PieceReaderTest, GivesWhatCameBeforeAFailure) {
    const QByteArray bytes = Numbers(400000);
    folder.Write(path, bytes);
    calls.LongestRead = 50000;
    calls.ReadFailure = EIO;
    calls.ReadsBeforeFailure = 5;
    PieceReader reader(path);
    const QByteArray read = ReadAll(reader);
    EXPECT_GE(read.size(), 200000);
    EXPECT_LT(read.size(), 400000);
    EXPECT_TRUE(bytes.startsWith(read));
    EXPECT_EQ(57, reader.Error().Number);
}

TEST_F(PieceReaderTest, AnswersWhileAReadHangsAndGoesOnAfterwards) {
    const QByteArray bytes = Numbers(300000);
    folder.Write(path, bytes);
    calls.StallAfter(1);
    PieceReader reader(path);
    const PieceReader::Piece first = reader.Next(LongWait);
    ASSERT_EQ(PieceReader::State::Read, first.What);
    QByteArray read(first.Bytes, first.Size);
    EXPECT_EQ(PieceReader::State::Waiting, reader.Next(1).What);
    EXPECT_EQ(PieceReader::State::Waiting, reader.Next(1).What);
    calls.Recover();
    read += ReadAll(reader);
    EXPECT_TRUE(bytes == read);
}

TEST_F(PieceReaderTest, ReadsOnlyAFewPiecesAhead) {
    folder.Write(path, Numbers(5000000));
    calls.BytesRead = 0;
    {
        PieceReader reader(path);
        ASSERT_EQ(PieceReader::State::Read, reader.Next(LongWait).What);
    }
    AwaitBackgroundWork(); // it ends although nobody has taken the rest
    EXPECT_LE(calls.BytesRead, 10 * 131072);
}

TEST_F(PieceReaderTest, CanGoWhileAReadHangs) {
    folder.Write(path, Numbers(5000000));
    calls.StallAfter(0);
    {
        PieceReader reader(path);
        EXPECT_EQ(PieceReader::State::Waiting, reader.Next(1).What);
    }
    calls.BytesRead = 0;
    calls.Recover();
    AwaitBackgroundWork();
    EXPECT_LE(calls.BytesRead, 131072); // the rest is of no use
}

} // namespace
