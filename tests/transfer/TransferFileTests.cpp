#include "tests/support/TestFolder.h"
#include "transfer/TransferFile.h"

#include <gtest/gtest.h>

namespace {

const QString Title = QStringLiteral("[Gradewell 2016 Config - 2016 CY - Copyright (c) 2016]");
const QString Version = QStringLiteral("2016 CY");

struct GoldenCase {
    const char* File;
    TransferSettings Settings;
    const char* SystemName;
};

const GoldenCase Goldens[] = {
    {"transfer/secondary.cfg", {1, QString::fromUtf8("c:\\reports\\été 2016"), 3, 1}, "Trillium: Secondary - Catholic"},
    {"transfer/windsor.cfg", {0, QString(), 2, 10}, "Windsor-Harts"},
    {"transfer/elementary.cfg", {0, QStringLiteral("c:\\marks, reports"), 1, 1}, "Trillium: Elementary - Catholic"},
};

// A file of the layout with `change` in the given line (from 1).
QByteArray FileWithLine(int line, const QByteArray& text) {
    QList<QByteArray> lines = HandWritten("transfer/secondary.cfg").split('\n');
    lines[line - 1] = text + '\r';
    return lines.join('\n');
}

TransferSettings Held() {
    return {0, QStringLiteral("held"), 2, 22};
}

TEST(TransferFile, WritesTheGoldenBytes) {
    for (const GoldenCase& row : Goldens) {
        EXPECT_EQ(WriteTransferText(row.Settings, Title, Version, QString::fromUtf8(row.SystemName)).toStdString(),
                  HandWritten(row.File).toStdString())
            << row.File;
    }
    EXPECT_EQ(WriteTransferText({1, {}, -1, 0}, Title, Version, QStringLiteral(": ")).toStdString(),
              HandWritten("transfer/nosystem.cfg").toStdString());
}

TEST(TransferFile, ReadsTheGoldenValues) {
    for (const GoldenCase& row : Goldens) {
        TransferSettings settings = Held();
        EXPECT_FALSE(ReadTransferText(HandWritten(row.File), settings)) << row.File;
        EXPECT_EQ(settings, row.Settings) << row.File;
    }
}

TEST(TransferFile, LockIsOnOnlyForOne) {
    for (const std::int16_t lock : {std::int16_t(0), std::int16_t(2), std::int16_t(-1)}) {
        EXPECT_TRUE(
            WriteTransferText({lock, {}, 0, 1}, Title, Version, {}).contains("\r\nProgram Config Lock=OFF\r\n"));
    }
}

TEST(TransferFile, LockField) {
    struct {
        const char* Field;
        std::int16_t Lock;
    } const cases[] = {{"Program Config Lock=ON", 1},
                       {"Program Config Lock=on", 1},
                       {"Program Config Lock=oN", 1},
                       {"\"Program Config Lock=ON\"", 1},
                       {"Program Config Lock=OFF", 0},
                       {"Program Config Lock=ON ", 0},
                       {"ON", 1},
                       {"NO", 0},
                       {"xx", 0},
                       {"N", 1},
                       {"0", 1},
                       {"", 1}};
    for (const auto& row : cases) {
        TransferSettings settings = Held();
        EXPECT_FALSE(ReadTransferText(FileWithLine(3, row.Field), settings)) << row.Field;
        EXPECT_EQ(settings.TransferLock, row.Lock) << row.Field;
        EXPECT_EQ(settings.BoardType, 3) << row.Field;
    }
}

TEST(TransferFile, ReportFolderSectionIsFoundByItsTitle) {
    struct {
        const char* SectionTitle;
        const char* Path;
    } const cases[] = {{"[Path to Report Folder (may be blank)]", "c:\\reports\\été 2016"},
                       {"[path to report folder]", "c:\\reports\\été 2016"},
                       {"REPORT", "c:\\reports\\été 2016"},
                       {"[Path to Repo]", ""},
                       {"", ""},
                       {"\"\"", ""}};
    for (const auto& row : cases) {
        TransferSettings settings = Held();
        EXPECT_FALSE(ReadTransferText(FileWithLine(4, row.SectionTitle), settings)) << row.SectionTitle;
        EXPECT_EQ(settings.ReportPath.toStdString(), row.Path) << row.SectionTitle;
        EXPECT_EQ(settings.BoardType, 3) << row.SectionTitle;
        EXPECT_EQ(settings.SystemNumber, 1) << row.SectionTitle;
    }
}

TEST(TransferFile, OlderLayout) {
    TransferSettings settings = Held();
    EXPECT_FALSE(ReadTransferText(HandWritten("transfer/older.cfg"), settings));
    EXPECT_EQ(settings, (TransferSettings{0, QString(), 2, 16}));
}

struct FileNumberCase {
    const char* Field;
    int Value;       // what the file gives, when it can be read
    int ErrorNumber; // else
};

TEST(TransferFile, BoardType) {
    const FileNumberCase cases[] = {
        {"0", 0, 0},     {"1", 1, 0},           {"2", 2, 0},   {"3", 3, 0},     {"4", 0, 0},    {"7", 0, 0},
        {"-1", -1, 0},   {"-32768", -32768, 0}, {" 2 ", 2, 0}, {"\"2\"", 2, 0}, {"+1", 1, 0},   {"32767", 0, 0},
        {"32768", 2, 6}, {"two", 2, 13},        {"", 2, 13},   {"1.0", 2, 13},  {"\"\"", 2, 13}};
    for (const FileNumberCase& row : cases) {
        TransferSettings settings = Held();
        const ItemError error = ReadTransferText(FileWithLine(8, row.Field), settings);
        EXPECT_EQ(error.Error.Number, row.ErrorNumber) << row.Field;
        EXPECT_EQ(error.Line, row.ErrorNumber == 0 ? 0 : 8) << row.Field;
        EXPECT_EQ(settings.BoardType, row.Value) << row.Field;
        EXPECT_EQ(settings.SystemNumber, row.ErrorNumber == 0 ? 1 : 22) << row.Field;
    }
}

TEST(TransferFile, SystemNumber) {
    const FileNumberCase cases[] = {{"1", 1, 0},      {"22", 22, 0},   {"10", 10, 0}, {"2", 2, 0},
                                    {"0", 1, 0},      {"23", 1, 0},    {"-5", 1, 0},  {"32767", 1, 0},
                                    {"32768", 22, 6}, {"ten", 22, 13}, {"", 22, 13}};
    for (const FileNumberCase& row : cases) {
        TransferSettings settings = Held();
        const ItemError error = ReadTransferText(FileWithLine(11, row.Field), settings);
        EXPECT_EQ(error.Error.Number, row.ErrorNumber) << row.Field;
        EXPECT_EQ(settings.SystemNumber, row.Value) << row.Field;
        EXPECT_EQ(settings.TransferLock, 1) << row.Field;
        EXPECT_EQ(settings.BoardType, 3) << row.Field;
    }
}

TEST(TransferFile, EveryKindOfLineEndReadsTheSame) {
    for (const char* end : {"\n", "\r", "\r\n"}) {
        TransferSettings settings = Held();
        EXPECT_FALSE(ReadTransferText(HandWritten("transfer/secondary.cfg").replace("\r\n", end), settings));
        EXPECT_EQ(settings, Goldens[0].Settings);
    }
}

// What is known of a file that was cut after `bytes` bytes: the values whose fields are whole.
TEST(TransferFile, CutAtEveryByte) {
    const QByteArray whole = HandWritten("transfer/secondary.cfg");
    QList<qsizetype> lineStart{0};
    for (qsizetype at = whole.indexOf('\n'); at >= 0; at = whole.indexOf('\n', at + 1)) {
        lineStart.append(at + 1);
    }
    const auto startOf = [&](int line) { return lineStart[line - 1]; };
    for (qsizetype cut = 0; cut <= whole.size(); ++cut) {
        TransferSettings settings = Held();
        const ItemError error = ReadTransferText(whole.left(cut), settings);
        // The separator after the system number ends the reading; the name is never read.
        const bool complete = cut >= startOf(12) + 2;
        EXPECT_EQ(bool(error), !complete) << cut;
        EXPECT_EQ(settings.TransferLock, 1) << cut; // stored as ON, and ON after any fault
        EXPECT_EQ(settings.ReportPath == Goldens[0].Settings.ReportPath, cut >= startOf(6) - 2) << cut;
        EXPECT_EQ(settings.BoardType, cut > startOf(8) ? 3 : 2) << cut;
        EXPECT_EQ(settings.SystemNumber, cut > startOf(11) ? 1 : 22) << cut;
    }
}

TEST(TransferFile, CutAtEveryLineLocks) {
    const QByteArray whole = HandWritten("transfer/windsor.cfg");
    int line = 1;
    for (qsizetype at = 0; at < whole.size(); at = whole.indexOf('\n', at) + 1, ++line) {
        TransferSettings settings = Held();
        const ItemError error = ReadTransferText(whole.left(at), settings);
        const bool complete = line > 12;
        EXPECT_EQ(error.Error.Number, complete ? 0 : 62) << line;
        EXPECT_EQ(settings.TransferLock, complete ? 0 : 1) << line;
        EXPECT_EQ(settings.ReportPath, line > 5 ? QString() : QStringLiteral("held")) << line;
        EXPECT_EQ(settings.BoardType, 2) << line;
        EXPECT_EQ(settings.SystemNumber, line > 11 ? 10 : 22) << line;
    }
    EXPECT_EQ(line, 15);
}

TEST(TransferFile, ANeverWrittenFileIsAFault) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("\r\n"), QByteArray(3, '\0'), QByteArray("a,b,OFF")}) {
        TransferSettings settings = Held();
        EXPECT_EQ(ReadTransferText(bytes, settings).Error.Number, 62);
        EXPECT_EQ(settings, (TransferSettings{1, QStringLiteral("held"), 2, 22}));
    }
}

} // namespace
