#pragma once

#include <QLabel>

/// A label for a path: what does not fit is left out in the middle and shown as a tool tip; text() stays whole.
class FileNameLabel : public QLabel {
    Q_OBJECT

public:
    explicit FileNameLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};
