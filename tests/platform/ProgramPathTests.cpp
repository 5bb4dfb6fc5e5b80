#include "platform/ProgramPath.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

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
        EXPECT_EQ(DriveOf(Latin(row.Path)), Latin(row.Drive)) << row.Path;
        EXPECT_EQ(FolderOf(Latin(row.Path)), Latin(row.Folder)) << row.Path;
        EXPECT_EQ(NameOf(Latin(row.Path)), Latin(row.Name)) << row.Path;
        EXPECT_EQ(WithoutTrailingBackslash(Latin(row.Path)), Latin(row.WithoutBackslash)) << row.Path;
    }
}

TEST(ProgramPath, JoinsWithOneBackslash) {
    const struct {
        const char* Folder;
        const char* Joined;
    } cases[] = {{"c:", "c:\\x.cfg"}, {"c:\\", "c:\\x.cfg"}, {"c:\\a", "c:\\a\\x.cfg"}, {"c:\\a\\", "c:\\a\\x.cfg"}};
    for (const auto& row : cases) {
        EXPECT_EQ(JoinPath(Latin(row.Folder), Latin("x.cfg")), Latin(row.Joined)) << row.Folder;
    }
}
