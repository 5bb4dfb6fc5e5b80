#include "options/FolderPicker.h"

#include "options/FolderRule.h"
#include "options/PanelParts.h"
#include "platform/CodePage.h"
#include "platform/Desktop.h"
#include "platform/ProgramPath.h"
#include "platform/Volumes.h"
#include "platform/widgets/DriveList.h"
#include "platform/widgets/FolderList.h"
#include "platform/widgets/PathLabel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <utility>

namespace {

constexpr int Spacing = 4;          // logical pixels
constexpr int LeastListHeight = 64; // four folders
const QString FallBackDrive = QStringLiteral("c:");

template <typename Control>
Control* Named(Control* control, const char* name) {
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

} // namespace

FolderPicker::FolderPicker(const FolderPickerNames& names, FolderPickerRules rulesToKeep, QWidget* parent)
    : QWidget(parent), Drive(Named(new DriveList(this), names.Drive)),
      Folder(Named(new FolderList(this), names.Folder)), Path(Named(new PathLabel(this), names.Path)),
      BrowseButton(Named(new QPushButton(this), names.Browse)), ClearButton(Named(new QPushButton(this), names.Clear)),
      rules(std::move(rulesToKeep)), driveCaption(Named(new QLabel(this), names.DriveCaption)),
      folderCaption(Named(new QLabel(this), names.FolderCaption)),
      currentCaption(Named(new QLabel(this), names.CurrentCaption)) {
    ArrangeControls();
    connect(Drive, &DriveList::Changed, this, &FolderPicker::DriveChanged);
    connect(Folder, &FolderList::Changed, this, &FolderPicker::FolderChanged);
    connect(Folder, &FolderList::ChosenAgain, this, &FolderPicker::FolderChosenAgain);
    connect(Folder, &FolderList::Refused, this, &FolderPicker::FolderRefused);
    connect(BrowseButton, &QPushButton::clicked, this, &FolderPicker::Browse);
    connect(ClearButton, &QPushButton::clicked, this, &FolderPicker::Clear);
}

// Two columns of equal width: drive, path and buttons on the left, the folders over the whole height on the right.
void FolderPicker::ArrangeControls() {
    Folder->setMinimumHeight(LeastListHeight);
    Folder->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    driveCaption->setBuddy(Drive);
    folderCaption->setBuddy(Folder);
    for (QPushButton* button : {BrowseButton, ClearButton}) {
        button->setAutoDefault(false);
    }
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(2 * Spacing);
    buttons->addWidget(BrowseButton);
    buttons->addWidget(ClearButton);
    buttons->addStretch();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSizeConstraint(QLayout::SetMinimumSize); // also where a window gives it what others leave
    grid->setHorizontalSpacing(2 * Spacing);
    grid->setVerticalSpacing(Spacing / 2);
    grid->addWidget(driveCaption, 0, 0);
    grid->addWidget(Drive, 0, 1);
    grid->addWidget(currentCaption, 1, 0);
    grid->addWidget(Path, 1, 1);
    grid->addLayout(buttons, 2, 1);
    grid->addWidget(folderCaption, 0, 2);
    grid->addWidget(Folder, 0, 3, 4, 1);
    grid->setRowStretch(3, 1); // the folders alone take what is left
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    setTabOrder(Drive, Folder);
    setTabOrder(Folder, BrowseButton);
    setTabOrder(BrowseButton, ClearButton);
}

void FolderPicker::NameControls(const QString& purpose) {
    NameByCaption(*Drive, driveCaption->text(), purpose);
    NameByCaption(*Folder, folderCaption->text(), purpose);
    NameByCaption(*BrowseButton, BrowseButton->text(), purpose);
    NameByCaption(*ClearButton, ClearButton->text(), purpose);
}

QString FolderPicker::Chosen() const {
    return Path->text();
}

bool FolderPicker::Load(const QString& folder) {
    const QString stored = LowerCase(TrimBlanks(folder));
    const QScopedValueRollback<bool> loading(settingLists, true);
    Path->setText(stored);
    if (stored.isEmpty()) {
        return true;
    }
    ShowDriveOf(stored);
    if (!rules.DropUnreadable) {
        if (Open(stored)) {
            Check();
        }
        return true;
    }
    if (Folder->SetPath(stored)) {
        ShowDriveOf(QString());
        Path->setText(QString());
        return false;
    }
    Check();
    return true;
}

void FolderPicker::Check() {
    Path->setText(LowerCase(Folder->Path()));
    if (Folder->Path().isEmpty()) {
        warnedFor.clear();
        return;
    }
    if (Folder->Refresh() && !rules.PathErrorTitle.isEmpty()) {
        AskAgain(Folder->Path());
        return;
    }
    WarnOnce();
}

void FolderPicker::WarnOnce() {
    const bool changed = warnedFor != Chosen();
    warnedFor = Chosen();
    if (changed && !rules.FolderRuleTitle.isEmpty() && PointsIntoGradebookFolder(Folder->Path())) {
        ShowNotice(MessageIcon::Critical, rules.FolderRuleTitle, GradebookFolderWarning());
    }
}

// Opens a folder in the list; when it cannot be read the user is asked. True when the list shows that folder.
bool FolderPicker::Open(const QString& folder) {
    const SystemError error = Folder->SetPath(folder);
    return !error || FolderRefused(folder, error);
}

// A folder that cannot be read: the question where there is one, else a message. True when the list shows it after all.
bool FolderPicker::FolderRefused(const QString& folder, const SystemError& error) {
    if (!rules.PathErrorTitle.isEmpty()) {
        return AskAgain(folder);
    }
    ShowNotice(MessageIcon::Critical, rules.DialogTitle, RefusedFolderText(folder, error));
    return false;
}

// The question about a folder that cannot be read, until it can be or the user gives up.
bool FolderPicker::AskAgain(const QString& folder) {
    const Message question{rules.PathErrorTitle, UnreadableFolderQuestion(rules.PathErrorOpening, folder),
                           MessageButtons::RetryCancel, MessageIcon::Critical};
    while (TheDesktop().ShowMessage(question) == MessageAnswer::Retry) {
        if (!Folder->SetPath(folder) && !Folder->Refresh()) {
            ShowDriveOf(folder);
            Path->setText(LowerCase(Folder->Path()));
            WarnOnce();
            return true;
        }
    }
    FallBack();
    return false;
}

void FolderPicker::FallBack() {
    const QScopedValueRollback<bool> falling(settingLists, true);
    Drive->SetDrive(FallBackDrive);
    if (Folder->SetPath(FallBackDrive)) {
        Folder->SetPath(QString());
        return;
    }
    Path->setText(LowerCase(Folder->Path()));
    WarnOnce();
}

void FolderPicker::ShowDriveOf(const QString& folder) {
    const QScopedValueRollback<bool> showing(settingLists, true);
    Drive->SetDrive(DriveOf(folder));
}

void FolderPicker::DriveChanged() {
    if (settingLists) {
        return;
    }
    const QString chosen = Drive->Drive();
    const QString before = Folder->Path();
    {
        const QScopedValueRollback<bool> changing(settingLists, true);
        if (!Folder->SetPath(chosen)) {
            Check();
            return;
        }
    }
    const QString shown = rules.DriveErrorLoud ? UpperCase(chosen) : chosen;
    ShowNotice(rules.DriveErrorLoud ? MessageIcon::Exclamation : MessageIcon::None, QStringLiteral("DISK ERROR"),
               QStringLiteral("Please check Drive ") + shown + QStringLiteral(" and try again!"));
    ShowDriveOf(before);
}

void FolderPicker::FolderChanged() {
    if (!settingLists) {
        ShowDriveOf(Folder->Path());
        Check();
    }
}

// After Clear the list still shows the folder; choosing it there takes it back.
void FolderPicker::FolderChosenAgain() {
    if (Chosen().isEmpty()) {
        FolderChanged();
    }
}

void FolderPicker::Browse() {
    ShowNotice(MessageIcon::Information, rules.NoticeTitle, rules.NoticeText);
    FileDialog dialog;
    dialog.DialogKind = FileDialog::Kind::Save;
    dialog.Title = rules.DialogTitle;
    dialog.Filter = QStringLiteral("All Files (*.*)|*.*");
    dialog.FileName = DummyFileIn(Folder->Path());
    dialog.PathMustExist = rules.PathMustExist;
    const FileDialogAnswer answer = TheDesktop().AskForFile(dialog);
    const QString folder = PickedFolder(answer.FileName);
    if (answer.Error || folder.isEmpty()) {
        return;
    }
    const QScopedValueRollback<bool> browsing(settingLists, true);
    if (!Open(folder)) {
        return;
    }
    ShowDriveOf(rules.BrowseClearsDrive ? QString() : Folder->Path());
    Check();
    if (!Chosen().isEmpty()) {
        Q_EMIT Browsed(Chosen());
    }
}

void FolderPicker::Clear() {
    Path->setText(QString());
    warnedFor.clear();
    if (rules.ClearEmptiesLists) {
        const QScopedValueRollback<bool> clearing(settingLists, true);
        Folder->SetPath(QStringLiteral(" "));
        Drive->SetDrive(QString());
    }
}
