#include "tests/screens/Clipped.h"

#include "options/PanelButton.h"
#include "platform/widgets/ProgramStyle.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QStyle>
#include <QStyleOptionGroupBox>

namespace {

QString SizeText(const QSize& size) {
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

QSize NeededByLabel(const QLabel& label) {
    if (label.wordWrap() && label.hasHeightForWidth()) {
        return {0, label.heightForWidth(label.width())};
    }
    return label.minimumSizeHint();
}

// The text of a panel's button may take two lines beside its bar.
QSize NeededByPanelButton(const PanelButton& button) {
    const QRect room(0, 0, button.width() - 2 * Spacing::Gap, button.height());
    return button.fontMetrics().boundingRect(room, Qt::TextWordWrap, button.text()).size();
}

QSize NeededByTitle(const QGroupBox& box) {
    QFont bold = box.font();
    bold.setBold(true);
    const QString text = box.title();
    return text.isEmpty() ? QSize() : QSize(QFontMetrics(bold).horizontalAdvance(text), 0);
}

/// What the control takes to show its text; nothing for one that scrolls or has none.
QSize Needed(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        return label->text().isEmpty() ? QSize() : NeededByLabel(*label);
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&control)) {
        return NeededByTitle(*box);
    }
    if (const auto* button = qobject_cast<const PanelButton*>(&control)) {
        return NeededByPanelButton(*button);
    }
    if (qobject_cast<const QAbstractButton*>(&control) != nullptr ||
        qobject_cast<const QComboBox*>(&control) != nullptr) {
        return control.minimumSizeHint();
    }
    return {};
}

bool IsPartOfAList(const QWidget& control, const QWidget& window) {
    for (const QWidget* at = control.parentWidget(); at != nullptr && at != &window; at = at->parentWidget()) {
        if (qobject_cast<const QAbstractItemView*>(at) != nullptr) {
            return true;
        }
    }
    return false;
}

} // namespace

QStringList ClippedControls(const QWidget& window) {
    QStringList lines;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const QString name = control->objectName();
        if (!control->isVisible() || name.isEmpty() || name.startsWith(QLatin1String("qt_")) ||
            IsPartOfAList(*control, window)) {
            continue;
        }
        const QSize needed = Needed(*control);
        if (needed.width() > control->width() || needed.height() > control->height()) {
            lines.append(
                QStringLiteral("%1 has %2 and needs %3").arg(name, SizeText(control->size()), SizeText(needed)));
        }
        const QWidget& around = *control->parentWidget();
        if (!around.rect().contains(control->geometry())) {
            lines.append(QStringLiteral("%1 sticks out of %2").arg(name, around.objectName()));
        }
    }
    return lines;
}
