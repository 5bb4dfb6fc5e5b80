#include "platform/widgets/FolderList.h"

#include "platform/CodePage.h"
#include "platform/Desktop.h"
#include "platform/ProgramPath.h"
#include "platform/Volumes.h"

#include <QKeyEvent>

namespace {

constexpr int PathRole = Qt::UserRole;
constexpr int IndentOfLevel = 12; // logical pixels

Volumes& TheVolumes() {
    return TheDesktop().TheVolumes();
}

// The root and every folder on the way to `folder`, itself included: c:\, c:\marks, c:\marks\2016.
QStringList PathsFromRoot(const QString& folder) {
    QStringList paths{folder.left(2) + QLatin1Char('\\')};
    for (qsizetype end = folder.indexOf(QLatin1Char('\\'), 3); end > 0;
         end = folder.indexOf(QLatin1Char('\\'), end + 1)) {
        paths.append(folder.left(end));
    }
    if (folder.size() > 3) {
        paths.append(folder);
    }
    return paths;
}

} // namespace

FolderList::FolderList(QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setIndentation(IndentOfLevel);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(this, &QTreeWidget::itemDoubleClicked, this, &FolderList::OpenEntry);
}

SystemError FolderList::SetPath(const QString& folder) {
    QString whole = TheVolumes().WholePath(folder);
    if (whole.isEmpty()) {
        clear();
        if (!path.isEmpty()) {
            path.clear();
            Q_EMIT Changed();
        }
        return {};
    }
    Volumes::FolderResult found = TheVolumes().ListFolders(whole);
    const bool driveAlone = TrimBlanks(folder).size() == 2;
    if (found.Error && driveAlone) {
        whole = DriveOf(whole) + QLatin1Char('\\');
        found = TheVolumes().ListFolders(whole);
    }
    if (found.Error) {
        return found.Error;
    }
    TheVolumes().SetCurrentFolder(whole);
    ShowFolder(whole, found.Names);
    if (path != whole) {
        path = whole;
        Q_EMIT Changed();
    }
    return {};
}

SystemError FolderList::Refresh() {
    if (path.isEmpty()) {
        clear();
        return {};
    }
    const Volumes::FolderResult found = TheVolumes().ListFolders(path);
    ShowFolder(path, found.Names);
    return found.Error;
}

void FolderList::SetPathAsUser(const QString& folder) {
    const QString before = path;
    const SystemError error = SetPath(folder);
    if (error) {
        Q_EMIT Refused(folder, error);
    } else if (path == before) {
        Q_EMIT ChosenAgain();
    }
}

void FolderList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        OpenEntry(currentItem());
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

// The way from the root down to the folder, each level indented, then the folders in it.
void FolderList::ShowFolder(const QString& folder, const QStringList& names) {
    clear();
    QTreeWidgetItem* current = invisibleRootItem();
    for (const QString& step : PathsFromRoot(folder)) {
        current = NewEntry(current, NameOf(step).isEmpty() ? step : NameOf(step), step, QStyle::SP_DirOpenIcon);
    }
    QFont bold = font();
    bold.setBold(true);
    current->setFont(0, bold);
    for (const QString& name : names) {
        NewEntry(current, name, JoinPath(folder, name), QStyle::SP_DirIcon);
    }
    expandAll();
    setCurrentItem(current);
    ScrollToFolder();
}

// As much of the way from the root as fits, and always the current folder.
void FolderList::ScrollToFolder() {
    if (currentItem() != nullptr) {
        scrollToItem(topLevelItem(0), QAbstractItemView::PositionAtTop);
        scrollToItem(currentItem(), QAbstractItemView::EnsureVisible);
    }
}

// The list may have been filled before it had its size.
void FolderList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    ScrollToFolder();
}

void FolderList::drawBranches(QPainter* /*painter*/, const QRect& /*rect*/, const QModelIndex& /*index*/) const {}

QTreeWidgetItem* FolderList::NewEntry(QTreeWidgetItem* parent, const QString& name, const QString& whole,
                                      QStyle::StandardPixmap icon) {
    auto* entry = new QTreeWidgetItem(parent, {name});
    entry->setIcon(0, style()->standardIcon(icon));
    entry->setData(0, PathRole, whole);
    return entry;
}

void FolderList::OpenEntry(const QTreeWidgetItem* entry) {
    if (entry != nullptr) {
        SetPathAsUser(entry->data(0, PathRole).toString());
    }
}
