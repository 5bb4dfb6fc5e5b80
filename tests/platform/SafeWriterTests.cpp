#include "platform/SafeWriter.h"
#include "platform/TemporaryName.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/TestFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

using Kind = FaultyCalls::Kind;

const QString SavedFile = QStringLiteral("c:\\x.cfg");

} // namespace

TEST(SafeWriter, SavesEveryByteAndEverySize) {
    TestFolder folder;
    QByteArray everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte.append(static_cast<char>(byte));
    }
    const QByteArray cases[] = {
        {}, "x", everyByte, QByteArray(65536, 'a'), QByteArray(65537, 'b'), QByteArray(300000, 'c')};
    for (const QByteArray& bytes : cases) {
        EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(SavedFile), bytes)) << bytes.size();
        EXPECT_EQ(folder.Read(SavedFile), bytes);
        EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("x.cfg")});
    }
}

TEST(SafeWriter, ReportsWhatStandsInTheWay) {
    TestFolder folder;
    folder.Write(QStringLiteral("c:\\file"), "a file");
    folder.MakeFolder(QStringLiteral("c:\\folder"));
    const struct {
        QString Path;
        int Number;
    } cases[] = {
        {QStringLiteral("c:\\missing\\x.cfg"), 76},        {QStringLiteral("c:\\missing\\deeper\\x.cfg"), 76},
        {QStringLiteral("c:\\file\\x.cfg"), 76},           {QStringLiteral("c:\\folder"), 75},
        {QStringLiteral("c:\\") + QString(300, u'n'), 52},
    };
    const QStringList before = folder.Names(QStringLiteral("c:\\"));
    for (const auto& row : cases) {
        EXPECT_EQ(SafeSave(RealSystemCalls(), folder.Native(row.Path), "new").Number, row.Number)
            << row.Path.toStdString();
    }
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), before);
}

TEST(SafeWriter, SavesANameInTheWorkingFolder) {
    TestFolder folder;
    const NativePath before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Native(QStringLiteral("c:\\")));
    EXPECT_FALSE(SafeSave(RealSystemCalls(), "x.cfg", "new"));
    EXPECT_FALSE(SafeSave(RealSystemCalls(), "x.cfg", "newer"));
    std::filesystem::current_path(before);
    EXPECT_EQ(folder.Read(SavedFile), "newer");
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("x.cfg")});
}

TEST(SafeWriter, SavesANameThatIsNearlyTooLong) {
    TestFolder folder;
    const QString path = QStringLiteral("c:\\") + QString(250, u'n');
    EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(path), "new"));
    EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(path), "newer"));
    EXPECT_EQ(folder.Read(path), "newer");
}

TEST(SafeWriter, RemovesTheTemporaryFilesOfDeadRunsOfThisTargetOnly) {
    TestFolder folder;
    folder.Write(SavedFile, "old");
    FaultyCalls calls;
    calls.Number = 50;
    calls.AliveRuns = [](std::int64_t number) { return number == 60; };
    const QStringList kept = {QStringLiteral(".x.cfg.60.tmp"),  QStringLiteral(".x.cfg.tmp"),
                              QStringLiteral(".x.cfg.7a.tmp"),  QStringLiteral(".y.cfg.70.tmp"),
                              QStringLiteral("x.cfg.70.tmp"),   QStringLiteral(".x.cfg.-70.tmp"),
                              QStringLiteral(".x.cfg.070.tmp"), QStringLiteral(".x.cfg.70.tmp.bak")};
    const QStringList removed = {QStringLiteral(".x.cfg.50.tmp"), QStringLiteral(".x.cfg.70.tmp"),
                                 QStringLiteral(".x.cfg.9876543210.tmp")};
    for (const QString& name : kept + removed) {
        folder.Write(QStringLiteral("c:\\") + name, "left behind");
    }
    EXPECT_FALSE(SafeSave(calls, folder.Native(SavedFile), "new"));
    QStringList expected = kept + QStringList{QStringLiteral("x.cfg")};
    expected.sort();
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), expected);
}

TEST(SafeWriter, AnUnreadableFolderStillLosesThisRunsOwnTemporaryFile) {
    TestFolder folder;
    folder.Write(QStringLiteral("c:\\.x.cfg.50.tmp"), "left behind");
    FaultyCalls calls;
    calls.Number = 50;
    calls.FailAll(Kind::ListNames, EACCES);
    EXPECT_FALSE(SafeSave(calls, folder.Native(SavedFile), "new"));
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("x.cfg")});
}

TEST(SafeWriter, SyncsTheFileBeforeTheMoveAndTheFolderAfterIt) {
    TestFolder folder;
    folder.Write(SavedFile, "old");
    FaultyCalls calls;
    EXPECT_FALSE(SafeSave(calls, folder.Native(SavedFile), "new"));
    std::vector<Kind> order;
    for (const Kind kind : calls.Made) {
        if (kind == Kind::Write || kind == Kind::SetMode || kind == Kind::Sync || kind == Kind::Replace ||
            kind == Kind::SyncFolder) {
            order.push_back(kind);
        }
    }
    EXPECT_EQ(order, (std::vector<Kind>{Kind::Write, Kind::SetMode, Kind::Sync, Kind::Replace, Kind::SyncFolder}));
}

TEST(TemporaryName, StandsBesideItsTargetAndTellsItsRun) {
    const NativePath target("/srv/marks/GW_v12_PRG.CFG");
    EXPECT_EQ(TemporaryName(target, 12), NativePath("/srv/marks/.GW_v12_PRG.CFG.12.tmp"));
    EXPECT_EQ(ProcessOfTemporaryName(target, ".GW_v12_PRG.CFG.12.tmp"), 12);
    EXPECT_EQ(ProcessOfTemporaryName(target, ".GW_v12_PRG.CFG.0.tmp"), 0);
    EXPECT_EQ(ProcessOfTemporaryName(target, ".GW_v12_PRG.CFG..tmp"), std::nullopt);
    EXPECT_EQ(ProcessOfTemporaryName(target, ".GW_v12_PRG.CFG.99999999999999999999.tmp"), std::nullopt);
    EXPECT_EQ(ProcessOfTemporaryName(target, "GW_v12_PRG.CFG"), std::nullopt);
    const NativePath longName(std::string(250, 'n'));
    EXPECT_LT(TemporaryName(longName, 12).native().size(), 100U);
    EXPECT_EQ(ProcessOfTemporaryName(longName, TemporaryName(longName, 12).filename()), 12);
    EXPECT_EQ(ProcessOfTemporaryName(std::string(251, 'n'), TemporaryName(longName, 12).filename()), std::nullopt);
}
