#pragma once

#include "options/PanelParts.h"

#include <array>

class QCheckBox;
class QRadioButton;

/// Panel 4: the printer dialog box and the width of thick lines.
class PrinterPanel : public SetupPanel {
    Q_OBJECT

public:
    explicit PrinterPanel(QWidget* parent);

    void LoadThickLines();
    void LoadDialogBox();
    void Save() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    QCheckBox* chkHCDialog;
    std::array<QRadioButton*, 10> optThickLine{}; // option i stands for width i + 2

    void AddDialogFrame();
    void AddLinesFrame();
    void DrawLines();
};
