#include "platform/widgets/DriveList.h"
#include "platform/widgets/FolderList.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WindowInput.h"

namespace {

QString Path(const char* text) {
    return QString::fromUtf8(text);
}

class Folders : public testing::Test {
protected:
    Folders() {
        for (const char* folder :
             {"c:\\marks\\2016\\term1", "c:\\marks\\2016\\Term2", "c:\\marks\\2015", "c:\\other"}) {
            Disk.MakeFolder(Path(folder));
        }
        List = std::make_unique<FolderList>();
        QObject::connect(List.get(), &FolderList::Changed, [this] { ++Changes; });
        QObject::connect(List.get(), &FolderList::Refused, [this](const QString& folder, const SystemError& error) {
            RefusedFolder = folder;
            RefusedNumber = error.Number;
        });
    }

    // The entries as shown: two blanks a level.
    QStringList Entries() const {
        QStringList entries;
        for (QTreeWidgetItemIterator at(List.get()); *at != nullptr; ++at) {
            int level = 0;
            for (const QTreeWidgetItem* above = (*at)->parent(); above != nullptr; above = above->parent()) {
                ++level;
            }
            entries.append(QString(2 * level, QLatin1Char(' ')) + (*at)->text(0));
        }
        return entries;
    }

    TestFolder Disk;
    std::unique_ptr<FolderList> List;
    int Changes = 0;
    QString RefusedFolder;
    int RefusedNumber = 0;
};

TEST_F(Folders, TheCurrentFolderIsShownWithItsParents) {
    EXPECT_FALSE(List->SetPath(Path("c:\\marks\\2016")));
    EXPECT_EQ(Entries(),
              QStringList({Path("c:\\"), Path("  marks"), Path("    2016"), Path("      term1"), Path("      Term2")}));
    EXPECT_EQ(List->currentItem()->text(0), QStringLiteral("2016"));
    EXPECT_TRUE(List->currentItem()->font(0).bold());
    EXPECT_EQ(List->Path(), Path("c:\\marks\\2016"));
    EXPECT_EQ(Changes, 1);
}

TEST_F(Folders, TheSameFolderAgainIsNoChange) {
    List->SetPath(Path("c:\\marks"));
    List->SetPath(Path("c:\\marks\\"));
    EXPECT_EQ(Changes, 1);
}

TEST_F(Folders, ADriveAloneIsItsCurrentFolder) {
    EXPECT_FALSE(List->SetPath(Path("c:")));
    EXPECT_EQ(List->Path(), Path("c:\\"));
    EXPECT_EQ(Entries().first(), Path("c:\\"));
    List->SetPath(Path("c:\\marks"));
    List->SetPath(Path(" "));
    EXPECT_FALSE(List->SetPath(Path("c:")));
    EXPECT_EQ(List->Path(), Path("c:\\marks"));
    Disk.Remove(Path("c:\\marks"));
    EXPECT_FALSE(List->SetPath(Path("c:")));
    EXPECT_EQ(List->Path(), Path("c:\\")) << "its root when the folder is gone";
}

TEST_F(Folders, ABlankPathEmptiesTheList) {
    List->SetPath(Path("c:\\marks"));
    EXPECT_FALSE(List->SetPath(Path(" ")));
    EXPECT_EQ(List->Path(), QString());
    EXPECT_EQ(Entries(), QStringList());
    EXPECT_EQ(Changes, 2);
    EXPECT_FALSE(List->Refresh());
}

TEST_F(Folders, AFolderThatCannotBeReadLeavesTheList) {
    List->SetPath(Path("c:\\marks"));
    EXPECT_EQ(List->SetPath(Path("c:\\gone")).Number, 76);
    EXPECT_EQ(List->SetPath(Path("q:\\")).Number, 68);
    EXPECT_EQ(List->Path(), Path("c:\\marks"));
    EXPECT_EQ(Entries().size(), 4);
    EXPECT_EQ(Changes, 1);
    EXPECT_EQ(RefusedNumber, 0);
}

TEST_F(Folders, RefreshShowsWhatIsThereNow) {
    List->SetPath(Path("c:\\marks"));
    Disk.MakeFolder(Path("c:\\marks\\2017"));
    EXPECT_FALSE(List->Refresh());
    EXPECT_EQ(Entries().last(), Path("    2017"));
    Disk.Remove(Path("c:\\marks"));
    EXPECT_EQ(List->Refresh().Number, 76);
    EXPECT_EQ(List->Path(), Path("c:\\marks"));
    EXPECT_EQ(Entries().size(), 2);
    EXPECT_EQ(Changes, 1);
}

TEST_F(Folders, DoubleClickAndEnterOpenAnEntry) {
    List->resize(300, 300);
    List->show();
    List->SetPath(Path("c:\\marks"));
    const auto entry = [&](const char* name) { return List->findItems(Path(name), Qt::MatchRecursive).first(); };
    QTest::mouseClick(List->viewport(), Qt::LeftButton, {}, List->visualItemRect(entry("2015")).center());
    EXPECT_EQ(Changes, 1) << "a single click only selects";
    QTest::mouseDClick(List->viewport(), Qt::LeftButton, {}, List->visualItemRect(entry("2015")).center());
    EXPECT_EQ(List->Path(), Path("c:\\marks\\2015"));
    List->setCurrentItem(entry("c:\\"));
    QTest::keyClick(List.get(), Qt::Key_Return);
    EXPECT_EQ(List->Path(), Path("c:\\"));
    EXPECT_EQ(Changes, 3);
}

TEST_F(Folders, AChosenFolderThatIsGoneIsRefused) {
    List->SetPath(Path("c:\\marks"));
    Disk.Remove(Path("c:\\marks\\2015"));
    List->setProperty("path", Path("c:\\marks\\2015"));
    EXPECT_EQ(RefusedFolder, Path("c:\\marks\\2015"));
    EXPECT_EQ(RefusedNumber, 76);
    EXPECT_EQ(List->property("path").toString(), Path("c:\\marks"));
}

TEST_F(Folders, WritingThePropertyIsAChange) {
    List->setProperty("path", Path("c:\\MARKS"));
    EXPECT_EQ(Changes, 1);
    EXPECT_EQ(List->Path().toLower(), Path("c:\\marks"));
}

class Drives : public testing::Test {
protected:
    Drives()
        : Volumes(RealSystemCalls(), DriveTable{{QLatin1Char('g'), NativePath("/tmp")},
                                                {QLatin1Char('c'), NativePath("/")},
                                                {QLatin1Char('q'), NativePath("/no/such/folder")}}),
          Screen(Volumes, RealSystemCalls()) {
        List = std::make_unique<DriveList>();
        QObject::connect(List.get(), &DriveList::Changed, [this] { ++Changes; });
    }

    MappedVolumes Volumes;
    ScriptedDesktop Screen;
    std::unique_ptr<DriveList> List;
    int Changes = 0;
};

TEST_F(Drives, TheyAreListedWithNoneSelected) {
    EXPECT_EQ(List->count(), 3);
    EXPECT_EQ(List->itemText(1), QStringLiteral("g:"));
    EXPECT_EQ(List->currentIndex(), -1);
    EXPECT_EQ(List->property("drive").toString(), QString());
}

TEST_F(Drives, SelectingRaisesOneChange) {
    List->SetDrive(Path("G:\\marks"));
    EXPECT_EQ(List->Drive(), QStringLiteral("g:"));
    EXPECT_EQ(Changes, 1);
    List->SetDrive(Path("g:"));
    EXPECT_EQ(Changes, 1);
    List->setCurrentIndex(0);
    EXPECT_EQ(Changes, 2);
}

TEST_F(Drives, ADriveThatIsNotReadyCanBeChosen) {
    List->setProperty("drive", QStringLiteral("q:"));
    EXPECT_EQ(List->Drive(), QStringLiteral("q:"));
    EXPECT_EQ(Changes, 1);
}

TEST_F(Drives, AnUnknownDriveLeavesTheSelection) {
    List->SetDrive(Path("g:"));
    List->SetDrive(Path("x:"));
    EXPECT_EQ(List->Drive(), QStringLiteral("g:"));
    EXPECT_EQ(Changes, 1);
}

TEST_F(Drives, NoneIsNoChangeAndTheSameAgainIsOne) {
    List->SetDrive(Path("g:"));
    List->SetDrive(QString());
    EXPECT_EQ(List->currentIndex(), -1);
    EXPECT_EQ(Changes, 1);
    List->SetDrive(Path("g:"));
    EXPECT_EQ(Changes, 2);
}

TEST_F(Drives, DroppingDownKeepsTheSelection) {
    List->SetDrive(Path("g:"));
    List->showPopup();
    List->hidePopup();
    EXPECT_EQ(List->Drive(), QStringLiteral("g:"));
    EXPECT_EQ(Changes, 1);
}

} // namespace
