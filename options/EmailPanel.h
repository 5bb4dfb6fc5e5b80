#pragma once

#include "options/PanelParts.h"

class TextBox;

/// Panel 2: the mail server.
class EmailPanel : public SetupPanel {
    Q_OBJECT

public:
    explicit EmailPanel(QWidget* parent);

    void Load();
    void Save() const;

private:
    TextBox* txtSMTP;

    bool txtSMTP_LostFocus();
};
