#pragma once

#include "import/SetupFile.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>

/// The update options: which actions an update from the import file takes and which fields it overwrites.
class UpdateOptionsPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit UpdateOptionsPanel(QWidget* parent = nullptr);

    QGroupBox* fraDelete;
    QGroupBox* fraUpdateFields;
    std::array<QCheckBox*, UpdateActionCount> chkCLUpd{};
    QLabel* lblCLUpd1; ///< second line of chkCLUpd(1)
    std::array<QCheckBox*, UpdateFieldCount> chkCLUpdFields{};

    /// The window's copies of the update options: a box's value counts as soon as it is toggled, by mouse or keyboard.
    const UpdateOptions& Options() const { return options; }

    /// Ticks the boxes.
    void ShowOptions(const UpdateOptions& shown);

private:
    UpdateOptions options;

    QCheckBox* NewBox(QGroupBox* frame, const char* name, std::size_t index, std::int16_t& value);
    void BuildDelete();
    void BuildFields();
};
