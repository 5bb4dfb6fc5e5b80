#pragma once

#include <QGroupBox>
#include <QList>
#include <QString>

class PathLabel;
class QBoxLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

/// Parts that the panels of General Options are made of, so that all look alike.

/// The name of an element of an array of controls: "txtABCChr(18)".
QString IndexedName(const char* array, int index);

/// A new control with its object name.
template <typename Control>
Control* NewControl(const QString& name, QWidget* parent) {
    auto* control = new Control(parent);
    control->setObjectName(name);
    return control;
}

template <typename Control>
Control* NewControl(const char* name, QWidget* parent) {
    return NewControl<Control>(QString::fromLatin1(name), parent);
}

/// A label of a few words; `buddy` is the control that it names.
QLabel* NewLabel(const char* name, QWidget* parent, QWidget* buddy = nullptr);

/// A label of whole sentences, broken into lines.
QLabel* NewExplanation(const char* name, QWidget* parent);

/// A button that Enter in another control does not press.
QPushButton* NewButton(const char* name, QWidget* parent);

/// A frame with its title and a column for what is in it.
struct Frame {
    QGroupBox* Box;
    QVBoxLayout* Column;
};
Frame NewFrame(const char* name, QWidget* parent);

/// A chosen folder in one row of a frame: caption, path, Browse and Clear.
struct FolderRowNames {
    const char* Caption;
    const char* Path;
    const char* Browse;
    const char* Clear;
};
struct FolderRow {
    PathLabel* Path;
    QPushButton* Browse;
    QPushButton* Clear;

    /// What a screen reader says for the buttons: their captions, and what the folder is for in brackets.
    void NameButtons(const QString& purpose) const;
};
FolderRow AddFolderRow(const Frame& frame, const FolderRowNames& names);

/// Makes options of which one is chosen a single stop of Tab: the chosen one, or the first as long as none is.
void MakeOneTabStop(const QList<QRadioButton*>& options);

/// Gives a control the accessible name of its caption, without colon and access key, and what it is for in brackets
/// (may be empty).
void NameByCaption(QWidget& control, QString caption, const QString& purpose);

/// One of the seven panels: a framed area with a column.
class SetupPanel : public QGroupBox {
    Q_OBJECT

public:
    SetupPanel(int index, QWidget* parent);

protected:
    QVBoxLayout* const Column;
};
