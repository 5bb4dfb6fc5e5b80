#include "platform/SafeWriter.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/OtherUser.h"
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

} // namespace

TEST(SafeWriterModes, ReportsLinksAndPipesThatStandInTheWay) {
    TestFolder folder;
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
        {QStringLiteral("c:\\tofolder"), 75}, {QStringLiteral("c:\\pipe"), 75},     {QStringLiteral("c:\\circle"), 52},
        {QStringLiteral("c:\\self"), 52},     {QStringLiteral("c:\\dangling"), 76},
    };
    const QStringList before = folder.Names(QStringLiteral("c:\\"));
    for (const auto& row : cases) {
        EXPECT_EQ(SafeSave(RealSystemCalls(), folder.Native(row.Path), "new").Number, row.Number)
            << row.Path.toStdString();
    }
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), before);
}

TEST(SafeWriterModes, KeepsSymbolicLinksAndWritesWhatTheyName) {
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

TEST(SafeWriterModes, ANewFileIsReadableAsTheUsersMaskSays) {
    TestFolder folder;
    for (const unsigned mask : {0U, 022U, 027U, 077U}) {
        const mode_t before = umask(mask);
        EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(Target), "new"));
        umask(before);
        EXPECT_EQ(ModeOf(folder.Native(Target)), 0666U & ~mask);
        folder.Remove(Target);
    }
}

TEST(SafeWriterModes, KeepsTheModeOfTheOldFile) {
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

TEST(SafeWriterModes, AFileWithoutWritePermissionIsNotReplaced) {
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

TEST(SafeWriterModes, KeepsOwnerAndGroupOrElseEverybodysRightToRead) {
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

TEST(SafeWriterModes, KeepsTheGroupAloneWhereTheOwnerMayNotBeKept) {
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

TEST(SafeWriterModes, ModesThatCannotBeSetFailOnlyWhereSomebodyCouldReadNoMore) {
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

TEST(SafeWriterModes, WritesInPlaceInAFolderThatTakesNoNewFile) {
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
        const OtherUser user;
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

TEST(SafeWriterModes, WritesInPlaceInASharedFolderThatKeepsFilesToTheirOwners) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs a second user";
    }
    TestFolder folder;
    const NativePath root = folder.Native(QStringLiteral("c:\\"));
    folder.Write(Target, "old");
    ASSERT_EQ(chmod(folder.Native(Target).c_str(), 0646), 0);
    ASSERT_EQ(chmod(root.c_str(), 01777), 0);
    {
        const OtherUser user;
        EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(Target), "new"));
    }
    EXPECT_EQ(folder.Read(Target), "new");
    EXPECT_EQ(StatusOf(folder.Native(Target)).st_uid, 0U);
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("x.cfg")});
}

TEST(SafeWriterModes, NobodyElseCanReadTheTemporaryFileOfAProtectedOne) {
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
