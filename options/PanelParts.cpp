#include "options/PanelParts.h"

#include "platform/widgets/ExplanationLabel.h"
#include "platform/widgets/PathLabel.h"
#include "platform/widgets/ProgramStyle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

QVBoxLayout* NewColumn(QGroupBox* box) {
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(Spacing::Margin, Spacing::Gap / 2, Spacing::Margin, Spacing::Gap);
    column->setSpacing(Spacing::Gap);
    return column;
}

} // namespace

QString IndexedName(const char* array, int index) {
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(array)).arg(index);
}

QLabel* NewLabel(const char* name, QWidget* parent, QWidget* buddy) {
    auto* label = NewControl<QLabel>(name, parent);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    return label;
}

QLabel* NewExplanation(const char* name, QWidget* parent) {
    return NewControl<ExplanationLabel>(name, parent);
}

QPushButton* NewButton(const char* name, QWidget* parent) {
    auto* button = NewControl<QPushButton>(name, parent);
    button->setAutoDefault(false);
    return button;
}

Frame NewFrame(const char* name, QWidget* parent) {
    auto* box = NewControl<QGroupBox>(name, parent);
    return {box, NewColumn(box)};
}

FolderRow AddFolderRow(const Frame& frame, const FolderRowNames& names) {
    const FolderRow made{NewControl<PathLabel>(names.Path, frame.Box), NewButton(names.Browse, frame.Box),
                         NewButton(names.Clear, frame.Box)};
    auto* row = new QHBoxLayout;
    row->addWidget(NewLabel(names.Caption, frame.Box));
    row->addWidget(made.Path, 1);
    row->addWidget(made.Browse);
    row->addWidget(made.Clear);
    frame.Column->addLayout(row);
    return made;
}

void MakeOneTabStop(const QList<QRadioButton*>& options) {
    const auto choose = [options](const QRadioButton* stop) {
        for (QRadioButton* option : options) {
            option->setFocusPolicy(option == stop ? Qt::StrongFocus : Qt::ClickFocus);
        }
    };
    choose(options.first());
    for (const QRadioButton* option : options) {
        QObject::connect(option, &QRadioButton::toggled, option, [choose, option](bool chosen) {
            if (chosen) {
                choose(option);
            }
        });
    }
}

void FolderRow::NameButtons(const QString& purpose) const {
    NameByCaption(*Browse, Browse->text(), purpose);
    NameByCaption(*Clear, Clear->text(), purpose);
}

void NameByCaption(QWidget& control, QString caption, const QString& purpose) {
    const QString ending = purpose.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(purpose);
    control.setAccessibleName(caption.remove(u':').remove(u'&').trimmed() + ending);
}

SetupPanel::SetupPanel(int index, QWidget* parent) : QGroupBox(parent), Column(NewColumn(this)) {
    Column->setContentsMargins(Spacing::Margin, Spacing::Gap, Spacing::Margin, Spacing::Margin);
    Column->setSpacing(Spacing::Margin);
    setObjectName(IndexedName("p3dSetup", index));
}
