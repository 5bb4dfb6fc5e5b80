#include "platform/windows/NativeNames.h"
#include "platform/windows/WindowsNames.h"
#include "tests/support/PrintText.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

TEST(WindowsNames, TakesPathsApartAndPutsThemTogether) {
    const struct {
        const char* Path;
        const char* Root;
        const char* Whole;
        const char* Folder;
    } cases[] = {
        {"c:\\", "c:\\", "c:\\", "c:\\"},
        {"C:\\Marks", "c:\\", "c:\\Marks", "c:\\"},
        {"C:\\Marks\\2016\\", "c:\\", "c:\\Marks\\2016", "c:\\Marks"},
        {"c:\\a\\..\\..\\b\\.\\c", "c:\\", "c:\\b\\c", "c:\\b"},
        {"c:\\\\a\\\\b", "c:\\", "c:\\a\\b", "c:\\a"},
        {"\\\\Server\\Marks", "\\\\Server\\Marks", "\\\\Server\\Marks", "\\\\Server\\Marks"},
        {"\\\\Server\\Marks\\", "\\\\Server\\Marks", "\\\\Server\\Marks", "\\\\Server\\Marks"},
        {"\\\\Server\\Marks\\2016", "\\\\Server\\Marks", "\\\\Server\\Marks\\2016", "\\\\Server\\Marks"},
        {"\\\\Server\\Marks\\..\\..\\x", "\\\\Server\\Marks", "\\\\Server\\Marks\\x", "\\\\Server\\Marks"},
        {"\\\\10.0.0.1\\c$\\a\\b", "\\\\10.0.0.1\\c$", "\\\\10.0.0.1\\c$\\a\\b", "\\\\10.0.0.1\\c$\\a"},
        {"c:", "", "", ""},
        {"c:marks", "", "", ""},
        {"", "", "", ""},
        {"marks", "", "", ""},
        {"\\marks", "", "", ""},
        {"\\\\", "", "", ""},
        {"\\\\server", "", "", ""},
        {"\\\\server\\", "", "", ""},
        {"\\\\\\server\\x", "", "", ""},
        {"\\\\?\\c:\\x", "", "", ""},
        {"\\\\.\\c:", "", "", ""},
    };
    for (const auto& row : cases) {
        const WindowsPath split = SplitWindowsPath(Text(row.Path));
        EXPECT_EQ(split.Root, Text(row.Root)) << row.Path;
        EXPECT_EQ(split.Text(), Text(row.Whole)) << row.Path;
        EXPECT_EQ(split.FolderText(), Text(row.Folder)) << row.Path;
    }
}

TEST(WindowsNames, KnowsWhatWindowsWouldTakeForSomethingElse) {
    for (const char* name : {"a", "GW_v12_PRG.CFG", "a b", ".hidden", "a.b.c", "\xC3\xA9t\xC3\xA9", "console", "com",
                             "com10", "com0", "lpt", "nulls.txt", "a,b's #1 (c)", "$a", "~"}) {
        EXPECT_TRUE(IsPlainName(Text(name))) << name;
    }
    for (const char* name :
         {"",         ".",   "a.",    "a ",   "a:b",      "a<",   "a>",          "a\"",     "a|b",
          "a?",       "a*",  "a/b",   "a\\b", "a\tb",     "nul",  "NUL",         "nul.txt", "Con",
          "con .txt", "prn", "aux.h", "com1", "COM9.cfg", "lpt1", "com\xC2\xB9", "conin$",  "conout$"}) {
        EXPECT_FALSE(IsPlainName(Text(name))) << name;
    }
    EXPECT_TRUE(IsPlainName(QString(255, u'n')));
    EXPECT_FALSE(IsPlainName(QString(256, u'n')));
}

TEST(NativeNames, LongPathsGetThePrefixThatLiftsTheLimit) {
    const std::wstring name(200, L'n');
    const struct {
        std::wstring Path;
        std::wstring Expected;
    } cases[] = {
        {L"c:\\marks\\x.cfg", L"c:\\marks\\x.cfg"},
        {L"c:/marks/x.cfg", L"c:\\marks\\x.cfg"},
        {L"\\\\server\\share\\x", L"\\\\server\\share\\x"},
        {L"c:\\" + name + L"\\" + name, L"\\\\?\\c:\\" + name + L"\\" + name},
        {L"c:/" + name + L"/../" + name + L"/" + name + L"/.", L"\\\\?\\c:\\" + name + L"\\" + name},
        {L"\\\\server\\share\\" + name + L"\\" + name, L"\\\\?\\UNC\\server\\share\\" + name + L"\\" + name},
        {L"\\\\?\\c:\\" + name + L"\\" + name, L"\\\\?\\c:\\" + name + L"\\" + name},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(NameForCall(row.Path), row.Expected);
    }
    EXPECT_EQ(WithoutPrefix(L"\\\\?\\c:\\x").native(), L"c:\\x");
    EXPECT_EQ(WithoutPrefix(L"\\\\?\\UNC\\server\\share\\x").native(), L"\\\\server\\share\\x");
    EXPECT_EQ(WithoutPrefix(L"c:\\x").native(), L"c:\\x");
}
