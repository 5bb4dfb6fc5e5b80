#pragma once

#include "options/PanelParts.h"

class FolderPicker;
class PathLabel;

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

    /// What a screen reader says for the folder lists; after the captions are set.
    void NameControls();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QGroupBox* classFrame;
    QGroupBox* backupFrame;
    FolderPicker* data;
    FolderPicker* backup;
    PathLabel* photos;

    void AddFolderFrames();
    void AddPhotoFrame();
    void BrowsePhotos();
    void ClearPhotos();
};
