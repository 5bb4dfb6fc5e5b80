#include "import/PreviewPanel.h"

#include "import/ImportParts.h"
#include "platform/widgets/Pictures.h"
#include "platform/widgets/ProgramStyle.h"

#include <QGridLayout>

namespace {

constexpr int PictureSize = 24;
constexpr int BarWidth = 220;
constexpr int SmallGap = 4;

} // namespace

PreviewPanel::PreviewPanel(QWidget* parent)
    : QWidget(parent), lblHelp1(NewImportLabel(this, "lblHelp1")), grdImport(new ImportGrid(this)),
      lblFields(NewImportLabel(this, "lblFields")), pnlFieldList(new FieldListPanel(this)),
      spnRecords(new RecordSpinner(this)), lblRecordCount(NewImportLabel(this, "lblRecordCount")),
      lblMatched(NewImportLabel(this, "lblMatched")), imgLoading(NewImportLabel(this, "imgLoading")),
      prgLoading(new QProgressBar(this)), cmdClearMatch(NewImportButton(this, "cmdClearMatch")),
      cmdClearAll(NewImportButton(this, "cmdClearAll")), lblHelp3(NewImportLabel(this, "lblHelp3")),
      lblNotice(NewImportLabel(this, "lblNotice")) {
    imgLoading->setPixmap(Picture(QStringLiteral("hourglass")).pixmap(QSize(PictureSize, PictureSize)));
    imgLoading->setAccessibleName(QStringLiteral("The import file is being read"));
    prgLoading->setObjectName(QStringLiteral("prgLoading"));
    prgLoading->setAccessibleName(QStringLiteral("Part of the import file that has been read"));
    prgLoading->setFixedWidth(BarWidth);
    prgLoading->setFormat(QStringLiteral("Reading the file: %p%"));
    QFont bold = lblFields->font();
    bold.setBold(true);
    lblFields->setFont(bold);
    lblMatched->setFont(bold);
    lblNotice->setFont(bold);
    for (QWidget* later :
         std::initializer_list<QWidget*>{spnRecords, lblRecordCount, imgLoading, prgLoading, lblNotice}) {
        later->hide();
    }
    for (QLabel* sentence : {lblHelp1, lblHelp3, lblNotice}) {
        sentence->setWordWrap(true);
    }
    for (QLabel* help : {lblHelp1, lblHelp3}) {
        help->setFont(FieldListPanel::SmallFont(help->font()));
    }
    BuildLayout();
}

void PreviewPanel::BuildLayout() {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(SmallGap);
    rows->addLayout(BuildTop());
    rows->addLayout(BuildRow());
    rows->addWidget(lblHelp3);
    rows->addWidget(lblNotice);
}

// The grid keeps its greatest height's room, so that nothing moves when a file with fewer fields is opened.
QLayout* PreviewPanel::BuildTop() {
    auto* places = new QGridLayout;
    places->setHorizontalSpacing(Spacing::Gap);
    places->setVerticalSpacing(2);
    places->addWidget(lblHelp1, 0, 0);
    places->addWidget(lblFields, 0, 1);
    places->addWidget(grdImport, 1, 0, Qt::AlignTop);
    places->addWidget(pnlFieldList, 1, 1, Qt::AlignTop);
    places->setRowMinimumHeight(1, ImportGrid::GreatestHeight);
    places->setColumnMinimumWidth(0, grdImport->GreatestWidth());
    places->setColumnStretch(2, 1);
    return places;
}

QLayout* PreviewPanel::BuildRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing::Gap);
    row->addStrut(PictureSize); // whatever of it is seen
    row->addWidget(spnRecords);
    row->addWidget(lblRecordCount);
    row->addWidget(imgLoading);
    row->addWidget(prgLoading);
    row->addStretch(1);
    row->addWidget(lblMatched);
    row->addSpacing(Spacing::Gap);
    row->addWidget(cmdClearMatch);
    row->addWidget(cmdClearAll);
    return row;
}

void PreviewPanel::ShowLoading(bool loading) {
    imgLoading->setVisible(loading);
    prgLoading->setVisible(loading);
    prgLoading->setRange(0, 0); // nobody knows yet how long it takes
    if (loading) {
        spnRecords->hide();
        lblRecordCount->hide();
    }
}

void PreviewPanel::ShowRecordNumber(std::int64_t record, std::int64_t count) {
    lblRecordCount->setText(QStringLiteral("Record %1 of %2").arg(record).arg(count));
}

void PreviewPanel::ShowMatching(const FieldMatching& matching) {
    for (int row = 0; row < grdImport->rowCount(); ++row) {
        grdImport->ShowMatch(row, row < matching.MatchCount() ? matching.Name(row + 1) : QString());
    }
    pnlFieldList->ShowFields(matching);
    MarkNextRow(matching);
}

void PreviewPanel::ShowMatchCount(int matches, int fields) {
    lblMatched->setText(QStringLiteral("Matched: %1 of %2").arg(matches).arg(fields));
}

void PreviewPanel::ShowNotice(const QString& notice) {
    lblNotice->setText(notice);
    lblNotice->setVisible(!notice.isEmpty());
}

void PreviewPanel::MarkNextRow(const FieldMatching& matching) {
    const bool hasNext = matching.MatchCount() < matching.RowCount();
    grdImport->SetNextRow(hasNext ? matching.MatchCount() : ImportGrid::NoRow, pnlFieldList->IsAiming());
}
