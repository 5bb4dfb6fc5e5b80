#include "platform/OpenFile.h"
#include "platform/SafeWriter.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/TestFolder.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <windows.h>

namespace {

const QString Target = QStringLiteral("c:\\x.cfg");

std::wstring NameOf(const TestFolder& folder, const QString& path) {
    return folder.Native(path).native();
}

// Who may do what with the file, as the system stores it.
std::vector<char> AccessListOf(const std::wstring& file) {
    DWORD size = 0;
    GetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<char> list(size);
    EXPECT_NE(GetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, list.data(), size, &size), 0);
    return list;
}

// Gives the file an access list of its own: everybody may read, write and delete it, nothing else.
void Protect(const std::wstring& file) {
    SID_IDENTIFIER_AUTHORITY world = SECURITY_WORLD_SID_AUTHORITY;
    PSID everybody = nullptr;
    ASSERT_NE(AllocateAndInitializeSid(&world, 1, SECURITY_WORLD_RID, 0, 0, 0, 0, 0, 0, 0, &everybody), 0);
    alignas(ACL) char memory[256] = {};
    auto* list = reinterpret_cast<ACL*>(memory);
    ASSERT_NE(InitializeAcl(list, sizeof memory, ACL_REVISION), 0);
    ASSERT_NE(AddAccessAllowedAce(list, ACL_REVISION, GENERIC_READ | GENERIC_WRITE | DELETE, everybody), 0);
    SECURITY_DESCRIPTOR descriptor = {};
    ASSERT_NE(InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION), 0);
    ASSERT_NE(SetSecurityDescriptorDacl(&descriptor, TRUE, list, FALSE), 0);
    ASSERT_NE(SetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, &descriptor), 0);
    FreeSid(everybody);
}

} // namespace

TEST(WindowsCalls, TellWhatANameStandsFor) {
    TestFolder folder;
    folder.Write(QStringLiteral("c:\\full.cfg"), "12345");
    folder.Write(QStringLiteral("c:\\readonly.cfg"), "");
    folder.MakeFolder(QStringLiteral("c:\\folder"));
    SetFileAttributesW(NameOf(folder, QStringLiteral("c:\\readonly.cfg")).c_str(), FILE_ATTRIBUTE_READONLY);
    SetFileAttributesW(NameOf(folder, QStringLiteral("c:\\folder")).c_str(), FILE_ATTRIBUTE_READONLY);
    const struct {
        const char* Path;
        int Failure;
        bool IsFolder;
        bool IsFile;
        std::int64_t Size;
        unsigned Mode;
    } cases[] = {
        {"c:\\full.cfg", 0, false, true, 5, 0666},        {"c:\\FULL.CFG", 0, false, true, 5, 0666},
        {"c:\\readonly.cfg", 0, false, true, 0, 0444},    {"c:\\folder", 0, true, false, 0, 0777},
        {"c:\\gone", ENOENT, false, false, 0, 0},         {"c:\\gone\\x", ENOTDIR, false, false, 0, 0},
        {"c:\\full.cfg\\x", ENOTDIR, false, false, 0, 0}, {"c:\\a*", EINVAL, false, false, 0, 0},
    };
    for (const auto& row : cases) {
        SystemCalls::FileStatus status;
        EXPECT_EQ(RealSystemCalls().Status(folder.Native(QString::fromLatin1(row.Path)), status), -row.Failure)
            << row.Path;
        EXPECT_EQ(status.IsFolder, row.IsFolder) << row.Path;
        EXPECT_EQ(status.IsRegularFile, row.IsFile) << row.Path;
        EXPECT_FALSE(status.IsSymbolicLink) << row.Path;
        EXPECT_EQ(row.IsFolder ? 0 : status.Size, row.Size) << row.Path;
        EXPECT_EQ(status.Mode, row.Mode) << row.Path;
    }
    SetFileAttributesW(NameOf(folder, QStringLiteral("c:\\readonly.cfg")).c_str(), FILE_ATTRIBUTE_NORMAL);
    SetFileAttributesW(NameOf(folder, QStringLiteral("c:\\folder")).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(WindowsCalls, ASaveKeepsTheAccessListTheMarksAndTheName) {
    TestFolder folder;
    folder.Write(QStringLiteral("c:\\GW_v12_PRG.CFG"), "old");
    const std::wstring file = NameOf(folder, QStringLiteral("c:\\GW_v12_PRG.CFG"));
    Protect(file);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_HIDDEN);
    const std::vector<char> before = AccessListOf(file);
    EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(QStringLiteral("c:\\gw_V12_prg.cfg")), "new"));
    EXPECT_EQ(folder.Read(QStringLiteral("c:\\GW_v12_PRG.CFG")), "new");
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("GW_v12_PRG.CFG")});
    EXPECT_EQ(AccessListOf(file), before);
    EXPECT_NE(GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST(WindowsCalls, AReadOnlyFileIsNeitherReplacedNorRemoved) {
    TestFolder folder;
    folder.Write(Target, "old");
    const std::wstring file = NameOf(folder, Target);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(SafeSave(RealSystemCalls(), folder.Native(Target), "new").Number, 70);
    EXPECT_EQ(ErrorFromErrno(-RealSystemCalls().Remove(folder.Native(Target))).Number, 70);
    EXPECT_EQ(folder.Read(Target), "old");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(WindowsCalls, ReplaceTellsTheErrorOfTheSystem) {
    TestFolder folder;
    folder.Write(QStringLiteral("c:\\new"), "new");
    folder.MakeFolder(QStringLiteral("c:\\folder"));
    SystemCalls& calls = RealSystemCalls();
    const NativePath source = folder.Native(QStringLiteral("c:\\new"));
    EXPECT_EQ(calls.Replace(source, folder.Native(QStringLiteral("c:\\folder"))), -EISDIR);
    EXPECT_EQ(calls.Replace(source, folder.Native(QStringLiteral("c:\\gone\\x"))), -ENOTDIR);
    EXPECT_EQ(calls.Replace(folder.Native(QStringLiteral("c:\\gone")), folder.Native(Target)), -ENOENT);
    EXPECT_EQ(calls.Replace(source, folder.Native(Target)), 0);
    EXPECT_EQ(folder.Read(Target), "new");
}

TEST(WindowsCalls, ReadWriteSeekAndTruncate) {
    TestFolder folder;
    SystemCalls& calls = RealSystemCalls();
    const int made = calls.CreateExclusive(folder.Native(Target), 0600);
    ASSERT_GE(made, 0);
    EXPECT_EQ(calls.CreateExclusive(folder.Native(Target), 0600), -EEXIST);
    EXPECT_EQ(calls.Write(made, "0123456789", 10), 10);
    EXPECT_EQ(calls.Seek(made, 3), 3);
    EXPECT_EQ(calls.Write(made, "abc", 3), 3);
    EXPECT_EQ(calls.Truncate(made, 8), 0);
    EXPECT_EQ(calls.Sync(made), 0);
    EXPECT_EQ(calls.Close(made), 0);
    EXPECT_LT(calls.Close(made), 0);
    QByteArray bytes;
    EXPECT_EQ(ReadFile(calls, folder.Native(Target), bytes), 0);
    EXPECT_EQ(bytes, "012abc67");
    EXPECT_EQ(calls.OpenForReading(folder.Native(QStringLiteral("c:\\gone"))), -ENOENT);
    EXPECT_EQ(calls.OpenForWriting(folder.Native(QStringLiteral("c:\\gone\\x"))), -ENOTDIR);
}

TEST(WindowsCalls, SaveBelowAFolderOfAnyDepth) {
    TestFolder folder;
    QString deep = QStringLiteral("c:");
    for (int level = 0; level < 8; ++level) {
        deep += QLatin1Char('\\') + QString(50, u'n');
        ASSERT_NE(
            CreateDirectoryW((L"\\\\?\\" + NativePath(folder.Native(deep)).make_preferred().native()).c_str(), nullptr),
            0);
    }
    const NativePath file = folder.Native(deep + QStringLiteral("\\x.cfg"));
    EXPECT_FALSE(SafeSave(RealSystemCalls(), file, "old"));
    EXPECT_FALSE(SafeSave(RealSystemCalls(), file, "new"));
    QByteArray bytes;
    EXPECT_EQ(ReadFile(RealSystemCalls(), file, bytes), 0);
    EXPECT_EQ(bytes, "new");
    std::vector<NativePath> names;
    EXPECT_EQ(RealSystemCalls().ListNames(file.parent_path(), names), 0);
    EXPECT_EQ(names, std::vector<NativePath>{L"x.cfg"});
}

TEST(WindowsCalls, KnowWhichRunsAreAlive) {
    SystemCalls& calls = RealSystemCalls();
    const std::int64_t mine = calls.ProcessNumber();
    EXPECT_GT(mine, 0);
    EXPECT_TRUE(calls.ProcessIsAlive(mine));
    constexpr std::int64_t NoSuchProcess = 0x7FFFFFF1; // real ones are multiples of four
    EXPECT_FALSE(calls.ProcessIsAlive((mine & ~std::int64_t{0xFFFFFFFF}) | NoSuchProcess));
    EXPECT_TRUE(calls.ProcessIsAlive(mine ^ (std::int64_t{1} << 40))) << "of another machine nobody can tell";
}
