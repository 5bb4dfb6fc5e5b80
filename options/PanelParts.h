#pragma once

#include <QGroupBox>
#include <QString>

class QBoxLayout;
class QLabel;
class QPushButton;
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

/// One of the seven panels: a framed area with a column.
class SetupPanel : public QGroupBox {
    Q_OBJECT

public:
    SetupPanel(int index, QWidget* parent);

protected:
    QVBoxLayout* const Column;
};
