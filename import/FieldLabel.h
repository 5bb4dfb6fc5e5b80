#pragma once

#include <QLabel>

/// A field of the field list: pressed, double clicked, dragged with the mouse, or worked by the keyboard.
class FieldLabel : public QLabel {
    Q_OBJECT

public:
    FieldLabel(int field, QWidget* parent);

    int Field() const { return field; }

    /// A used field is bold and disabled.
    void SetUsed(bool used);

    /// What a drag carries under the pointer: the caption on the highlight colour.
    QPixmap DragPicture() const;

Q_SIGNALS:
    void Pressed();
    void DoubleClicked();
    void Dragged(); ///< the pressed mouse moved far enough to start a drag
    void Entered(); ///< Enter or Space
    void FocusMoved(bool here);
    void MoveKey(int key);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int field;
    bool mayDrag = false;
    QPoint pressedAt;
};
