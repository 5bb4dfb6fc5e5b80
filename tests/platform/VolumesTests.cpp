#include "platform/MappedVolumes.h"
#include "tests/support/PrintText.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

TEST(Volumes, MakesPathsWhole) {
    MappedVolumes volumes(RealSystemCalls(), {{u'c', "/"}, {u'g', "/srv"}, {u'x', "/mnt"}});
    volumes.SetCurrentFolder(Text("G:\\Marks\\2016\\"));
    volumes.SetCurrentFolder(Text("x:\\"));
    volumes.SetCurrentFolder(Text("no drive"));
    volumes.SetCurrentFolder(QString());
    const struct {
        const char* Path;
        const char* Expected;
    } cases[] = {
        {"", ""},
        {"  ", ""},
        {"c:", "c:\\"},
        {"C:", "c:\\"},
        {"c:\\", "c:\\"},
        {"C:\\Marks", "c:\\Marks"},
        {"c:\\marks\\", "c:\\marks"},
        {" c:\\marks\\ ", "c:\\marks"},
        {"g:", "g:\\Marks\\2016"},
        {"G:", "g:\\Marks\\2016"},
        {"g:\\", "g:\\"},
        {"g:a", "g:\\Marks\\2016\\a"},
        {"g:a\\", "g:\\Marks\\2016\\a"},
        {"x:", "x:\\"},
        {"x:a", "x:\\a"},
        {"q:", "q:\\"},
        {"plain", "plain"},
        {"p\\", "p"},
        {"\\", "\\"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(volumes.WholePath(Text(row.Path)), Text(row.Expected)) << row.Path;
    }
}

TEST(Volumes, TellsWhyAFolderWasRefused) {
    const QString unreached = RefusedFolderText(Text("/mnt/y"), MakeError(ErrorNumber::DeviceUnavailable));
    const QString unnamed = RefusedFolderText(Text("/mnt/y"), MakeError(ErrorNumber::BadFileName));
    const QString other = RefusedFolderText(Text("/mnt/y"), MakeError(ErrorNumber::PermissionDenied));
    for (const QString& text : {unreached, unnamed, other}) {
        EXPECT_TRUE(text.contains(Text("[/mnt/y]"))) << text.toStdString();
        EXPECT_TRUE(text.endsWith(Text("The setting stays as it was."))) << text.toStdString();
    }
    EXPECT_TRUE(unreached.contains(Text("No drive")));
    EXPECT_TRUE(unnamed.contains(Text("characters")));
    EXPECT_TRUE(other.contains(Text("Error 70: Permission denied.")));
}

TEST(Volumes, TellsWhyAFolderWasRefusedInFrench) {
    const struct {
        ErrorNumber Number;
        const char* Reason;
    } cases[] = {{ErrorNumber::DeviceUnavailable, "Aucun lecteur"},
                 {ErrorNumber::BadFileName, "caractères"},
                 {ErrorNumber::PermissionDenied, "Erreur 70 : "}};
    for (const auto& row : cases) {
        const QString text = RefusedFolderText(Text("/mnt/é%1"), MakeError(row.Number), CaptionLanguage::French);
        EXPECT_TRUE(text.startsWith(Text("Le dossier [/mnt/é%1] ne peut pas être utilisé."))) << text.toStdString();
        EXPECT_TRUE(text.contains(Text(row.Reason))) << text.toStdString();
        EXPECT_TRUE(text.endsWith(Text("Le réglage reste tel qu'il était."))) << text.toStdString();
    }
}
