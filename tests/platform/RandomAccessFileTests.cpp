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

/// The system gives the lowest number that is free, and that may be 0.
class LowestHandle : public FaultyCalls {
public:
    int OpenForReading(const NativePath& path) override {
        given = FaultyCalls::OpenForReading(path);
        return given < 0 ? given : 0;
    }
    std::int64_t Read(int handle, char* buffer, std::int64_t size) override {
        return FaultyCalls::Read(Given(handle), buffer, size);
    }
    std::int64_t Seek(int handle, std::int64_t position) override { return FaultyCalls::Seek(Given(handle), position); }
    int Close(int handle) override { return FaultyCalls::Close(Given(handle)); }

private:
    int given = -1;

    int Given(int handle) const { return handle == 0 ? given : handle; }
};

TEST(LowestHandleTest, IsReadAndClosedAsAnyOther) {
    LowestHandle calls;
    TestFolder folder{calls};
    folder.Write(QStringLiteral("c:\\students.txt"), "abc");
    RandomAccessFile file;
    ASSERT_FALSE(file.Open(QStringLiteral("c:\\students.txt")));
    QByteArray bytes(3, '?');
    std::int64_t count = 0;
    EXPECT_FALSE(file.ReadAt(0, bytes.data(), 3, count));
    EXPECT_EQ(QByteArray("abc"), bytes);
    file.Close();
    EXPECT_EQ(0, calls.OpenHandles);
}

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
