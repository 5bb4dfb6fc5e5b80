#pragma once

#include <QStringList>
#include <QTableWidget>

/// The preview of one record: a row a field, with the field's number, its text and the gradebook's field matched to it.
/// A field of the list can be dropped on it.
class ImportGrid : public QTableWidget {
    Q_OBJECT

public:
    static constexpr int NumberColumn = 0;
    static constexpr int TextColumn = 1;
    static constexpr int MatchColumn = 2;
    static constexpr int GreatestHeight = 229; ///< in logical pixels, the frame included
    static constexpr int NoRow = -1;

    explicit ImportGrid(QWidget* parent = nullptr);

    /// The width with the bar that scrolls more rows than can be seen.
    int GreatestWidth() const;

    /// As many rows as a record has fields, numbered, without matches; at most 15 are seen at once. Without a
    /// row the grid is an empty box.
    void SetRows(int count);

    /// The texts of a record; rows beyond its fields keep theirs, fields beyond the rows are not shown.
    void ShowFields(const QStringList& fields);

    /// Shows " <-- " and a name in a row (from 0); nothing for an empty name.
    void ShowMatch(int row, const QString& name);

    /// The row that the next field goes to, NoRow when none is free: only then is a drag refused. A marked row is shown
    /// as such and brought into view.
    void SetNextRow(int row, bool marked);
    int MarkedRow() const { return isMarked ? nextRow : NoRow; }

Q_SIGNALS:
    void FieldDropped();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    int nextRow = NoRow;
    bool isMarked = false;

    void SetText(int row, int column, const QString& text);
    bool Takes(const QDropEvent& event) const;
};
