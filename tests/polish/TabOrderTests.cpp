#include "tests/polish/EveryWindow.h"
#include "tests/support/PrintText.h"

#include <QtWidgets>

namespace {

// The controls that Tab reaches, in its order. A radio button that is not chosen is reached by the arrow keys.
QWidgetList TabStops(QWidget& window) {
    QWidgetList stops;
    for (QWidget* control = window.nextInFocusChain(); control != &window; control = control->nextInFocusChain()) {
        const auto* radio = qobject_cast<const QRadioButton*>(control);
        const bool reached = (control->focusPolicy() & Qt::TabFocus) != 0 && control->focusProxy() == nullptr;
        if (reached && control->isVisible() && control->isEnabled() && (radio == nullptr || radio->isChecked())) {
            stops.append(control);
        }
    }
    return stops;
}

const QWidget* ChildOn(const QWidget* ancestor, const QWidget* control) {
    while (control->parentWidget() != ancestor) {
        control = control->parentWidget();
    }
    return control;
}

// The eye goes on to what stands to the right or begins lower. Of controls in different frames the frames are compared.
bool EyeGoesOn(const QWidget* from, const QWidget* to) {
    const QWidget* around = from->parentWidget();
    while (!around->isAncestorOf(to)) {
        around = around->parentWidget();
    }
    const QRect before = ChildOn(around, from)->geometry();
    const QRect after = ChildOn(around, to)->geometry();
    return after.left() >= before.right() || after.top() > before.top();
}

TEST(TabOrder, FollowsTheEye) {
    LookAtEveryWindow([](QWidget& window, const std::string& name) {
        const QWidgetList stops = TabStops(window);
        ASSERT_GT(stops.size(), 1) << name;
        QStringList jumps;
        for (qsizetype i = 0; i < stops.size(); ++i) {
            const QWidget* from = stops[i];
            const QWidget* to = stops[(i + 1) % stops.size()];
            if (!EyeGoesOn(from, to)) {
                jumps.append(from->objectName() + QStringLiteral(" to ") + to->objectName());
            }
        }
        EXPECT_EQ(jumps.size(), 1) << name << ": once around Tab goes back from "
                                   << jumps.join(QStringLiteral(", ")).toStdString();
    });
}

} // namespace
