#include "platform/widgets/ScreenFit.h"

#include "platform/Desktop.h"

#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <QWidget>
#include <algorithm>

namespace {

const QString ScrollerName = QStringLiteral("Scroller");

QSize LeastSize(const QLayout& layout, const QSize& usual) {
    const int width = std::max(layout.minimumSize().width(), usual.width());
    const int height = layout.totalMinimumHeightForWidth(width); // wrapped texts need more than minimumSize says
    return {width, std::max(height, usual.height())};
}

// The window's layout moves into a widget that scrolls; the order of Tab stays, as all stays in the window.
QScrollArea* ScrollContents(QWidget& window) {
    auto* contents = new QWidget(&window);
    contents->setLayout(window.layout());
    auto* scroller = new QScrollArea(&window);
    scroller->setObjectName(ScrollerName);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus);
    scroller->setWidgetResizable(true);
    scroller->setWidget(contents);
    auto* whole = new QVBoxLayout(&window);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroller);
    return scroller;
}

} // namespace

QSize OpeningSize(const QSize& usual) {
    return usual.boundedTo(TheDesktop().RoomForWindow());
}

void FitToScreen(QWidget& window, const QSize& usual) {
    auto* scroller = window.findChild<QScrollArea*>(ScrollerName);
    const QLayout* layout = scroller != nullptr ? scroller->widget()->layout() : window.layout();
    const QSize room = TheDesktop().RoomForWindow();
    const QSize opened = OpeningSize(usual);
    const QSize least = LeastSize(*layout, opened);
    if (scroller == nullptr && least.expandedTo(room) == room) {
        window.setMinimumSize(least);
        return;
    }
    if (scroller == nullptr) {
        scroller = ScrollContents(window);
    }
    const int bar = scroller->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, scroller);
    scroller->widget()->setMinimumSize(LeastSize(*layout, opened - QSize(bar, 0)));
    window.setMinimumSize(opened);
}
