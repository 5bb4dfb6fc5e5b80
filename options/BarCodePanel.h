#pragma once

#include "options/PanelParts.h"

#include <array>
#include <cstdint>
#include <functional>

class DropDownList;
class PathLabel;
class QGridLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class TextBox;

/// Panel 3: the bar code font, the default attendance form and the three optional codes. Font name, codes and
/// descriptions go into the settings record at once, the default form on Save.
class BarCodePanel : public SetupPanel {
    Q_OBJECT

public:
    /// Gives a label a font of normal weight, `points` high; false when that fails.
    using FontSetter = std::function<bool(QLabel& label, const QString& name, int points)>;

    /// `setFont` stands for the machine's fonts in a test.
    explicit BarCodePanel(QWidget* parent, FontSetter setFont = SetLabelFont);

    /// Sets "No"; Load then sets the stored form.
    void PresetDefaultForm();
    void Load();

    /// Puts the default form into the settings record; without a font no form, codes or descriptions are kept.
    void Save() const;

    /// What a screen reader says for the fields, in the edition's language.
    void NameFields(bool french);

private:
    static constexpr int FieldCount = 3;

    FontSetter setLabelFont;
    std::array<QRadioButton*, 2> optBCADflt{};
    QPushButton* cmdBCAFont;
    QPushButton* cmdBCAClear;
    PathLabel* lblBCAFontName;
    QLabel* lblBCAFSample;
    std::array<TextBox*, FieldCount> txtBCADesc{};
    std::array<DropDownList*, FieldCount> cboBCACode{};
    std::array<QLabel*, FieldCount> lblBCCode{};
    std::array<QString, FieldCount> lastDescription; // of a field whose code became "[None]"

    void AddFormOptions();
    void AddFontFrame();
    void AddFieldsFrame();
    void AddField(QWidget* frame, QGridLayout* grid, int field);
    void cboBCACode_Click(std::size_t field);
    void FollowCode(std::size_t field, std::int16_t before);
    bool txtBCADesc_LostFocus(std::size_t field);
    void cmdBCAFont_Click();
    void cmdBCAClear_Click();
    static bool SetLabelFont(QLabel& label, const QString& name, int points);
    void CheckFont();
    void ShowWithFont();
    void ShowWithoutFont();
};
