#pragma once

#include <QPushButton>

/// The button of a panel in the list of panels: its text begins at the left; the current one is bold, pressed in and
/// marked by a bar.
class PanelButton : public QPushButton {
    Q_OBJECT

public:
    explicit PanelButton(QWidget* parent = nullptr);

    void ShowAsCurrent(bool current);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
