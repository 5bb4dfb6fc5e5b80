#include "options/BarCodePanel.h"

#include "app/CFG_2015.h"
#include "options/BarCodes.h"
#include "platform/CodePage.h"
#include "platform/Desktop.h"
#include "platform/widgets/DropDownList.h"
#include "platform/widgets/PathLabel.h"
#include "platform/widgets/ProgramStyle.h"
#include "platform/widgets/TextBox.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QRawFont>
#include <utility>

namespace {

constexpr int DialogFontSize = 12; // points, preset in the font dialog
constexpr int SampleFontSize = 22; // points
constexpr int ResultFontSize = 18;
constexpr int SampleHeight = 64; // logical pixels
constexpr int ButtonWidth = 120;
constexpr int ResultWidth = 150;
constexpr int ResultHeight = 32;

const QString PlainFont = QStringLiteral("MS Sans Serif");

} // namespace

BarCodePanel::BarCodePanel(QWidget* parent, FontSetter setFont)
    : SetupPanel(3, parent), setLabelFont(std::move(setFont)) {
    Column->addWidget(NewExplanation("lblBCA1", this));
    Column->addWidget(NewExplanation("lblBCA2", this));
    AddFontFrame();
    AddFormOptions();
    AddFieldsFrame();
    Column->addStretch();
}

void BarCodePanel::AddFormOptions() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing::Margin);
    row->addWidget(NewLabel("lblBCA3", this));
    for (int i = 0; i < 2; ++i) {
        auto* option = NewControl<QRadioButton>(IndexedName("optBCADflt", i), this);
        optBCADflt.at(static_cast<std::size_t>(i)) = option;
        row->addWidget(option);
    }
    MakeOneTabStop({optBCADflt.begin(), optBCADflt.end()});
    row->addStretch();
    Column->addLayout(row);
}

void BarCodePanel::AddFontFrame() {
    const Frame frame = NewFrame("fraBCodeFont", this);
    cmdBCAFont = NewButton("cmdBCAFont", frame.Box);
    cmdBCAClear = NewButton("cmdBCAClear", frame.Box);
    lblBCAFontName = NewControl<PathLabel>("lblBCAFontName", frame.Box);
    lblBCAFSample = NewLabel("lblBCAFSample", frame.Box);
    lblBCAFSample->setAlignment(Qt::AlignCenter);
    lblBCAFSample->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    lblBCAFSample->setFixedHeight(SampleHeight); // whatever the font
    lblBCAFSample->setMinimumWidth(1);
    cmdBCAFont->setMinimumWidth(ButtonWidth);
    cmdBCAClear->setMinimumWidth(ButtonWidth);
    auto* row = new QHBoxLayout;
    row->addWidget(cmdBCAFont);
    row->addWidget(cmdBCAClear);
    row->addWidget(lblBCAFontName, 1);
    frame.Column->addLayout(row);
    frame.Column->addWidget(lblBCAFSample);
    Column->addWidget(frame.Box);
    connect(cmdBCAFont, &QPushButton::clicked, this, &BarCodePanel::cmdBCAFont_Click);
    connect(cmdBCAClear, &QPushButton::clicked, this, &BarCodePanel::cmdBCAClear_Click);
}

void BarCodePanel::AddFieldsFrame() {
    const Frame frame = NewFrame("fraBCodeOpts", this);
    frame.Column->addWidget(NewExplanation("lblBCAOpt", frame.Box));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Spacing::Margin);
    grid->setVerticalSpacing(Spacing::Gap / 2);
    int column = 0;
    for (const char* name : {"lblBCAField", "lblBCADesc", "lblBCACode", "lblBCAResult"}) {
        grid->addWidget(NewLabel(name, frame.Box), 0, column++);
    }
    for (int field = 0; field < FieldCount; ++field) {
        AddField(frame.Box, grid, field);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(3, ResultWidth);
    frame.Column->addLayout(grid);
    Column->addWidget(frame.Box);
}

void BarCodePanel::AddField(QWidget* frame, QGridLayout* grid, int field) {
    const auto i = static_cast<std::size_t>(field);
    auto* number = new QLabel(QString::number(field + 1), frame);
    txtBCADesc[i] = NewControl<TextBox>(IndexedName("txtBCADesc", field), frame);
    cboBCACode[i] = NewControl<DropDownList>(IndexedName("cboBCACode", field), frame);
    lblBCCode[i] = NewControl<QLabel>(IndexedName("lblBCCode", field), frame);
    lblBCCode[i]->setTextFormat(Qt::PlainText);
    lblBCCode[i]->setFixedHeight(ResultHeight);
    lblBCCode[i]->setMinimumWidth(1);
    grid->addWidget(number, field + 1, 0, Qt::AlignCenter);
    grid->addWidget(txtBCADesc[i], field + 1, 1);
    grid->addWidget(cboBCACode[i], field + 1, 2);
    grid->addWidget(lblBCCode[i], field + 1, 3);
    connect(cboBCACode[i], &QComboBox::currentIndexChanged, this, [this, i] { cboBCACode_Click(i); });
    txtBCADesc[i]->SetLostFocusRule([this, i] { return txtBCADesc_LostFocus(i); });
}

void BarCodePanel::NameFields(bool french) {
    for (int field = 0; field < FieldCount; ++field) {
        const auto i = static_cast<std::size_t>(field);
        const QString number = QString::number(field + 1);
        txtBCADesc[i]->setAccessibleName(
            (french ? QStringLiteral("Description du champ ") : QStringLiteral("Description of field ")) + number);
        cboBCACode[i]->setAccessibleName(
            (french ? QStringLiteral("Code du champ ") : QStringLiteral("Code of field ")) + number);
    }
}

void BarCodePanel::PresetDefaultForm() {
    optBCADflt[0]->setChecked(true);
}

void BarCodePanel::Load() {
    for (std::size_t i = 0; i < FieldCount; ++i) {
        const QSignalBlocker quiet(cboBCACode[i]);
        cboBCACode[i]->clear();
        cboBCACode[i]->addItems(BarCodeListTexts());
        cboBCACode[i]->setCurrentIndex(-1);
    }
    optBCADflt[ProgramConfig.BarCodeDefaultForm == 1 ? 1 : 0]->setChecked(true);
    lblBCAFontName->setText(ProgramConfig.BarCodeFontName);
    for (std::size_t i = 0; i < FieldCount; ++i) {
        txtBCADesc[i]->setText(ProgramConfig.BarCodeDesc[i]);
        cboBCACode[i]->setCurrentIndex(BarCodeIndex(ProgramConfig.BarCodeCode[i]));
    }
    CheckFont();
}

void BarCodePanel::Save() const {
    const bool withFont = !ProgramConfig.BarCodeFontName.isEmpty();
    const std::int16_t form = withFont && optBCADflt[1]->isChecked() ? 1 : 0;
    ProgramConfig.BarCodeDefaultForm = form;
    ProgramConfig.BarCodeDefaultFormCopy = form;
    if (!withFont) {
        ProgramConfig.BarCodeCode = {};
        ProgramConfig.BarCodeDesc = {};
    }
}

void BarCodePanel::cboBCACode_Click(std::size_t field) {
    const std::int16_t before = ProgramConfig.BarCodeCode[field];
    ProgramConfig.BarCodeCode[field] = BarCodeOfText(cboBCACode[field]->currentText());
    FollowCode(field, before);
    lblBCCode[field]->setText(BarCodeResult(ProgramConfig.BarCodeCode[field]));
}

// A field without a code has no description. The last one comes back when a code is chosen again, so that passing over
// "[None]" with the keyboard loses nothing. Every other code keeps what was typed.
void BarCodePanel::FollowCode(std::size_t field, std::int16_t before) {
    const std::int16_t code = ProgramConfig.BarCodeCode[field];
    TextBox* box = txtBCADesc[field];
    if (code == NoBarCode && before != NoBarCode) {
        lastDescription[field] = box->text();
        box->clear();
    } else if (code != NoBarCode && before == NoBarCode && box->text().isEmpty()) {
        box->setText(lastDescription[field]);
    }
    box->setEnabled(code != NoBarCode || !box->text().isEmpty());
    ProgramConfig.BarCodeDesc[field] = box->text();
}

bool BarCodePanel::txtBCADesc_LostFocus(std::size_t field) {
    QString description = TrimBlanks(txtBCADesc[field]->text());
    txtBCADesc[field]->setText(description);
    CheckInputText(description, 0, 0, QString(), 0);
    if (ErrorPosition != 0) {
        return false;
    }
    ProgramConfig.BarCodeDesc[field] = description;
    return true;
}

void BarCodePanel::cmdBCAFont_Click() {
    const FontDialogAnswer answer = TheDesktop().AskForFont(ProgramConfig.BarCodeFontName, DialogFontSize);
    if (!answer.Error) {
        ProgramConfig.BarCodeFontName = answer.FontName;
        lblBCAFontName->setText(answer.FontName);
        CheckFont();
    }
}

void BarCodePanel::cmdBCAClear_Click() {
    ProgramConfig.BarCodeFontName.clear();
    lblBCAFontName->setText(QString());
    CheckFont();
}

// A font that the machine lacks is drawn in another one, which the sample shows. One that the machine lists and yet
// cannot draw with is broken.
bool BarCodePanel::SetLabelFont(QLabel& label, const QString& name, int points) {
    const QFont font(name, points, QFont::Normal);
    label.setFont(font);
    const QRawFont drawn = QRawFont::fromFont(font);
    return drawn.isValid() &&
           (!QFontDatabase::hasFamily(name) || drawn.familyName().compare(name, Qt::CaseInsensitive) == 0);
}

void BarCodePanel::CheckFont() {
    if (ProgramConfig.BarCodeFontName.isEmpty()) {
        ShowWithoutFont();
    } else {
        ShowWithFont();
    }
}

void BarCodePanel::ShowWithFont() {
    const QString& name = ProgramConfig.BarCodeFontName;
    optBCADflt[1]->setEnabled(true);
    bool fontWorks = setLabelFont(*lblBCAFSample, name, SampleFontSize);
    for (std::size_t i = 0; i < FieldCount; ++i) {
        fontWorks = setLabelFont(*lblBCCode[i], name, ResultFontSize) && fontWorks;
        lblBCCode[i]->setText(BarCodeResult(ProgramConfig.BarCodeCode[i]));
    }
    lblBCAFSample->setText(QStringLiteral("CHOOSE ANOTHER FONT"));
    if (!fontWorks) {
        ShowNotice(MessageIcon::None, QStringLiteral("FONT ERROR"),
                   QStringLiteral("An error has occurred with the font: ") + name);
    }
}

void BarCodePanel::ShowWithoutFont() {
    optBCADflt[0]->setChecked(true);
    optBCADflt[1]->setEnabled(false);
    lblBCAFSample->clear();
    setLabelFont(*lblBCAFSample, PlainFont, ResultFontSize);
    for (QLabel* result : lblBCCode) {
        result->clear();
        setLabelFont(*result, PlainFont, ResultFontSize);
    }
}
