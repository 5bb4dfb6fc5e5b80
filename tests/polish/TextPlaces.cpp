#include "tests/polish/TextPlaces.h"

#include <QtWidgets>

namespace {

constexpr int MarginOfBoxes = 4; // logical pixels around the text of a box

// The part of `room` that a text of the font takes, beginning at the left.
QRect LeftPart(const QRect& room, const QFontMetrics& font, const QString& text) {
    return {room.left(), room.top(), std::min(room.width(), font.horizontalAdvance(text)), room.height()};
}

QRect ButtonText(const QAbstractButton& button) {
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    const auto* radio = qobject_cast<const QRadioButton*>(&button);
    const auto* check = qobject_cast<const QCheckBox*>(&button);
    const QStyle::SubElement part = radio != nullptr   ? QStyle::SE_RadioButtonContents
                                    : check != nullptr ? QStyle::SE_CheckBoxContents
                                                       : QStyle::SE_PushButtonContents;
    return button.style()->subElementRect(part, &option, &button);
}

QRect ComboText(const QComboBox& list) {
    QStyleOptionComboBox option;
    option.initFrom(&list);
    const QRect field = list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list);
    return LeftPart(field.adjusted(MarginOfBoxes, 2, 0, -2), list.fontMetrics(), list.currentText());
}

QRect TitleText(const QGroupBox& box) {
    QStyleOptionGroupBox option;
    option.initFrom(&box);
    option.text = box.title();
    const QRect title = box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &box);
    return LeftPart(title, box.fontMetrics(), box.title());
}

QRect BoxText(const QLineEdit& box) {
    return LeftPart(box.rect().adjusted(MarginOfBoxes, 3, -MarginOfBoxes, -3), box.fontMetrics(), box.text());
}

QRect TextOf(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        return label->text().trimmed().isEmpty() ? QRect() : label->contentsRect();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
        return button->text().isEmpty() ? QRect() : ButtonText(*button);
    }
    if (const auto* list = qobject_cast<const QComboBox*>(&control)) {
        return list->currentText().isEmpty() ? QRect() : ComboText(*list);
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&control)) {
        return box->title().isEmpty() ? QRect() : TitleText(*box);
    }
    if (const auto* box = qobject_cast<const QLineEdit*>(&control)) {
        return box->text().trimmed().isEmpty() ? QRect() : BoxText(*box);
    }
    return {};
}

// The texts of the visible entries, in the coordinates of the list's viewport.
QList<QRect> EntriesOf(const QAbstractItemView& list) {
    QList<QRect> entries;
    const QAbstractItemModel* model = list.model();
    const int iconAndGap = list.iconSize().width() > 0 ? list.iconSize().width() : 20;
    const auto add = [&](const auto& self, const QModelIndex& parent) -> void {
        for (int row = 0; row < model->rowCount(parent); ++row) {
            for (int column = 0; column < model->columnCount(parent); ++column) {
                const QModelIndex index = model->index(row, column, parent);
                const QString text = index.data().toString();
                const int left = index.data(Qt::DecorationRole).isNull() ? MarginOfBoxes : iconAndGap + MarginOfBoxes;
                const QRect place = list.visualRect(index).adjusted(left, 1, 0, -1);
                if (!text.isEmpty() && list.viewport()->rect().contains(place)) {
                    entries.append(LeftPart(place, list.fontMetrics(), text));
                }
                self(self, index);
            }
        }
    };
    if (model != nullptr && qobject_cast<const QHeaderView*>(&list) == nullptr) {
        add(add, QModelIndex());
    }
    return entries;
}

} // namespace

QList<TextPlace> TextPlacesOf(const QWidget& window) {
    QList<TextPlace> places;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->isVisible() || control->visibleRegion().isEmpty()) {
            continue;
        }
        const QRect text = TextOf(*control) & control->visibleRegion().boundingRect();
        if (!text.isEmpty()) {
            places.append({control->objectName(), QRect(control->mapTo(&window, text.topLeft()), text.size())});
        }
        if (const auto* list = qobject_cast<const QAbstractItemView*>(control)) {
            for (const QRect& entry : EntriesOf(*list)) {
                const QPoint corner = list->viewport()->mapTo(&window, entry.topLeft());
                places.append({list->objectName(), QRect(corner, entry.size())});
            }
        }
    }
    return places;
}
