#include "platform/widgets/Captions.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QWidget>

void SetCaption(QWidget& control, const QString& text) {
    if (auto* label = qobject_cast<QLabel*>(&control)) {
        label->setText(text);
    } else if (auto* button = qobject_cast<QAbstractButton*>(&control)) {
        button->setText(text);
    } else if (auto* frame = qobject_cast<QGroupBox*>(&control)) {
        frame->setTitle(text);
    } else {
        control.setWindowTitle(text);
    }
}

void ApplyCaptions(QWidget& window, std::span<const Caption> table, CaptionLanguage language) {
    for (const Caption& row : table) {
        auto* control = window.findChild<QWidget*>(QString::fromUtf8(row.Control));
        Q_ASSERT_X(control != nullptr, "ApplyCaptions", row.Control);
        if (control != nullptr) {
            SetCaption(*control, QString::fromUtf8(language == CaptionLanguage::English ? row.English : row.French));
        }
    }
}
