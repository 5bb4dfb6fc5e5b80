#include "platform/widgets/DriveList.h"

#include "platform/Desktop.h"
#include "platform/ProgramPath.h"
#include "platform/Volumes.h"

#include <QSignalBlocker>

DriveList::DriveList(QWidget* parent) : DropDownList(parent) {
    Refresh();
    setCurrentIndex(-1);
    connect(this, &QComboBox::currentIndexChanged, this, &DriveList::Announce);
}

QString DriveList::Drive() const {
    return currentText();
}

void DriveList::SetDrive(const QString& path) {
    const int index = findText(DriveOf(path));
    if (index >= 0) {
        setCurrentIndex(index);
    } else if (path.isEmpty()) {
        announced.clear();
        setCurrentIndex(-1);
    }
}

void DriveList::Refresh() {
    const QString selected = Drive();
    const QSignalBlocker quiet(this);
    clear();
    addItems(TheDesktop().TheVolumes().Drives());
    setCurrentIndex(selected.isEmpty() ? -1 : findText(selected));
    announced = Drive(); // a drive that vanished counts as a change when it is chosen again
}

void DriveList::showPopup() {
    Refresh();
    QComboBox::showPopup();
}

void DriveList::Announce() {
    if (Drive() != announced) {
        announced = Drive();
        if (!announced.isEmpty()) {
            Q_EMIT Changed();
        }
    }
}
