#pragma once

#include "options/PanelParts.h"

class FolderPicker;

/// Panel 0: the folders of class data, backups and student photographs.
class PathsPanel : public SetupPanel {
    Q_OBJECT

public:
    explicit PathsPanel(QWidget* parent);

    /// Shows the stored folders; data and backup paths are kept in small letters from now on.
    void LoadDataPath();
    void LoadBackupPath();
    void LoadPhotoPath();

    /// Puts the labels of the data and backup folders into the settings record.
    void Save() const;

    /// What a screen reader says for lists and buttons, and the room that the captions take; after they are set.
    void FollowCaptions();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QGroupBox* classFrame;
    QGroupBox* backupFrame;
    QGroupBox* photoFrame;
    FolderPicker* data;
    FolderPicker* backup;
    FolderRow photos;

    void AddFolderFrames();
    void AddPhotoFrame();
    void SizeFolderFrames();
    void BrowsePhotos();
    void ClearPhotos();
};
