#include "options/PathsPanel.h"

#include "app/CFG_2015.h"
#include "options/FolderPicker.h"
#include "options/PathTexts.h"
#include "platform/CodePage.h"
#include "platform/Desktop.h"
#include "platform/widgets/FolderList.h"
#include "platform/widgets/PathLabel.h"
#include "platform/widgets/ProgramStyle.h"

#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int OpeningHeight = 557;     // of the panel, in logical pixels (8355 twips)
constexpr int OpeningFrameHeight = 97; // of the folder frames (1455 twips)
constexpr int TextGap = 4;

constexpr FolderPickerNames DataNames{"drvHDir",        "dirHDir",  "lblDfltPath", "cmdDataPath",
                                      "cmdClrDfltPath", "lblDrive", "lblFolder",   "lblCurrent"};
constexpr FolderPickerNames BackupNames{"drvBkupPath",      "dirBkupPath",  "lblBkupPath",   "cmdBkupPathBrowse",
                                        "cmdBkupPathClear", "lblBkupDrive", "lblBkupFolder", "lblBkupCurrent"};

FolderPickerRules RulesFor(const QString& title, const QString& folderRuleTitle) {
    FolderPickerRules rules;
    rules.NoticeTitle = title;
    rules.NoticeText = DataFolderNotice(ProductName);
    rules.DialogTitle = title;
    rules.FolderRuleTitle = folderRuleTitle;
    rules.PathErrorTitle = QStringLiteral("DEFAULT PATH ERROR");
    rules.PathErrorOpening = QStringLiteral("The DEFAULT PATH [");
    rules.ClearEmptiesLists = true;
    return rules;
}

} // namespace

PathsPanel::PathsPanel(QWidget* parent) : SetupPanel(0, parent) {
    AddFolderFrames();
    AddPhotoFrame();
    Column->addStretch();
    connect(data, &FolderPicker::Browsed, this, [](const QString& folder) { ProgramConfig.DefaultPath = folder; });
    connect(backup, &FolderPicker::Browsed, this,
            [](const QString& folder) { ProgramConfig.BackupDestinationPath = folder; });
}

void PathsPanel::AddFolderFrames() {
    const Frame classes = NewFrame("fraClassPath", this);
    const Frame backups = NewFrame("fraBackupPath", this);
    classFrame = classes.Box;
    backupFrame = backups.Box;
    data = new FolderPicker(
        DataNames, RulesFor(QStringLiteral("Locate Gradewell Data Folders"), QStringLiteral("Gradewell Path Error")),
        classFrame);
    backup = new FolderPicker(
        BackupNames, RulesFor(QStringLiteral("Set Gradewell Backup Path"), QStringLiteral("Backup Path Error")),
        backupFrame);
    classes.Column->addWidget(data);
    backups.Column->addWidget(backup);
    for (const Frame& frame : {classes, backups}) {
        frame.Column->setContentsMargins(Spacing::Margin, 0, Spacing::Margin, Spacing::Gap / 2);
        frame.Box->setFixedHeight(OpeningFrameHeight);
    }
    Column->addWidget(classFrame);
    Column->addSpacing(TextGap - Column->spacing());
    Column->addWidget(NewExplanation("lblCD1", this));
    Column->addWidget(backupFrame);
    Column->addSpacing(TextGap - Column->spacing());
    Column->addWidget(NewExplanation("lblBkup1", this));
}

void PathsPanel::AddPhotoFrame() {
    const Frame frame = NewFrame("fraPhotos", this);
    frame.Column->addWidget(NewExplanation("lblPhoto1", frame.Box));
    photos = AddFolderRow(frame, {"lblMugCurrent", "lblMugShotPath", "cmdPhotos", "cmdMugClear"});
    photoFrame = frame.Box;
    Column->addWidget(photoFrame);
    connect(photos.Browse, &QPushButton::clicked, this, &PathsPanel::BrowsePhotos);
    connect(photos.Clear, &QPushButton::clicked, this, &PathsPanel::ClearPhotos);
}

void PathsPanel::resizeEvent(QResizeEvent* event) {
    SetupPanel::resizeEvent(event);
    SizeFolderFrames();
}

// The folder frames have their own height when the window opens, or what large letters need; room that nothing else
// needs in a larger window goes to them.
void PathsPanel::SizeFolderFrames() {
    const int least = std::max(OpeningFrameHeight, classFrame->layout()->minimumSize().height());
    int more = 0;
    if (height() > OpeningHeight) {
        const int others = Column->totalMinimumHeightForWidth(width()) - classFrame->height() - backupFrame->height();
        more = std::max(0, height() - std::max(OpeningHeight, others + 2 * least)) / 2;
    }
    for (QGroupBox* frame : {classFrame, backupFrame}) {
        frame->setFixedHeight(least + more);
    }
}

void PathsPanel::FollowCaptions() {
    const auto purpose = [](const QGroupBox* frame) { return frame->title().remove(QStringLiteral("... ")); };
    data->NameControls(purpose(classFrame));
    backup->NameControls(purpose(backupFrame));
    photos.NameButtons(purpose(photoFrame));
    SizeFolderFrames();
}

void PathsPanel::LoadDataPath() {
    ProgramConfig.DefaultPath = LowerCase(TrimBlanks(ProgramConfig.DefaultPath));
    data->Load(ProgramConfig.DefaultPath);
}

void PathsPanel::LoadBackupPath() {
    ProgramConfig.BackupDestinationPath = LowerCase(TrimBlanks(ProgramConfig.BackupDestinationPath));
    backup->Load(ProgramConfig.BackupDestinationPath);
    if (!ProgramConfig.BackupDestinationPath.isEmpty() && !data->Folder->Path().isEmpty()) {
        data->Check();
    }
}

void PathsPanel::LoadPhotoPath() {
    ProgramConfig.PathToStudentPhotos = LowerCase(ProgramConfig.PathToStudentPhotos);
    photos.Path->setText(ProgramConfig.PathToStudentPhotos);
}

void PathsPanel::Save() const {
    ProgramConfig.DefaultPath = data->Chosen();
    ProgramConfig.BackupDestinationPath = backup->Chosen();
}

void PathsPanel::BrowsePhotos() {
    TheDesktop().ShowMessage(PhotoNotice());
    const FileDialogAnswer answer = TheDesktop().AskForFile(PhotoDialog(ProgramConfig.PathToStudentPhotos));
    if (answer.Error) {
        return;
    }
    const PhotoChoice choice = ChoosePhoto(answer.FileName);
    ProgramConfig.PathToStudentPhotos = choice.Folder;
    ProgramConfig.StudentPhotoExtension = choice.Extension;
    if (choice.IsValid) {
        photos.Path->setText(choice.Folder);
    } else {
        TheDesktop().ShowMessage(InvalidPhoto(answer.FileName, choice.Extension));
    }
}

void PathsPanel::ClearPhotos() {
    ProgramConfig.PathToStudentPhotos.clear();
    ProgramConfig.StudentPhotoExtension.clear();
    photos.Path->setText(QString());
}
