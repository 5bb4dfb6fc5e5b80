#pragma once

#include <QComboBox>

/// A drop-down list that the mouse wheel changes only while it has the focus, so that scrolling past it changes nothing
/// by accident.
class DropDownList : public QComboBox {
    Q_OBJECT

public:
    explicit DropDownList(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
};
