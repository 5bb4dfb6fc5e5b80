/// Compares the opening of General Options with that of a bare dialog of the same number of plain controls, as many of
/// them shown. Ends with 1 when the limit is passed.

#include "app/CFG_2015.h"
#include "benchmarks/Measuring.h"
#include "options/frmSetUp_SU.h"
#include "platform/ProgramDrives.h"
#include "platform/qt/QtDesktop.h"
#include "platform/widgets/ProgramStyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr double MostTime = 1.5;
constexpr double NanosecondsInMillisecond = 1e6;

/// A plain control of the same kind, with as much text, or null when it is none.
QWidget* PlainLike(const QWidget* control, QWidget* parent) {
    if (const auto* label = qobject_cast<const QLabel*>(control)) {
        return new QLabel(label->text(), parent);
    }
    if (const auto* button = qobject_cast<const QPushButton*>(control)) {
        return new QPushButton(button->text(), parent);
    }
    if (const auto* option = qobject_cast<const QRadioButton*>(control)) {
        return new QRadioButton(option->text(), parent);
    }
    if (const auto* box = qobject_cast<const QCheckBox*>(control)) {
        return new QCheckBox(box->text(), parent);
    }
    if (const auto* line = qobject_cast<const QLineEdit*>(control)) {
        return new QLineEdit(line->text(), parent);
    }
    if (const auto* list = qobject_cast<const QComboBox*>(control)) {
        auto* plain = new QComboBox(parent);
        for (int i = 0; i < list->count(); ++i) {
            plain->addItem(list->itemText(i));
        }
        return plain;
    }
    return qobject_cast<const QTreeWidget*>(control) != nullptr ? new QTreeWidget(parent) : nullptr;
}

/// The bare dialog: a group box for each panel, the first one shown, the other controls below.
void FillLike(const QWidget& model, QDialog& bare) {
    auto* column = new QVBoxLayout(&bare);
    bool first = true;
    for (const QGroupBox* panel : model.findChildren<QGroupBox*>(QString(), Qt::FindDirectChildrenOnly)) {
        auto* box = new QGroupBox(panel->title(), &bare);
        auto* inside = new QVBoxLayout(box);
        for (const QWidget* control : panel->findChildren<QWidget*>()) {
            if (QWidget* plain = PlainLike(control, box)) {
                inside->addWidget(plain);
            }
        }
        column->addWidget(box);
        box->setVisible(first);
        first = false;
    }
    for (const QWidget* control : model.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (QWidget* plain = PlainLike(control, &bare)) {
            column->addWidget(plain);
        }
    }
}

template <typename Action>
double Milliseconds(const Action& action) {
    QElapsedTimer clock;
    clock.start();
    action();
    return static_cast<double>(clock.nsecsElapsed()) / NanosecondsInMillisecond;
}

void ShowOnce(QDialog& dialog) {
    dialog.show();
    dialog.grab();
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    ProgramStyle::Install();
    SystemCalls& calls = RealSystemCalls();
    ProgramDrives drives = OpenProgramDrives(calls, NativePath(argv[1]));
    QtDesktop desktop(std::move(drives.TheVolumes), calls);
    InstallDesktop(&desktop);
    SetProductTexts(Edition::English);
    SetDatePatterns(0);
    SetDefaultSettings();
    ProgramConfig.DefaultPath = drives.ProgramFolder;
    ProgramConfig.BackupDestinationPath = drives.ProgramFolder;
    const frmSetUp_SU model;

    std::vector<double> ours;
    std::vector<double> bare;
    for (int round = 0; round < Rounds; ++round) {
        ours.push_back(Milliseconds([] {
            frmSetUp_SU window;
            ShowOnce(window);
        }));
        bare.push_back(Milliseconds([&model] {
            QDialog window;
            FillLike(model, window);
            ShowOnce(window);
        }));
    }
    return ReportRatio(QStringLiteral("Opening of General Options"), QStringLiteral("ms"), Median(ours), Median(bare),
                       MostTime)
               ? 0
               : 1;
}
