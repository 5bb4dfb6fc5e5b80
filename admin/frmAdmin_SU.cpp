#include "admin/frmAdmin_SU.h"

#include "admin/AdminTexts.h"
#include "admin/CourseCodeRulesPanel.h"
#include "app/CFG_2015.h"
#include "options/FolderPicker.h"
#include "platform/CodePage.h"
#include "platform/widgets/ProgramStyle.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr FolderPickerNames PickerNames = {"drvHDir_Admin",   "dirHDir_Admin", "lblAdminPath", "cmdAdminPath",
                                           "cmdClrAdminPath", "lblDrive",      "lblFolder",    "lblCurrent"};

FolderPickerRules PickerRules() {
    FolderPickerRules rules;
    rules.NoticeTitle = QString::fromUtf8(AdminBrowseTitle);
    rules.NoticeText = AdminBrowseText(ProductName);
    rules.DialogTitle = QString::fromUtf8(AdminBrowseTitle);
    rules.PathMustExist = true;
    rules.FolderRuleTitle = QStringLiteral("Gradewell Path Error");
    rules.DropUnreadable = true;
    rules.DriveErrorLoud = true;
    rules.BrowseClearsDrive = true;
    return rules;
}

} // namespace

frmAdmin_SU::frmAdmin_SU(QWidget* parent) : OptionsWindow("frmAdmin_SU", parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Spacing::Margin, Spacing::Margin, Spacing::Margin, Spacing::Margin);
    column->setSpacing(Spacing::Gap);
    column->addWidget(MakePathPanel(), 1); // made in the order of Tab
    pnlRules = new CourseCodeRulesPanel(this);
    column->addWidget(pnlRules);
    column->addWidget(MakeButtons());
    SpeakEnglish_Admin();
    LoadAdminPath();
    pnlRules->Load();
}

QWidget* frmAdmin_SU::MakePathPanel() {
    auto* panel = new QGroupBox(this);
    panel->setObjectName(QStringLiteral("pnlAdminPath"));
    auto* help = new QLabel(panel);
    help->setObjectName(QStringLiteral("lblPathHelp"));
    help->setTextFormat(Qt::PlainText);
    help->setWordWrap(true);
    adminPath = new FolderPicker(PickerNames, PickerRules(), panel);
    adminPath->layout()->setSpacing(Spacing::Gap);
    adminPath->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored); // it takes what the rules leave
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(Spacing::Margin, 4, Spacing::Margin, Spacing::Margin);
    column->setSpacing(Spacing::Gap);
    column->addWidget(help);
    column->addWidget(adminPath, 1);
    return panel;
}

QWidget* frmAdmin_SU::MakeButtons() {
    auto* area = new QWidget(this);
    cmdSaveRules = new QPushButton(area);
    cmdSaveRules->setObjectName(QStringLiteral("cmdSaveRules"));
    cmdRulesCancel = new QPushButton(area);
    cmdRulesCancel->setObjectName(QStringLiteral("cmdRulesCancel"));
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Spacing::Gap);
    row->addStretch();
    for (QPushButton* button : {cmdSaveRules, cmdRulesCancel}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    connect(cmdSaveRules, &QPushButton::clicked, this, &frmAdmin_SU::SaveRules);
    connect(cmdRulesCancel, &QPushButton::clicked, this, &frmAdmin_SU::reject);
    return area;
}

void frmAdmin_SU::SpeakEnglish_Admin() {
    Speak(CaptionLanguage::English);
}

void frmAdmin_SU::SpeakFrench_Admin() {
    Speak(CaptionLanguage::French);
}

void frmAdmin_SU::Speak(CaptionLanguage language) {
    setWindowTitle(WindowTitle + AdminTitleSuffix(language));
    ApplyCaptions(*this, AdminCaptions(), language);
    adminPath->NameControls(QString());
    pnlRules->NameControls(language);
}

void frmAdmin_SU::LoadAdminPath() {
    ProgramConfig.PathToAdmin = LowerCase(TrimBlanks(ProgramConfig.PathToAdmin));
    if (!adminPath->Load(ProgramConfig.PathToAdmin)) {
        ProgramConfig.PathToAdmin.clear();
    }
}

void frmAdmin_SU::CheckAdminPath() {
    adminPath->Check();
}

void frmAdmin_SU::TestCourseCode() {
    pnlRules->TestCourseCode();
}

void frmAdmin_SU::SaveRules() {
    ProgramConfig.PathToAdmin = adminPath->Chosen();
    pnlRules->Save();
    SaveProgramConfig();
    accept();
}
