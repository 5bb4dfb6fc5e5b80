#include "import/ImportFile.h"
#include "tests/import/FaultyDisk.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Text.h"

#include <QElapsedTimer>
#include <fstream>
#include <gtest/gtest.h>

namespace {

using Outcome = ImportFile::Outcome;

class ImportFileTest : public testing::Test {
protected:
    FaultyDisk calls;
    TestFolder folder{calls};
    const QString path = Text("c:\\school\\students.txt");

    ImportFile Counted(const QByteArray& bytes) {
        folder.Write(path, bytes);
        ImportFile file(path);
        EXPECT_EQ(Outcome::Done, file.Count({}).What);
        return file;
    }

    static QString FirstField(const ImportFile& file, std::int64_t number) {
        const ImportFile::RecordReading reading = file.ReaderOf(number)();
        return reading.Came.What == Outcome::Done ? reading.Record.Fields.value(0) : Text("(error)");
    }
};

TEST_F(ImportFileTest, ReadsEveryRecordWhateverEndsTheLines) {
    for (const char* end : {"\r\n", "\n", "\r"}) {
        for (const bool lastEnded : {true, false}) {
            QByteArray bytes;
            for (int number = 1; number <= 5; ++number) {
                bytes += "name" + QByteArray::number(number) + ",x" + (number < 5 || lastEnded ? end : "");
            }
            const ImportFile file = Counted(bytes);
            ASSERT_EQ(5, file.RecordCount());
            for (int number = 1; number <= 5; ++number) {
                EXPECT_EQ(Text("name") + QString::number(number), FirstField(file, number));
            }
        }
    }
}

TEST_F(ImportFileTest, ReadsMixedLineEndsAndEmptyLines) {
    const ImportFile file = Counted("\r\na\rb\n\r\r\nc\n\nlast");
    const char* const expected[] = {"", "a", "b", "", "", "c", "", "last"};
    ASSERT_EQ(8, file.RecordCount());
    for (int number = 1; number <= 8; ++number) {
        EXPECT_EQ(Text(expected[number - 1]), FirstField(file, number)) << number;
    }
}

TEST_F(ImportFileTest, FindsAnyRecordOfALongFileWithoutReadingItAgain) {
    QByteArray bytes;
    const char* const ends[] = {"\r\n", "\n", "\r"};
    for (int number = 1; number <= 200000; ++number) {
        bytes += QByteArray::number(number) + ",Smith,John" + ends[number % 3];
    }
    const ImportFile file = Counted(bytes);
    ASSERT_EQ(200000, file.RecordCount());
    for (int number = 1; number <= 200000; number += number < 199000 ? 997 : 1) {
        ASSERT_EQ(QString::number(number), FirstField(file, number));
    }
    calls.BytesRead = 0;
    EXPECT_EQ(Text("200000"), FirstField(file, 200000));
    EXPECT_LT(calls.BytesRead, 600000);
}

TEST_F(ImportFileTest, ReadsTheFirstRecordBeforeCounting) {
    folder.Write(path, "a,b\r\nc,d");
    EXPECT_EQ(QStringList({Text("a"), Text("b")}), ImportFile(path).ReaderOfFirst()().Record.Fields);
    folder.Write(path, "\r\nc,d");
    const ImportFile::RecordReading empty = ImportFile(path).ReaderOfFirst()();
    EXPECT_EQ(Outcome::Done, empty.Came.What);
    EXPECT_EQ(QStringList({QString()}), empty.Record.Fields);
}

TEST_F(ImportFileTest, KeepsLittleOfALineOf50Megabytes) {
    QByteArray line(50'000'000, 'x');
    line[20'000'000] = '\t';
    const ImportFile file = Counted("first,1\r\n" + line + "\r\nlast");
    ASSERT_EQ(3, file.RecordCount());
    const ImportFile::RecordReading reading = file.ReaderOf(2)();
    ASSERT_EQ(Outcome::Done, reading.Came.What);
    EXPECT_EQ('\t', reading.Record.Separator);
    EXPECT_EQ(QStringList({QString(ShownCharacters, QChar(u'x')), QString(ShownCharacters, QChar(u'x'))}),
              reading.Record.Fields);
    EXPECT_EQ(Text("last"), FirstField(file, 3));
}

TEST_F(ImportFileTest, AgreesWithRecordsSplitInMemory) {
    const QByteArray quoted = "\"" + QByteArray(100000, 'q') + ",\t" + QByteArray(70000, ' ') + "\",b";
    const QByteArray blanks = QByteArray(150000, ' ') + "a , b" + QByteArray(150000, ' ');
    const ImportFile file = Counted(quoted + "\n" + blanks + "\n");
    const QByteArray lines[] = {quoted, blanks};
    for (int number = 1; number <= 2; ++number) {
        const ImportFile::RecordReading reading = file.ReaderOf(number)();
        ASSERT_EQ(Outcome::Done, reading.Came.What);
        EXPECT_EQ(SplitImportRecord(lines[number - 1]).Fields, reading.Record.Fields);
    }
}

TEST_F(ImportFileTest, ReportsWhatCannotBeRead) {
    folder.MakeFolder(Text("c:\\school\\folder"));
    folder.Write(Text("c:\\school\\empty"), "");
    folder.Write(Text("c:\\school\\locked"), "a");
    std::filesystem::permissions(folder.Native(Text("c:\\school\\locked")), std::filesystem::perms::none);
    const struct {
        const char* path;
        int number;
    } cases[] = {{"c:\\school\\none.txt", 53}, {"c:\\none\\students.txt", 76}, {"c:\\school\\folder", 75},
                 {"c:\\school\\empty", 62},    {"x:\\students.txt", 68},       {"", 52}};
    for (const auto& row : cases) {
        EXPECT_EQ(row.number, ImportFile(Text(row.path)).ReaderOfFirst()().Came.Error.Number) << row.path;
        if (row.number != 62) {
            ImportFile file(Text(row.path));
            const ImportFile::Result result = file.Count({});
            EXPECT_EQ(Outcome::Failed, result.What) << row.path;
            EXPECT_EQ(row.number, result.Error.Number) << row.path;
        }
    }
    std::ifstream readable(folder.Native(Text("c:\\school\\locked")));
    if (!readable.good()) { // the administrator of the machine may read everything
        EXPECT_EQ(70, ImportFile(Text("c:\\school\\locked")).ReaderOfFirst()().Came.Error.Number);
    }
}

TEST_F(ImportFileTest, CountsNoRecordInAnEmptyFile) {
    EXPECT_EQ(0, Counted("").RecordCount());
}

TEST_F(ImportFileTest, NoticesThatSomebodyWroteToTheFile) {
    const char* const contents[] = {"a\n", "a\nb\nc\nd\n", "", "x\ny\nz\n"};
    for (const char* changed : contents) {
        const ImportFile file = Counted("a\nb\nc\n");
        folder.Write(path, changed);
        const auto later = std::filesystem::last_write_time(folder.Native(path)) + std::chrono::seconds(2);
        std::filesystem::last_write_time(folder.Native(path), later);
        const ImportFile::RecordReading reading = file.ReaderOf(3)();
        EXPECT_EQ(Outcome::Changed, reading.Came.What) << changed;
        EXPECT_EQ(QStringList(), reading.Record.Fields);
    }
}

TEST_F(ImportFileTest, ReportsAVanishedFile) {
    const ImportFile file = Counted("a\nb\n");
    folder.Remove(path);
    const ImportFile::Result result = file.ReaderOf(2)().Came;
    EXPECT_EQ(Outcome::Failed, result.What);
    EXPECT_EQ(53, result.Error.Number);
}

TEST_F(ImportFileTest, ReportsADeviceThatFails) {
    const ImportFile file = Counted("a\nb\n");
    calls.ReadFailure = EIO;
    const ImportFile::Result result = file.ReaderOf(2)().Came;
    EXPECT_EQ(Outcome::Failed, result.What);
    EXPECT_EQ(57, result.Error.Number);
}

TEST_F(ImportFileTest, NoticesThatTheFileIsCutWhileItIsRead) {
    const ImportFile file = Counted("a\nb\n");
    calls.LongestRead = 0; // nothing is left where the record was
    EXPECT_EQ(Outcome::Changed, file.ReaderOf(2)().Came.What);
}

TEST_F(ImportFileTest, IsWholeWhenItIsStoppedBehindItsLastByte) {
    constexpr int APiece = 128 * 1024;
    folder.Write(path, QByteArray("0123456\n").repeated(APiece / 8));
    calls.StallAfter(1); // the end itself does not come
    ImportFile file(path);
    const auto whenAllIsRead = [](std::int64_t read, std::int64_t size) { return size == 0 || read < size; };
    EXPECT_EQ(Outcome::Done, file.Count(whenAllIsRead).What);
    calls.Recover();
    EXPECT_EQ(APiece / 8, file.RecordCount());
    EXPECT_EQ(Text("0123456"), FirstField(file, file.RecordCount()));
}

TEST_F(ImportFileTest, KeepsWhatWasCountedBeforeAFailure) {
    folder.Write(path, QByteArray("0123456\n").repeated(100000));
    calls.LongestRead = std::int64_t{64} * 1024;
    calls.ReadFailure = EIO;
    calls.ReadsBeforeFailure = 5;
    ImportFile file(path);
    const ImportFile::Result result = file.Count({});
    EXPECT_EQ(Outcome::Failed, result.What);
    EXPECT_EQ(57, result.Error.Number);
    EXPECT_EQ(5 * 64 * 1024 / 8, file.RecordCount());
    calls.ReadFailure = 0;
    EXPECT_EQ(Text("0123456"), FirstField(file, file.RecordCount()));
}

TEST_F(ImportFileTest, GoesOnAfterShortAndInterruptedReads) {
    calls.LongestRead = 1000;
    calls.Interruptions = 3;
    const ImportFile file = Counted(QByteArray("0123456\n").repeated(50000));
    EXPECT_EQ(50000, file.RecordCount());
    EXPECT_EQ(Text("0123456"), FirstField(file, 50000));
}

// A callback that paints a bar would else take longer than the reading.
TEST_F(ImportFileTest, AsksNoOftenerThanAnEyeSees) {
    folder.Write(path, QByteArray("0123456\n").repeated(1'000'000)); // over sixty pieces
    ImportFile file(path);
    constexpr qint64 milliseconds = 40;
    qint64 asked = 0;
    QElapsedTimer clock;
    clock.start();
    const ImportFile::Result result = file.Count([&](std::int64_t /*read*/, std::int64_t /*size*/) {
        ++asked;
        return true;
    });
    EXPECT_EQ(Outcome::Done, result.What);
    EXPECT_LE(asked, clock.elapsed() / milliseconds + 1);
}

TEST_F(ImportFileTest, StopsWhenAskedTo) {
    folder.Write(path, QByteArray("0123456\n").repeated(500000));
    ImportFile file(path);
    std::int64_t seen = 0;
    const ImportFile::Result result = file.Count([&](std::int64_t read, std::int64_t size) {
        EXPECT_EQ(4000000, size);
        seen = read;
        return false;
    });
    EXPECT_EQ(Outcome::Stopped, result.What);
    EXPECT_EQ(seen / 8, file.RecordCount());
    EXPECT_GT(file.RecordCount(), 0);
    EXPECT_LT(file.RecordCount(), 500000);
    EXPECT_EQ(Text("0123456"), FirstField(file, file.RecordCount()));
}

TEST_F(ImportFileTest, TellsWhenTheFileLooksLikeUtf8) {
    EXPECT_FALSE(Counted("Smith,John\n").LooksLikeUtf8());
    EXPECT_FALSE(Counted("Andr\xE9,x\n").LooksLikeUtf8());
    EXPECT_TRUE(Counted("Smith\nAndr\xC3\xA9,x\n").LooksLikeUtf8());
    EXPECT_TRUE(Counted("\xEF\xBB\xBFSmith\n").LooksLikeUtf8());
}

} // namespace
