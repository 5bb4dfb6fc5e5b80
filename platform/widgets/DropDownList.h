#pragma once

#include <QComboBox>

/// A drop-down list that nothing changes by accident: the mouse wheel only while it has the focus, and letters only
/// without Alt, so that an access key which no control has does not choose an entry.
class DropDownList : public QComboBox {
    Q_OBJECT

public:
    explicit DropDownList(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};
