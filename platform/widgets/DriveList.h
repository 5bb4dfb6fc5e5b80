#pragma once

#include "platform/widgets/DropDownList.h"

/// A drop-down list of the drives ("c:", "g:"). The drives are read anew whenever the list drops down.
class DriveList : public DropDownList {
    Q_OBJECT
    Q_PROPERTY(QString drive READ Drive WRITE SetDrive NOTIFY Changed)

public:
    explicit DriveList(QWidget* parent = nullptr);

    /// The selected drive in small letters; empty when none is selected.
    QString Drive() const;

    /// Selects the drive of a path ("c:" or `c:\marks`). Raises Changed when it differs from the selected one.
    /// An unknown drive leaves the selection; an empty text selects none (index -1) and raises nothing.
    void SetDrive(const QString& path);

    /// Reads the drives again and keeps the selection where it still exists.
    void Refresh();

    void showPopup() override;

Q_SIGNALS:
    /// Another drive was selected, by the user or in code. It may be one that is not ready.
    void Changed();

private:
    QString announced; // the drive that Changed was last raised for
    void Announce();
};
