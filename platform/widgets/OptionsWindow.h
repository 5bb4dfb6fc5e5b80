#pragma once

#include <QDialog>

/// What the options windows share: 800 x 600 logical pixels (12000 x 9000 twips), or more where a desktop's font needs
/// it, and modal. Enter works the button that has the focus and nothing else; Escape and the window's close button are
/// Cancel (reject).
class OptionsWindow : public QDialog {
    Q_OBJECT

public:
    /// `name` becomes the object name.
    OptionsWindow(const char* name, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

    /// Grows where what is shown needs more room than the window has; again when other controls are shown.
    void KeepContentsWhole();
};
