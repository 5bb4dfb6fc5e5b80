#include "platform/RandomAccessFile.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/TestFolder.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace {

class RandomAccessFileTest : public testing::Test {
protected:
    FaultyCalls calls;
    TestFolder folder{calls};
    RandomAccessFile file;
    const QString path = QStringLiteral("c:\\data\\Students.txt");

    QByteArray ReadAt(std::int64_t offset, std::int64_t size) {
        QByteArray bytes(size, '?');
        std::int64_t count = 0;
        const SystemError error = file.ReadAt(offset, bytes.data(), size, count);
        EXPECT_FALSE(error) << error.Number;
        return bytes.left(count);
    }
};

TEST_F(RandomAccessFileTest, ReadsAtAnyPlace) {
    folder.Write(path, "0123456789");
    ASSERT_FALSE(file.Open(path));
    EXPECT_EQ(10, file.Stamp().Size);
    const struct {
        std::int64_t offset, size;
        const char* bytes;
    } cases[] = {{0, 3, "012"}, {3, 3, "345"}, {8, 1, "8"}, {1, 2, "12"},
                 {8, 9, "89"},  {10, 1, ""},   {99, 5, ""}, {0, 10, "0123456789"}};
    for (const auto& row : cases) {
        EXPECT_EQ(QByteArray(row.bytes), ReadAt(row.offset, row.size)) << row.offset;
    }
}

#ifndef _WIN32 // where an ordinary user makes no links
TEST_F(RandomAccessFileTest, FollowsALinkAndIgnoresCase) {
    folder.Write(path, "abc");
    std::filesystem::create_symlink(folder.Native(path), folder.Native(QStringLiteral("c:\\data\\Link")));
    ASSERT_FALSE(file.Open(QStringLiteral("C:\\DATA\\link")));
    EXPECT_EQ(3, file.Stamp().Size);
    EXPECT_EQ(QByteArray("abc"), ReadAt(0, 9));
}
#endif

TEST_F(RandomAccessFileTest, TellsByTheStampThatTheFileWasWritten) {
    folder.Write(path, "abc");
    ASSERT_FALSE(file.Open(path));
    const FileStamp before = file.Stamp();
    RandomAccessFile again;
    ASSERT_FALSE(again.Open(path));
    EXPECT_EQ(before, again.Stamp());
    const auto time = std::filesystem::last_write_time(folder.Native(path));
    std::filesystem::last_write_time(folder.Native(path), time + std::chrono::seconds(1));
    ASSERT_FALSE(again.Open(path));
    EXPECT_NE(before, again.Stamp());
}

TEST_F(RandomAccessFileTest, TellsWhyItCannotBeOpened) {
    folder.Write(path, "abc");
    calls.FailFirst(FaultyCalls::Kind::OpenForReading, EACCES, 1);
    EXPECT_EQ(70, file.Open(path).Number);
    ASSERT_FALSE(file.Open(path));
    EXPECT_EQ(QByteArray("abc"), ReadAt(0, 3));
}

TEST_F(RandomAccessFileTest, LooksForItsPlaceAgainAfterAFailure) {
    folder.Write(path, "0123456789");
    for (const auto kind : {FaultyCalls::Kind::Seek, FaultyCalls::Kind::Read}) {
        ASSERT_FALSE(file.Open(path));
        EXPECT_EQ(QByteArray("01"), ReadAt(0, 2));
        calls.FailFirst(kind, EIO, 1);
        char byte = '?';
        std::int64_t count = 9;
        EXPECT_EQ(57, file.ReadAt(4, &byte, 1, count).Number);
        EXPECT_EQ(0, count);
        EXPECT_EQ(QByteArray("2345"), ReadAt(2, 4)) << "where the file stood before the failure";
    }
}

TEST_F(RandomAccessFileTest, RefusesWhatIsNoFile) {
    folder.MakeFolder(QStringLiteral("c:\\data\\folder"));
    const struct {
        const char* path;
        int number;
    } cases[] = {{"c:\\data\\none", 53}, {"c:\\none\\x", 76}, {"c:\\data\\folder", 75}, {"q:\\x", 68}, {"x", 52}};
    for (const auto& row : cases) {
        EXPECT_EQ(row.number, file.Open(QString::fromUtf8(row.path)).Number) << row.path;
    }
}

} // namespace
