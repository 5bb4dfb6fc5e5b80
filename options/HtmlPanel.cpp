#include "options/HtmlPanel.h"

#include "app/CFG_2015.h"
#include "options/FolderRule.h"
#include "options/HtmlFileName.h"
#include "options/PathTexts.h"
#include "platform/CodePage.h"
#include "platform/Desktop.h"
#include "platform/ProgramPath.h"
#include "platform/widgets/DropDownList.h"
#include "platform/widgets/PathLabel.h"
#include "platform/widgets/ProgramStyle.h"
#include "platform/widgets/TextBox.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int SchoolWidth = 160; // logical pixels
constexpr int SeparatorWidth = 60;

const QString RefusedInNames = QStringLiteral("/\\:*?<>|");

} // namespace

HtmlPanel::HtmlPanel(QWidget* parent) : SetupPanel(5, parent) {
    AddExplanations();
    AddNameFrame();
    AddFolderFrame();
    Column->addStretch();
    ConnectControls();
}

void HtmlPanel::AddExplanations() {
    for (const char* name : {"lblHTML1", "lblHTML2", "lblHTML3", "lblHTML4"}) {
        Column->addWidget(NewExplanation(name, this));
    }
}

void HtmlPanel::AddNameFrame() {
    const Frame frame = NewFrame("fraHTML_FileCode", this);
    txtHTML_School = NewControl<TextBox>("txtHTML_School", frame.Box);
    txtHTML_File_Sep1 = NewControl<TextBox>("txtHTML_File_Sep1", frame.Box);
    txtHTML_File_Sep2 = NewControl<TextBox>("txtHTML_File_Sep2", frame.Box);
    cboHTML_FileNameOrder = NewControl<DropDownList>("cboHTML_FileNameOrder", frame.Box);
    lblHTML_FileNameExample = NewControl<PathLabel>("lblHTML_FileNameExample", frame.Box);
    txtHTML_School->setFixedWidth(SchoolWidth);
    txtHTML_File_Sep1->setFixedWidth(SeparatorWidth);
    txtHTML_File_Sep2->setFixedWidth(SeparatorWidth);
    QFont bold = lblHTML_FileNameExample->font();
    bold.setBold(true);
    lblHTML_FileNameExample->setFont(bold);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Spacing::Gap);
    grid->setVerticalSpacing(Spacing::Gap);
    grid->setColumnStretch(1, 1);
    AddNameRow(grid, "lblSchoolID", txtHTML_School, "lblSep5");
    AddNameRow(grid, "lblSep1", txtHTML_File_Sep1, "lblSep6");
    AddNameRow(grid, "lblSep2", txtHTML_File_Sep2, "lblSep7");
    AddNameRow(grid, "lblSep3", cboHTML_FileNameOrder, nullptr);
    grid->addWidget(NewLabel("lblSep4", frame.Box), grid->rowCount(), 0);
    grid->addWidget(lblHTML_FileNameExample, grid->rowCount() - 1, 1);
    frame.Column->addLayout(grid);
    frame.Column->addWidget(NewExplanation("lblSep8", frame.Box));
    frame.Column->addWidget(NewExplanation("lblSep9", frame.Box));
    frame.Column->addWidget(NewExplanation("lblSep10", frame.Box));
    Column->addWidget(frame.Box);
}

void HtmlPanel::AddNameRow(QGridLayout* grid, const char* caption, QWidget* control, const char* note) {
    const int row = grid->rowCount();
    QWidget* frame = control->parentWidget();
    auto* cells = new QHBoxLayout;
    cells->setSpacing(Spacing::Margin);
    cells->addWidget(control);
    if (note != nullptr) {
        cells->addWidget(NewLabel(note, frame));
    }
    cells->addStretch();
    grid->addWidget(NewLabel(caption, frame, control), row, 0);
    grid->addLayout(cells, row, 1);
}

void HtmlPanel::AddFolderFrame() {
    const Frame frame = NewFrame("fraHTML_Path", this);
    frame.Column->addWidget(NewExplanation("lblSR1", frame.Box));
    folder = AddFolderRow(frame, {"lblSR2", "lblHTML_Path", "cmdHTML_Browse", "cmdHTML_Clear"});
    Column->addWidget(frame.Box);
    connect(folder.Browse, &QPushButton::clicked, this, &HtmlPanel::cmdHTML_Browse_Click);
    connect(folder.Clear, &QPushButton::clicked, this, [this] { folder.Path->setText(QString()); });
}

void HtmlPanel::ConnectControls() {
    connect(cboHTML_FileNameOrder, &QComboBox::currentIndexChanged, this, &HtmlPanel::cboHTML_FileNameOrder_Click);
    txtHTML_File_Sep1->SetLostFocusRule(
        [this] { return LeaveSeparator(*txtHTML_File_Sep1, ProgramConfig.HTMLFileSep1); });
    txtHTML_File_Sep2->SetLostFocusRule(
        [this] { return LeaveSeparator(*txtHTML_File_Sep2, ProgramConfig.HTMLFileSep2); });
    txtHTML_School->SetLostFocusRule([this] { return txtHTML_School_LostFocus(); });
}

void HtmlPanel::FillOrders() {
    {
        const QSignalBlocker quiet(cboHTML_FileNameOrder);
        cboHTML_FileNameOrder->clear();
        cboHTML_FileNameOrder->addItems(HtmlOrderTexts());
        cboHTML_FileNameOrder->setCurrentIndex(-1);
    }
    if (ProgramConfig.HTMLFileNameOrder >= 0 && ProgramConfig.HTMLFileNameOrder < HtmlOrderCount) {
        cboHTML_FileNameOrder->setCurrentIndex(ProgramConfig.HTMLFileNameOrder);
    }
}

void HtmlPanel::Load() {
    ProgramConfig.HTMLPath = LowerCase(ProgramConfig.HTMLPath);
    folder.Path->setText(ProgramConfig.HTMLPath);
    txtHTML_School->setText(ProgramConfig.HTMLSchool);
    txtHTML_File_Sep1->setText(ProgramConfig.HTMLFileSep1);
    txtHTML_File_Sep2->setText(ProgramConfig.HTMLFileSep2);
}

void HtmlPanel::Save() const {
    ProgramConfig.HTMLPath = folder.Path->text();
}

void HtmlPanel::HTML_FileNameConstruct(QString& s, const QString& C, const QString& KidNumb, QString& Sp1, QString& Sp2,
                                       std::int16_t& Order) {
    ConstructHtmlFileName(s, C, KidNumb, Sp1, Sp2, Order, exampleName);
}

void HtmlPanel::ShowExample() {
    HTML_FileNameConstruct(ProgramConfig.HTMLSchool, QStringLiteral("CourseCode"), QStringLiteral("StudentID"),
                           ProgramConfig.HTMLFileSep1, ProgramConfig.HTMLFileSep2, ProgramConfig.HTMLFileNameOrder);
    lblHTML_FileNameExample->setText(exampleName);
}

void HtmlPanel::cboHTML_FileNameOrder_Click() {
    const int chosen = cboHTML_FileNameOrder->currentIndex();
    if (chosen >= 0) {
        ProgramConfig.HTMLFileNameOrder = static_cast<std::int16_t>(chosen);
        ShowExample();
    }
}

bool HtmlPanel::LeaveSeparator(TextBox& box, QString& separator) {
    QString text = TrimBlanks(box.text());
    CheckInputText(text, 0, 0, RefusedInNames, 0);
    if (ErrorPosition != 0) {
        return false;
    }
    box.setText(text);
    separator = text;
    ShowExample();
    return true;
}

bool HtmlPanel::txtHTML_School_LostFocus() {
    QString school = TrimBlanks(txtHTML_School->text());
    CheckInputText(school, 0, 0, QString(), 0);
    if (ErrorPosition != 0) {
        return false;
    }
    txtHTML_School->setText(school);
    ProgramConfig.HTMLSchool = school;
    ProgramConfig.HTMLFileSep1 = txtHTML_File_Sep1->text();
    ProgramConfig.HTMLFileSep2 = txtHTML_File_Sep2->text();
    ShowExample();
    return true;
}

void HtmlPanel::cmdHTML_Browse_Click() {
    ShowNotice(MessageIcon::Information, QStringLiteral("Select HTML Report Folder"), HtmlFolderNotice());
    FileDialog dialog;
    dialog.DialogKind = FileDialog::Kind::Save;
    dialog.Title = QStringLiteral("Locate Gradewell Data Folders");
    dialog.Filter = QStringLiteral("All Files (*.*)|*.*");
    dialog.FileName = DummyFileIn(folder.Path->text());
    const FileDialogAnswer answer = TheDesktop().AskForFile(dialog);
    const QString picked = PickedFolder(answer.FileName);
    if (!answer.Error && !picked.isEmpty()) {
        folder.Path->setText(LowerCase(picked));
        ProgramConfig.HTMLPath = folder.Path->text();
    }
}
