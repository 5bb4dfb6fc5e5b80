#include "platform/widgets/ExplanationLabel.h"

#include <QEvent>

namespace {

constexpr int PreferredWidth = 320; // logical pixels
constexpr int LeastWidth = 120;

} // namespace

ExplanationLabel::ExplanationLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

int ExplanationLabel::heightForWidth(int width) const {
    if (measured != text()) {
        measured = text();
        heights.clear();
    }
    const auto known = heights.constFind(width);
    if (known != heights.constEnd()) {
        return *known;
    }
    const int height = QLabel::heightForWidth(width);
    heights.insert(width, height);
    return height;
}

QSize ExplanationLabel::sizeHint() const {
    return {PreferredWidth, fontMetrics().lineSpacing()};
}

QSize ExplanationLabel::minimumSizeHint() const {
    return {LeastWidth, fontMetrics().lineSpacing()};
}

void ExplanationLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        heights.clear();
    }
}
