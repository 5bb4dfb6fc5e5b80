#pragma once

#include "platform/SystemError.h"

#include <QString>
#include <QWidget>

class DriveList;
class FolderList;
class PathLabel;
class QLabel;
class QPushButton;

/// What tells one window's folder picking from another's.
struct FolderPickerRules {
    QString NoticeTitle; ///< information box before the dialog of Browse
    QString NoticeText;
    QString DialogTitle; ///< the Save dialog that lets the user move to the folder
    bool PathMustExist = false;
    QString FolderRuleTitle;        ///< title of the warning about 'GW' folders; empty: they pass without a word
    QString PathErrorTitle;         ///< title of the Retry / Cancel question about a folder that cannot be read; when
                                    ///< it is empty such a folder is refused with a message
    QString PathErrorOpening;       ///< its text before the path: "The DEFAULT PATH ["
    bool DropUnreadable = false;    ///< a folder that cannot be read when Load is called is dropped without a word
    bool DriveErrorLoud = false;    ///< "DISK ERROR" with the exclamation icon and the drive in capitals
    bool ClearEmptiesLists = false; ///< Clear empties the folder list and selects no drive, too
    bool BrowseClearsDrive = false; ///< after Browse no drive is selected; otherwise that of the chosen folder
};

/// Object names of the picker's controls.
struct FolderPickerNames {
    const char* Drive;
    const char* Folder;
    const char* Path;
    const char* Browse;
    const char* Clear;
    const char* DriveCaption;
    const char* FolderCaption;
    const char* CurrentCaption;
};

/// Drive list, folder list, the label of the chosen folder (small letters), Browse and Clear, laid out for a frame of
/// at least 97 pixels' height. The label's text is what a window saves; nothing here touches a setting.
class FolderPicker : public QWidget {
    Q_OBJECT

public:
    FolderPicker(const FolderPickerNames& names, FolderPickerRules rules, QWidget* parent = nullptr);

    /// Shows a stored folder: lists, label and check. An empty one leaves all empty. Returns false when the rules drop
    /// a folder that cannot be read; lists and label are then empty. Warns at most once.
    bool Load(const QString& folder);

    /// The label takes the folder list's path in small letters; a folder that cannot be read brings the question, one
    /// that begins with 'GW' the warning. The warning comes once for each change of the path.
    void Check();

    /// What the buttons do.
    void Browse();
    void Clear();

    /// Gives a screen reader names for lists and buttons: their captions, and what the folder is for in brackets (may
    /// be empty). To be called after the captions are set.
    void NameControls(const QString& purpose);

    /// The label's text.
    QString Chosen() const;

    DriveList* const Drive;
    FolderList* const Folder;
    PathLabel* const Path;
    QPushButton* const BrowseButton;
    QPushButton* const ClearButton;

Q_SIGNALS:
    /// Browse chose this folder (small letters), after label and lists show it.
    void Browsed(const QString& folder);

private:
    FolderPickerRules rules;
    QLabel* driveCaption;
    QLabel* folderCaption;
    QLabel* currentCaption;
    bool settingLists = false; // lists are set in code: their change events say nothing
    QString warnedFor;         // the path that the warning was last shown for

    void ArrangeControls();
    bool Open(const QString& folder);
    bool AskAgain(const QString& folder);
    bool FolderRefused(const QString& folder, const SystemError& error);
    void FolderChosenAgain();
    void FallBack();
    void ShowDriveOf(const QString& folder);
    void DriveChanged();
    void FolderChanged();
    void WarnOnce();
};
