#include "platform/SafeWriter.h"
#include "platform/TemporaryName.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/TestFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Kind = FaultyCalls::Kind;

const QString Target = QStringLiteral("c:\\x.cfg");

struct stat StatusOf(const NativePath& path) {
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status;
}

unsigned ModeOf(const NativePath& path) {
    return StatusOf(path).st_mode & 07777U;
}

// Another user's rights for a part of a test that an administrator runs.
class AsUser {
public:
    explicit AsUser(unsigned user) : administrator(geteuid() == 0) {
        if (administrator) {
            EXPECT_EQ(setegid(user), 0);
            EXPECT_EQ(seteuid(user), 0);
        }
    }
    ~AsUser() {
        if (administrator) {
            EXPECT_EQ(seteuid(0), 0);
            EXPECT_EQ(setegid(0), 0);
        }
    }

private:
    bool administrator;
};

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
        EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(Target), bytes)) << bytes.size();
        EXPECT_EQ(folder.Read(Target), bytes);
        EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("x.cfg")});
    }
}

TEST(SafeWriter, ReportsWhatStandsInTheWay) {
    TestFolder folder;
    folder.Write(QStringLiteral("c:\\file"), "a file");
    folder.MakeFolder(QStringLiteral("c:\\folder"));
    ASSERT_EQ(mkfifo(folder.Native(QStringLiteral("c:\\pipe")).c_str(), 0600), 0);
    std::filesystem::create_symlink("round", folder.Native(QStringLiteral("c:\\circle")));
    std::filesystem::create_symlink("circle", folder.Native(QStringLiteral("c:\\round")));
    std::filesystem::create_symlink("self", folder.Native(QStringLiteral("c:\\self")));
    std::filesystem::create_symlink("gone/x", folder.Native(QStringLiteral("c:\\dangling")));
    std::filesystem::create_symlink("folder", folder.Native(QStringLiteral("c:\\tofolder")));
    const struct {
        QString Path;
        int Number;
    } cases[] = {
        {QStringLiteral("c:\\missing\\x.cfg"), 76}, {QStringLiteral("c:\\missing\\deeper\\x.cfg"), 76},
        {QStringLiteral("c:\\file\\x.cfg"), 76},    {QStringLiteral("c:\\folder"), 75},
        {QStringLiteral("c:\\tofolder"), 75},       {QStringLiteral("c:\\pipe"), 75},
        {QStringLiteral("c:\\circle"), 52},         {QStringLiteral("c:\\self"), 52},
        {QStringLiteral("c:\\dangling"), 76},       {QStringLiteral("c:\\") + QString(300, u'n'), 52},
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
    EXPECT_EQ(folder.Read(Target), "newer");
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("x.cfg")});
}

TEST(SafeWriter, SavesANameThatIsNearlyTooLong) {
    TestFolder folder;
    const QString path = QStringLiteral("c:\\") + QString(250, u'n');
    EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(path), "new"));
    EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(path), "newer"));
    EXPECT_EQ(folder.Read(path), "newer");
}

TEST(SafeWriter, KeepsSymbolicLinksAndWritesWhatTheyName) {
    TestFolder folder;
    folder.MakeFolder(QStringLiteral("c:\\real"));
    folder.Write(QStringLiteral("c:\\real\\x.cfg"), "old");
    const NativePath first = folder.Native(QStringLiteral("c:\\first"));
    const NativePath second = folder.Native(QStringLiteral("c:\\second"));
    std::filesystem::create_symlink(folder.Native(QStringLiteral("c:\\real\\x.cfg")), second);
    std::filesystem::create_symlink("second", first);
    EXPECT_FALSE(SafeSave(RealSystemCalls(), first, "new"));
    EXPECT_TRUE(std::filesystem::is_symlink(first));
    EXPECT_TRUE(std::filesystem::is_symlink(second));
    EXPECT_EQ(folder.Read(QStringLiteral("c:\\real\\x.cfg")), "new");
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\real")), QStringList{QStringLiteral("x.cfg")});
}

TEST(SafeWriter, ANewFileIsReadableAsTheUsersMaskSays) {
    TestFolder folder;
    for (const unsigned mask : {0U, 022U, 027U, 077U}) {
        const mode_t before = umask(mask);
        EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(Target), "new"));
        umask(before);
        EXPECT_EQ(ModeOf(folder.Native(Target)), 0666U & ~mask);
        folder.Remove(Target);
    }
}

TEST(SafeWriter, KeepsTheModeOfTheOldFile) {
    TestFolder folder;
    const mode_t before = umask(077);
    for (const unsigned mode : {0600U, 0640U, 0644U, 0660U, 0664U, 0666U, 0755U}) {
        folder.Write(Target, "old");
        ASSERT_EQ(chmod(folder.Native(Target).c_str(), mode), 0);
        EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(Target), "new"));
        EXPECT_EQ(ModeOf(folder.Native(Target)), mode);
    }
    umask(before);
}

TEST(SafeWriter, AFileWithoutWritePermissionIsNotReplaced) {
    TestFolder folder;
    for (const unsigned mode : {0444U, 0400U, 0555U}) {
        folder.Write(Target, "old");
        ASSERT_EQ(chmod(folder.Native(Target).c_str(), mode), 0);
        EXPECT_EQ(SafeSave(RealSystemCalls(), folder.Native(Target), "new").Number, 70) << mode;
        EXPECT_EQ(folder.Read(Target), "old");
        EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("x.cfg")});
        folder.Remove(Target);
    }
}

TEST(SafeWriter, KeepsOwnerAndGroupOrElseEverybodysRightToRead) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only an administrator can give files away";
    }
    const struct {
        unsigned Mode;
        bool Allowed;
        unsigned Expected;
    } cases[] = {
        {0640, true, 0640},  {0600, true, 0600},  {0640, false, 0644}, {0660, false, 0664},
        {0600, false, 0604}, {0644, false, 0644}, {0260, false, 0264}, {0755, false, 0755},
    };
    for (const auto& row : cases) {
        TestFolder folder;
        folder.Write(Target, "old");
        const NativePath path = folder.Native(Target);
        ASSERT_EQ(chown(path.c_str(), 1234, 2345), 0);
        ASSERT_EQ(chmod(path.c_str(), row.Mode), 0);
        FaultyCalls calls;
        if (!row.Allowed) {
            calls.FailAll(Kind::SetOwner, EPERM);
        }
        EXPECT_FALSE(SafeSave(calls, path, "new"));
        EXPECT_EQ(ModeOf(path), row.Expected) << std::oct << row.Mode;
        EXPECT_EQ(StatusOf(path).st_uid, row.Allowed ? 1234U : 0U);
        EXPECT_EQ(StatusOf(path).st_gid, row.Allowed ? 2345U : 0U);
    }
}

TEST(SafeWriter, KeepsTheGroupAloneWhereTheOwnerMayNotBeKept) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only an administrator can give files away";
    }
    TestFolder folder;
    folder.Write(Target, "old");
    const NativePath path = folder.Native(Target);
    ASSERT_EQ(chown(path.c_str(), 1234, 2345), 0);
    ASSERT_EQ(chmod(path.c_str(), 0660), 0);
    FaultyCalls calls;
    calls.FailFirst(Kind::SetOwner, EPERM, 1);
    EXPECT_FALSE(SafeSave(calls, path, "new"));
    EXPECT_EQ(StatusOf(path).st_uid, 0U);
    EXPECT_EQ(StatusOf(path).st_gid, 2345U);
    EXPECT_EQ(ModeOf(path), 0664U) << "the old owner need not be of the group";
}

TEST(SafeWriter, ModesThatCannotBeSetFailOnlyWhereSomebodyCouldReadNoMore) {
    const struct {
        unsigned Mode;
        int Number;
    } cases[] = {{0600, 0}, {0644, 70}, {0640, 70}, {0200, 0}};
    for (const auto& row : cases) {
        TestFolder folder;
        folder.Write(Target, "old");
        ASSERT_EQ(chmod(folder.Native(Target).c_str(), row.Mode), 0);
        FaultyCalls calls;
        calls.FailAll(Kind::SetMode, EPERM);
        EXPECT_EQ(SafeSave(calls, folder.Native(Target), "new").Number, row.Number) << std::oct << row.Mode;
        EXPECT_EQ(folder.Read(Target), row.Number == 0 ? "new" : "old");
    }
}

TEST(SafeWriter, WritesInPlaceInAFolderThatTakesNoNewFile) {
    TestFolder folder;
    const NativePath root = folder.Native(QStringLiteral("c:\\"));
    folder.Write(Target, "the old bytes");
    folder.Write(QStringLiteral("c:\\readonly.cfg"), "the old bytes");
    ASSERT_EQ(chmod(folder.Native(Target).c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.Native(QStringLiteral("c:\\readonly.cfg")).c_str(), 0644), 0);
    const auto node = StatusOf(folder.Native(Target)).st_ino;
    if (geteuid() != 0) {
        ASSERT_EQ(chmod(folder.Native(QStringLiteral("c:\\readonly.cfg")).c_str(), 0444), 0);
    }
    ASSERT_EQ(chmod(root.c_str(), 0555), 0);
    {
        const AsUser user(65534);
        for (const QByteArray bytes : {"longer than the old bytes were", "short", ""}) {
            EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(Target), bytes));
            EXPECT_EQ(folder.Read(Target), bytes);
        }
        EXPECT_EQ(SafeSave(RealSystemCalls(), folder.Native(QStringLiteral("c:\\readonly.cfg")), "new").Number, 70);
        EXPECT_EQ(SafeSave(RealSystemCalls(), folder.Native(QStringLiteral("c:\\new.cfg")), "new").Number, 70);
    }
    ASSERT_EQ(chmod(root.c_str(), 0755), 0);
    EXPECT_EQ(StatusOf(folder.Native(Target)).st_ino, node);
    EXPECT_EQ(folder.Read(QStringLiteral("c:\\readonly.cfg")), "the old bytes");
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")).size(), 2);
}

TEST(SafeWriter, WritesInPlaceInASharedFolderThatKeepsFilesToTheirOwners) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs a second user";
    }
    TestFolder folder;
    const NativePath root = folder.Native(QStringLiteral("c:\\"));
    folder.Write(Target, "old");
    ASSERT_EQ(chmod(folder.Native(Target).c_str(), 0646), 0);
    ASSERT_EQ(chmod(root.c_str(), 01777), 0);
    {
        const AsUser user(65534);
        EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(Target), "new"));
    }
    EXPECT_EQ(folder.Read(Target), "new");
    EXPECT_EQ(StatusOf(folder.Native(Target)).st_uid, 0U);
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("x.cfg")});
}

TEST(SafeWriter, RemovesTheTemporaryFilesOfDeadRunsOfThisTargetOnly) {
    TestFolder folder;
    folder.Write(Target, "old");
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
    EXPECT_FALSE(SafeSave(calls, folder.Native(Target), "new"));
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
    EXPECT_FALSE(SafeSave(calls, folder.Native(Target), "new"));
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("x.cfg")});
}

TEST(SafeWriter, NobodyElseCanReadTheTemporaryFileOfAProtectedOne) {
    TestFolder folder;
    folder.Write(Target, "old");
    ASSERT_EQ(chmod(folder.Native(Target).c_str(), 0600), 0);
    FaultyCalls calls;
    calls.Number = 50;
    int looks = 0;
    calls.Before = [&](Kind kind) {
        const QString temporary = QStringLiteral("c:\\.x.cfg.50.tmp");
        if (kind == Kind::Write || kind == Kind::SetMode || kind == Kind::Replace) {
            EXPECT_EQ(ModeOf(folder.Native(temporary)) & 0077U, 0U);
            ++looks;
        }
    };
    EXPECT_FALSE(SafeSave(calls, folder.Native(Target), "new"));
    EXPECT_GE(looks, 3);
}

TEST(SafeWriter, SyncsTheFileBeforeTheMoveAndTheFolderAfterIt) {
    TestFolder folder;
    folder.Write(Target, "old");
    FaultyCalls calls;
    EXPECT_FALSE(SafeSave(calls, folder.Native(Target), "new"));
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
    EXPECT_EQ(ProcessOfTemporaryName(target, ".GW_v12_PRG.CFG..tmp"), std::nullopt);
    EXPECT_EQ(ProcessOfTemporaryName(target, ".GW_v12_PRG.CFG.99999999999999999999.tmp"), std::nullopt);
    EXPECT_EQ(ProcessOfTemporaryName(target, "GW_v12_PRG.CFG"), std::nullopt);
    const NativePath longName(std::string(250, 'n'));
    EXPECT_LT(TemporaryName(longName, 12).native().size(), 100U);
    EXPECT_EQ(ProcessOfTemporaryName(longName, TemporaryName(longName, 12).filename()), 12);
    EXPECT_EQ(ProcessOfTemporaryName(std::string(251, 'n'), TemporaryName(longName, 12).filename()), std::nullopt);
}
