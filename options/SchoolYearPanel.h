#pragma once

#include "options/PanelParts.h"

#include <array>

class DropDownList;
class QRadioButton;

/// Panel 1: the month in which the school year starts and the date format.
class SchoolYearPanel : public SetupPanel {
    Q_OBJECT

public:
    explicit SchoolYearPanel(QWidget* parent);

    /// Fills the month list with its one entry and writes today's date in each format. A stored format outside 1 to 6
    /// becomes 1.
    void Load();

    /// Puts the chosen format into the settings record, with new date patterns; the school year starts in month 1.
    void Save() const;

private:
    DropDownList* cboSYSM;
    std::array<QRadioButton*, 7> optDFormat{}; // by format code; entry 0 is unused

    void AddYearFrame();
    void AddFormatFrame();
};
