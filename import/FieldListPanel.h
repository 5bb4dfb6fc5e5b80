#pragma once

#include "import/FieldLabel.h"
#include "import/FieldMatching.h"

#include <QFrame>

/// The list of the gradebook's fields. Tab reaches it once; the arrow keys move within it, Enter or Space matches.
class FieldListPanel : public QFrame {
    Q_OBJECT

public:
    explicit FieldListPanel(QWidget* parent = nullptr);

    /// The labels, indexed from 1; entry 0 is null.
    std::array<FieldLabel*, FieldCount + 1> lblFieldList{};

    /// Shows the captions and which fields are used. The focus leaves a field that becomes used.
    void ShowFields(const FieldMatching& matching);

    /// Starts the drag of a field; returns when it is over.
    void Drag(int field);

    /// Whether the place that the next field goes to is of interest: a field is dragged or has the focus.
    bool IsAiming() const { return dragging || focused; }

    /// The kind of data that a dragged field is.
    static QString FieldMimeType();

    /// A font that fits the low rows of the list and the preview.
    static QFont SmallFont(QFont font);

Q_SIGNALS:
    void Pressed(int field);
    void DoubleClicked(int field);
    void Dragged(int field);
    void Entered(int field);
    void AimChanged();

private:
    int tabStop = 1; // the field that Tab reaches
    bool dragging = false;
    bool focused = false;

    void Connect(FieldLabel* label);
    void MakeTabStop(int field);
    void FocusMoved(int field, bool here);
    void Move(int from, int key);
    int NextFree(int from, int step) const;
};
