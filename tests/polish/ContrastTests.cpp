#include "tests/polish/Contrast.h"
#include "tests/polish/EveryWindow.h"
#include "tests/polish/TextPlaces.h"
#include "tests/screens/Palettes.h"
#include "tests/support/PrintText.h"

#include <QtWidgets>

namespace {

constexpr double LeastContrast = 4.5;

int ExpectReadable(QWidget& window, const std::string& name) {
    const QImage picture = LargePicture(window);
    const QList<TextPlace> places = TextPlacesOf(window);
    for (const TextPlace& text : places) {
        EXPECT_GE(ContrastOfText(picture, text.Place), LeastContrast) << name << ": " << text.Name.toStdString();
    }
    return static_cast<int>(places.size());
}

// Buttons and lists under the mouse, and buttons held down.
void ExpectReadableUnderTheMouse(QWidget& window, const std::string& name) {
    const auto putMouseOver = [&window](bool over) {
        for (QWidget* control : window.findChildren<QWidget*>()) {
            if (qobject_cast<QAbstractButton*>(control) != nullptr || qobject_cast<QComboBox*>(control) != nullptr) {
                control->setAttribute(Qt::WA_UnderMouse, over);
            }
        }
    };
    const auto holdDown = [&window](bool down) {
        for (auto* button : window.findChildren<QAbstractButton*>()) {
            button->setDown(down);
        }
    };
    putMouseOver(true);
    ExpectReadable(window, name + ", under the mouse");
    holdDown(true);
    ExpectReadable(window, name + ", pressed");
    putMouseOver(false);
    ExpectReadable(window, name + ", pressed by a key");
    holdDown(false);
}

// The lowest row of a list that can be seen.
QModelIndex LowestRow(const QAbstractItemView& list) {
    const QRect room = list.viewport()->rect();
    QModelIndex row;
    for (int y = 0; y < room.height(); ++y) {
        const QModelIndex here = list.indexAt({room.center().x(), y});
        row = here.isValid() ? here : row;
    }
    return row;
}

// A row of each list under the mouse, and selected where the user can select it.
void ExpectReadableRows(QWidget& window, const std::string& name) {
    for (auto* list : window.findChildren<QAbstractItemView*>()) {
        const QModelIndex row = list->isVisible() ? LowestRow(*list) : QModelIndex();
        if (!row.isValid()) {
            continue;
        }
        const QPointF mouse = list->visualRect(row).center();
        QHoverEvent hover(QEvent::HoverMove, mouse, mouse, mouse);
        QCoreApplication::sendEvent(list->viewport(), &hover);
        ExpectReadable(window, name + ", row under the mouse");
        if (list->selectionMode() == QAbstractItemView::NoSelection) {
            continue;
        }
        const QItemSelection before = list->selectionModel()->selection();
        list->selectionModel()->select(row, QItemSelectionModel::ClearAndSelect);
        ExpectReadable(window, name + ", row selected");
        list->selectionModel()->select(before, QItemSelectionModel::ClearAndSelect);
    }
}

// Every window as it is, with the mouse everywhere, with the text of each box in turn selected, and with everything
// disabled.
void ExpectEveryStateReadable(bool dark) {
    UsePalette(dark);
    int seen = 0;
    LookAtEveryWindow([&seen](QWidget& window, const std::string& name) {
        seen += ExpectReadable(window, name);
        ExpectReadableUnderTheMouse(window, name);
        ExpectReadableRows(window, name);
        for (QLineEdit* box : window.findChildren<QLineEdit*>()) {
            if (box->isVisible() && box->isEnabled() && !box->text().isEmpty()) {
                box->selectAll();
            }
        }
        ExpectReadable(window, name + ", selected");
        window.setEnabled(false);
        ExpectReadable(window, name + ", disabled");
        window.setEnabled(true);
    });
    EXPECT_GT(seen, 500);
    UsePalette(false);
}

TEST(ContrastOf, Colours) {
    EXPECT_NEAR(Contrast(qRgb(0, 0, 0), qRgb(255, 255, 255)), 21, 0.001);
    EXPECT_NEAR(Contrast(qRgb(255, 255, 255), qRgb(255, 255, 255)), 1, 0.001);
    EXPECT_NEAR(Contrast(qRgb(0x76, 0x76, 0x76), qRgb(255, 255, 255)), 4.54, 0.01);
}

TEST(ContrastOf, AText) {
    QLabel label(QStringLiteral("Faint"));
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, qRgb(0x99, 0x99, 0x99));
    palette.setColor(QPalette::Window, Qt::white);
    label.setPalette(palette);
    label.resize(label.sizeHint());
    EXPECT_NEAR(ContrastOfText(LargePicture(label), label.rect()), 2.85, 0.1);
}

TEST(ContrastOf, EveryStateInLight) {
    ExpectEveryStateReadable(false);
}

TEST(ContrastOf, EveryStateInDark) {
    ExpectEveryStateReadable(true);
}

} // namespace
