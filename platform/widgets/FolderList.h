#pragma once

#include "platform/SystemError.h"

#include <QStyle>
#include <QTreeWidget>

/// A list of folders: the current folder's drive root and parents, the current folder (bold), and the folders in it,
/// each level indented. A double click or Enter on an entry makes it the current folder.
class FolderList : public QTreeWidget {
    Q_OBJECT
    Q_PROPERTY(QString path READ Path WRITE SetPathAsUser NOTIFY Changed)

public:
    explicit FolderList(QWidget* parent = nullptr);

    /// The current folder, as on the disk (`c:\Marks\2016`, `c:\` for a root); empty when none is shown.
    QString Path() const { return path; }

    /// Makes a folder current and raises Changed when that changes Path(). A drive alone ("c:") stands for the drive's
    /// current folder, or its root when that one is gone. A blank path empties the list. When the folder cannot be read
    /// the error is returned and path and list stay as they were.
    SystemError SetPath(const QString& folder);

    /// Reads the current folder again; returns the error and empties the folders below it when it cannot be read.
    SystemError Refresh();

    /// What the property writes and a double click does: as SetPath, and Refused when the folder cannot be read.
    void SetPathAsUser(const QString& folder);

Q_SIGNALS:
    /// Path() is another folder now.
    void Changed();
    /// The user chose the folder that is the current one already.
    void ChosenAgain();
    /// The user chose a folder that cannot be read (gone, no permission, drive not ready); Path() stays as it was.
    void Refused(const QString& folder, const SystemError& error);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// None: no level can be closed.
    void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;

private:
    QString path;

    void ScrollToFolder();
    void ShowFolder(const QString& folder, const QStringList& names);
    QTreeWidgetItem* NewEntry(QTreeWidgetItem* parent, const QString& name, const QString& whole,
                              QStyle::StandardPixmap icon);
    void OpenEntry(const QTreeWidgetItem* entry);
};
