#pragma once

#include <QLabel>

/// A label for a path in a sunken frame: what does not fit is left out in the middle and shown as a tool tip; text()
/// stays whole.
class PathLabel : public QLabel {
    Q_OBJECT

public:
    explicit PathLabel(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The room for the text in the label.
    QRect TextRoom() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};
