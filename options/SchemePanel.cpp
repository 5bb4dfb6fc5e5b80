#include "options/SchemePanel.h"

#include "app/CFG_2015.h"
#include "options/SchemeCheck.h"
#include "options/SchemeFields.h"
#include "platform/CodePage.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/ProgramPath.h"
#include "platform/widgets/DropDownList.h"
#include "platform/widgets/ProgramStyle.h"
#include "platform/widgets/TextBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int FewestLevels = 2;

const QString ProblemsFound = QStringLiteral("The following problems were found: \n\n");

FileDialog SchemeDialog(FileDialog::Kind kind, const QString& title, const QString& folder) {
    FileDialog dialog;
    dialog.DialogKind = kind;
    dialog.Title = title;
    dialog.Filter = QStringLiteral("Schemes (*.scm)|*.scm");
    dialog.FileName = folder;
    dialog.DefaultExtension = QStringLiteral(".scm");
    dialog.OverwritePrompt = kind == FileDialog::Kind::Save;
    return dialog;
}

void ReportLoadError(const QString& fileName, const SystemError& error) {
    ShowNotice(MessageIcon::Critical, QStringLiteral("LOAD SCHEME ERROR: ") + QString::number(error.Number),
               QStringLiteral("Can't Load: ") + fileName + QStringLiteral("\n\nThe error is: ") + error.Description +
                   QStringLiteral("\n\nThis file may be UNUSABLE!!"));
}

void ReportSaveError(const QString& fileName, const SystemError& error) {
    ShowNotice(MessageIcon::Critical, QStringLiteral("SAVE SCHEME ERROR: ") + QString::number(error.Number),
               QStringLiteral("Can't Save: ") + fileName + QStringLiteral("\n\nThe error is: ") + error.Description);
}

} // namespace

SchemePanel::SchemePanel(QWidget* parent)
    : SetupPanel(6, parent), fields(new SchemeFields(this)),
      cboABCLevels(NewControl<DropDownList>("cboABCLevels", this)),
      txtABCHeading(NewControl<TextBox>("txtABCHeading", this)), cmdLoadScheme(NewButton("cmdLoadScheme", this)),
      cmdClearScheme(NewButton("cmdClearScheme", this)), cmdSaveScheme(NewButton("cmdSaveScheme", this)),
      cmdABCCheck(NewButton("cmdABCCheck", this)), schemeFolder(ProgramFolder + u'\\') {
    AddControls();
    ConnectControls();
    setTabOrder(txtABCHeading, cboABCLevels);
    setTabOrder(cboABCLevels, cmdLoadScheme);
    setTabOrder(cmdLoadScheme, cmdSaveScheme);
    setTabOrder(cmdSaveScheme, cmdClearScheme);
    setTabOrder(cmdClearScheme, cmdABCCheck);
}

void SchemePanel::AddControls() {
    for (const char* name : {"lblScheme1", "lblScheme2", "lblScheme3"}) {
        Column->addWidget(NewExplanation(name, this));
    }
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing::Margin);
    row->addWidget(fields);
    row->addWidget(NewSide(), 1);
    Column->addSpacing(Spacing::Gap);
    Column->addLayout(row);
    Column->addStretch();
}

// Heading, number of levels and buttons beside the pairs.
QWidget* SchemePanel::NewSide() {
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Spacing::Gap);
    const auto addNamed = [this, column](const char* caption, QWidget* control) {
        column->addWidget(NewLabel(caption, this, control));
        column->addSpacing(2 - column->spacing());
        column->addWidget(control);
    };
    addNamed("lblABCHeading", txtABCHeading);
    addNamed("lblScheme4", cboABCLevels);
    column->addSpacing(Spacing::Margin);
    for (QPushButton* button : {cmdLoadScheme, cmdSaveScheme, cmdClearScheme, cmdABCCheck}) {
        column->addWidget(button);
    }
    column->addStretch();
    return side;
}

void SchemePanel::ConnectControls() {
    const auto click = [this] { fields->SetHighest(Highest()); };
    connect(cboABCLevels, &QComboBox::currentIndexChanged, this, click);
    connect(cboABCLevels, &QComboBox::activated, this, click); // the entry that was chosen before counts, too
    connect(cmdLoadScheme, &QPushButton::clicked, this, &SchemePanel::cmdLoadScheme_Click);
    connect(cmdClearScheme, &QPushButton::clicked, this, &SchemePanel::cmdClearScheme_Click);
    connect(cmdSaveScheme, &QPushButton::clicked, this, &SchemePanel::cmdSaveScheme_Click);
    connect(cmdABCCheck, &QPushButton::clicked, this, &SchemePanel::cmdABCCheck_Click);
    connect(fields, &SchemeFields::Edited, this, [this] { changed = true; });
    connect(fields, &SchemeFields::SecondValueLeft, this,
            [this](const QString& value) { fields->lblABCLow->setText(LowestSymbolText(value, inFrench)); });
    txtABCHeading->SetLostFocusRule([this] { return txtABCHeading_LostFocus(); });
}

int SchemePanel::Highest() const {
    return cboABCLevels->currentIndex() + 1;
}

// As a click on the entry of that many levels, also when it is selected already.
void SchemePanel::ChooseLevels(int highest) {
    const QSignalBlocker once(cboABCLevels);
    cboABCLevels->setCurrentIndex(highest - 1);
    fields->SetHighest(Highest());
}

void SchemePanel::SetLanguage(bool french) {
    inFrench = french;
    fields->NameFields(french);
}

void SchemePanel::Load() {
    Scheme scheme{ProgramConfig.SchemeHeading, {}};
    const int highest = std::clamp<int>(ProgramConfig.SchemeLast, 1, HighestSchemePosition);
    {
        const QSignalBlocker quiet(cboABCLevels);
        cboABCLevels->clear();
        for (int levels = FewestLevels; levels <= SchemeFields::Count; ++levels) {
            cboABCLevels->addItem(QString::number(levels));
        }
    }
    for (std::size_t p = 0; p <= static_cast<std::size_t>(highest); ++p) {
        scheme.Pairs.push_back({ProgramConfig.SchemeSymbol[p], QString::number(ProgramConfig.SchemeValue[p])});
    }
    Show(scheme);
    changed = false;
}

void SchemePanel::Show(const Scheme& scheme) {
    txtABCHeading->setText(scheme.Heading);
    ChooseLevels(static_cast<int>(scheme.Pairs.size()) - 1);
    for (std::size_t p = 0; p < scheme.Pairs.size(); ++p) {
        fields->Put(static_cast<int>(p), scheme.Pairs[p]);
    }
    fields->lblABCLow->setText(LowestSymbolText(scheme.Pairs[1].Value, inFrench));
}

QString SchemePanel::Check() {
    const SchemeProblems problems = CheckScheme(fields->Pairs(Highest()));
    fields->ShowProblems(problems, Highest());
    return problems.Report;
}

bool SchemePanel::txtABCHeading_LostFocus() {
    QString heading = TrimBlanks(txtABCHeading->text());
    txtABCHeading->setText(heading);
    CheckInputText(heading, 0, 0, QString(), 0);
    return ErrorPosition == 0;
}

void SchemePanel::cmdABCCheck_Click() {
    const QString report = Check();
    ShowNotice(MessageIcon::Information, QStringLiteral("LEVELS CHECK"),
               report.isEmpty() ? QStringLiteral("No problems found.") : ProblemsFound + report);
}

void SchemePanel::cmdClearScheme_Click() {
    fields->EmptyAll();
    fields->SetHighest(Highest());
    fields->lblABCLow->setText(LowestSymbolUnknownText(inFrench));
}

// The dialog opens where the last scheme was, at first in the program folder: that is where the gradebook looks.
FileDialogAnswer SchemePanel::AskForScheme(FileDialog::Kind kind, const QString& title) {
    FileDialogAnswer answer = TheDesktop().AskForFile(SchemeDialog(kind, title, schemeFolder));
    if (!answer.Error) {
        schemeFolder = FolderOf(answer.FileName) + u'\\';
    }
    return answer;
}

void SchemePanel::cmdSaveScheme_Click() {
    const QString report = Check();
    if (!report.isEmpty()) {
        ShowNotice(MessageIcon::Critical, QStringLiteral("SCHEME ERROR"),
                   ProblemsFound + report + QStringLiteral("\n\nPlease correct and try again."));
        return;
    }
    QString heading = txtABCHeading->text();
    CheckInputText(heading, 1, 0, QString(), 0); // a heading from a file was not typed
    if (ErrorPosition != 0 || !fields->TextsCanBeSaved(Highest())) {
        return;
    }
    const FileDialogAnswer answer = AskForScheme(FileDialog::Kind::Save, QStringLiteral("Save Scheme"));
    if (answer.Error) {
        return;
    }
    const Scheme scheme{txtABCHeading->text(), fields->Pairs(Highest())};
    const SystemError failure = RunSave([&] { return SaveWholeFile(answer.FileName, WriteSchemeText(scheme)); });
    if (failure) {
        ReportSaveError(answer.FileName, failure);
        return;
    }
    changed = false;
}

void SchemePanel::cmdLoadScheme_Click() {
    const FileDialogAnswer answer = AskForScheme(FileDialog::Kind::Open, QStringLiteral("Load a Scheme"));
    if (answer.Error) {
        return;
    }
    const FileContents file = ReadWholeFile(answer.FileName);
    if (file.Error) {
        ReportLoadError(answer.FileName, file.Error);
        return;
    }
    const SchemeReading reading = ReadSchemeText(file.Bytes);
    if (reading.Error) {
        ReportLoadError(answer.FileName, reading.Error.Error);
    } else if (reading.InvalidData) {
        ShowNotice(MessageIcon::Critical, QStringLiteral("INVALID DATA"),
                   QStringLiteral("Sorry!  Invalid data has been detected in this scheme."));
    } else {
        Show(reading.Read);
    }
}
