#include "platform/ProgramPath.h"

#include <gtest/gtest.h>

namespace {

QString Text(const char* latin) {
    return QString::fromLatin1(latin);
}

} // namespace

TEST(ProgramPath, TakesPathsApart) {
    const struct {
        const char* Path;
        const char* Drive;
        const char* Folder;
        const char* Name;
        const char* WithoutBackslash;
    } cases[] = {
        {"", "", "", "", ""},
        {"c:", "c:", "", "c:", "c:"},
        {"c:\\", "c:", "c:", "", "c:"},
        {"C:\\Marks\\2016", "c:", "C:\\Marks", "2016", "C:\\Marks\\2016"},
        {"c:\\marks\\", "c:", "c:\\marks", "", "c:\\marks"},
        {"c:\\marks\\\\", "c:", "c:\\marks\\", "", "c:\\marks\\"},
        {"x.cfg", "", "", "x.cfg", "x.cfg"},
        {"\\x.cfg", "", "", "x.cfg", "\\x.cfg"},
        {"\\", "", "", "", ""},
        {"c:x.cfg", "c:", "", "c:x.cfg", "c:x.cfg"},
        {"1:\\x", "", "1:", "x", "1:\\x"},
        {":\\x", "", ":", "x", ":\\x"},
        {"\xE9:\\x", "", "\xE9:", "x", "\xE9:\\x"},
        {"cc:\\x", "", "cc:", "x", "cc:\\x"},
        {"Z:\\a b\\c.d", "z:", "Z:\\a b", "c.d", "Z:\\a b\\c.d"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(DriveOf(Text(row.Path)), Text(row.Drive)) << row.Path;
        EXPECT_EQ(FolderOf(Text(row.Path)), Text(row.Folder)) << row.Path;
        EXPECT_EQ(NameOf(Text(row.Path)), Text(row.Name)) << row.Path;
        EXPECT_EQ(WithoutTrailingBackslash(Text(row.Path)), Text(row.WithoutBackslash)) << row.Path;
    }
}

TEST(ProgramPath, JoinsWithOneBackslash) {
    const struct {
        const char* Folder;
        const char* Joined;
    } cases[] = {{"c:", "c:\\x.cfg"}, {"c:\\", "c:\\x.cfg"}, {"c:\\a", "c:\\a\\x.cfg"}, {"c:\\a\\", "c:\\a\\x.cfg"}};
    for (const auto& row : cases) {
        EXPECT_EQ(JoinPath(Text(row.Folder), Text("x.cfg")), Text(row.Joined)) << row.Folder;
    }
}
