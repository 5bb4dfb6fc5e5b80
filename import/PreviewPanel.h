#pragma once

#include "import/FieldListPanel.h"
#include "import/ImportGrid.h"
#include "import/RecordSpinner.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

/// The data of the import file beside the field list, with what belongs to both below: the spinner, the match count,
/// Clear Last and Clear All, and a line for what is odd about the file.
class PreviewPanel : public QWidget {
    Q_OBJECT

public:
    explicit PreviewPanel(QWidget* parent = nullptr);

    QLabel* lblHelp1;
    ImportGrid* grdImport;
    QLabel* lblFields;
    FieldListPanel* pnlFieldList;
    RecordSpinner* spnRecords;
    QLabel* lblRecordCount;
    QLabel* lblMatched;
    QLabel* imgLoading; ///< shown while the file is read
    QProgressBar* prgLoading;
    QPushButton* cmdClearMatch;
    QPushButton* cmdClearAll;
    QLabel* lblHelp3;
    QLabel* lblNotice; ///< empty for an ordinary file

    /// Shows the loading picture and bar in place of the spinner and the record caption, or hides them.
    void ShowLoading(bool loading);

    /// "Record 3 of 120".
    void ShowRecordNumber(std::int64_t record, std::int64_t count);

    /// Shows the matches in grid and list, and marks where the next one goes.
    void ShowMatching(const FieldMatching& matching);

    /// "Matched: 2 of 8".
    void ShowMatchCount(int matches, int fields);

    /// Shows the line about what is odd; an empty one takes no room.
    void ShowNotice(const QString& notice);

    /// Marks the row that the next field goes to, while a field is dragged or has the focus.
    void MarkNextRow(const FieldMatching& matching);

private:
    void BuildLayout();
    QLayout* BuildTop();
    QLayout* BuildRow();
};
