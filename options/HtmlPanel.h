#pragma once

#include "options/PanelParts.h"

#include <cstdint>

class DropDownList;
class PathLabel;
class QFormLayout;
class QGridLayout;
class TextBox;

/// Panel 5: file names and folder of HTML student reports. School ID, separators, order and a folder chosen with Browse
/// go into the settings record at once.
class HtmlPanel : public SetupPanel {
    Q_OBJECT

public:
    explicit HtmlPanel(QWidget* parent);

    /// Fills the order list anew and selects the stored order, which builds the example. An order outside 0 to 7
    /// selects nothing and is kept.
    void FillOrders();

    void Load();

    /// Puts the folder's label into the settings record.
    void Save() const;

    /// Leaves the file name in the window's example name. All arguments are the settings themselves; with a blank
    /// school ID one of the separators may become empty.
    void HTML_FileNameConstruct(QString& s, const QString& C, const QString& KidNumb, QString& Sp1, QString& Sp2,
                                std::int16_t& Order);

private:
    TextBox* txtHTML_School;
    TextBox* txtHTML_File_Sep1;
    TextBox* txtHTML_File_Sep2;
    DropDownList* cboHTML_FileNameOrder;
    PathLabel* lblHTML_FileNameExample;
    FolderRow folder;
    QString exampleName;

    void AddExplanations();
    void AddNameFrame();
    void AddNameRow(QGridLayout* grid, const char* caption, QWidget* control, const char* note);
    void AddFolderFrame();
    void ConnectControls();
    void ShowExample();
    void cboHTML_FileNameOrder_Click();
    bool LeaveSeparator(TextBox& box, QString& separator);
    bool txtHTML_School_LostFocus();
    void cmdHTML_Browse_Click();
};
