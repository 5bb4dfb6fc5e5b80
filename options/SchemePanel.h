#pragma once

#include "options/PanelParts.h"
#include "options/SchemeFile.h"
#include "platform/Desktop.h"

class DropDownList;
class QPushButton;
class SchemeFields;
class TextBox;

/// Panel 6: the editor of one grade / level scheme. It starts with the default scheme of the settings record and writes
/// to scheme files only, never to the record.
class SchemePanel : public SetupPanel {
    Q_OBJECT

public:
    explicit SchemePanel(QWidget* parent);

    /// Fills the editor from the default scheme.
    void Load();

    /// The language of the lowest symbol's label and of what a screen reader says.
    void SetLanguage(bool french);

    /// True when a symbol or value was edited since the last successful Save Scheme.
    bool IsChanged() const { return changed; }

    void cmdSaveScheme_Click();

private:
    SchemeFields* fields;
    DropDownList* cboABCLevels;
    TextBox* txtABCHeading;
    QPushButton* cmdLoadScheme;
    QPushButton* cmdClearScheme;
    QPushButton* cmdSaveScheme;
    QPushButton* cmdABCCheck;
    QString schemeFolder; // with a trailing backslash
    bool changed = false;
    bool inFrench = false;

    void AddControls();
    QWidget* NewSide();
    void ConnectControls();
    int Highest() const;
    void ChooseLevels(int highest);
    void Show(const Scheme& scheme);
    QString Check();
    bool txtABCHeading_LostFocus();
    FileDialogAnswer AskForScheme(FileDialog::Kind kind, const QString& title);
    void cmdABCCheck_Click();
    void cmdClearScheme_Click();
    void cmdLoadScheme_Click();
};
