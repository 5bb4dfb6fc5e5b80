#include "import/UpdateOptionsPanel.h"

#include "platform/widgets/ProgramStyle.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QStyle>

namespace {

constexpr int FieldRows = 4;
constexpr int RowGap = 1;
constexpr int SmallGap = 5;

QGroupBox* NewFrame(QWidget* parent, const char* name) {
    auto* frame = new QGroupBox(parent);
    frame->setObjectName(QString::fromLatin1(name));
    return frame;
}

} // namespace

UpdateOptionsPanel::UpdateOptionsPanel(QWidget* parent)
    : QGroupBox(parent), fraDelete(NewFrame(this, "fraDelete")), fraUpdateFields(NewFrame(this, "fraUpdateFields")),
      lblCLUpd1(new QLabel(fraDelete)) {
    setObjectName(QStringLiteral("pnlUpdateOpts"));
    BuildDelete();
    BuildFields();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(SmallGap, 0, SmallGap, SmallGap);
    row->setSpacing(SmallGap);
    row->addWidget(fraDelete);
    row->addWidget(fraUpdateFields, 1);
}

QCheckBox* UpdateOptionsPanel::NewBox(QGroupBox* frame, const char* name, std::size_t index, std::int16_t& value) {
    auto* box = new QCheckBox(frame);
    box->setObjectName(QStringLiteral("%1(%2)").arg(QString::fromLatin1(name)).arg(index));
    connect(box, &QCheckBox::toggled, this, [&value](bool ticked) { value = ticked ? 1 : 0; });
    return box;
}

void UpdateOptionsPanel::BuildDelete() {
    auto* rows = new QVBoxLayout(fraDelete);
    rows->setContentsMargins(Spacing::Gap, 0, Spacing::Gap, 2);
    rows->setSpacing(RowGap);
    lblCLUpd1->setObjectName(QStringLiteral("lblCLUpd1"));
    for (std::size_t i = 0; i < chkCLUpd.size(); ++i) {
        chkCLUpd[i] = NewBox(fraDelete, "chkCLUpd", i, options.Actions[i]);
        rows->addWidget(chkCLUpd[i], 0, Qt::AlignLeft);
        if (i == 1) {
            const int indent =
                style()->pixelMetric(QStyle::PM_IndicatorWidth) + style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
            lblCLUpd1->setIndent(indent);
            rows->addWidget(lblCLUpd1);
        }
    }
    rows->addStretch(1);
}

void UpdateOptionsPanel::BuildFields() {
    auto* places = new QGridLayout(fraUpdateFields);
    places->setContentsMargins(Spacing::Gap, 0, Spacing::Gap, 2);
    places->setHorizontalSpacing(SmallGap);
    places->setVerticalSpacing(RowGap);
    for (std::size_t i = 0; i < chkCLUpdFields.size(); ++i) {
        chkCLUpdFields[i] = NewBox(fraUpdateFields, "chkCLUpdFields", i, options.Fields[i]);
        places->addWidget(chkCLUpdFields[i], static_cast<int>(i) % FieldRows, static_cast<int>(i) / FieldRows,
                          Qt::AlignLeft);
    }
}

void UpdateOptionsPanel::ShowOptions(const UpdateOptions& shown) {
    for (std::size_t i = 0; i < chkCLUpd.size(); ++i) {
        chkCLUpd[i]->setChecked(shown.Actions[i] == 1);
    }
    for (std::size_t i = 0; i < chkCLUpdFields.size(); ++i) {
        chkCLUpdFields[i]->setChecked(shown.Fields[i] == 1);
    }
}
