#pragma once

#include <QLabel>

/// A label for a path: what does not fit is left out in the middle, and the whole path is shown as a tool tip.
class PathLabel : public QLabel {
    Q_OBJECT

public:
    explicit PathLabel(QWidget* parent = nullptr);

    /// Shows the path; text() is always the whole of it.
    void ShowPath(const QString& path);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
