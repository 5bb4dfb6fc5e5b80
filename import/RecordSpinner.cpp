#include "import/RecordSpinner.h"

#include <QHBoxLayout>
#include <QKeyEvent>

namespace {

constexpr QSize ArrowSize(30, 24);

} // namespace

RecordSpinner::RecordSpinner(QWidget* parent)
    : QWidget(parent), Previous(NewArrow("Previous", Qt::LeftArrow, QStringLiteral("Previous record"))),
      Next(NewArrow("Next", Qt::RightArrow, QStringLiteral("Next record"))) {
    setObjectName(QStringLiteral("spnRecords"));
    setAccessibleName(QStringLiteral("Records"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(Previous);
    row->addWidget(Next);
    connect(Next, &QToolButton::clicked, this, &RecordSpinner::NextClicked);
    connect(Previous, &QToolButton::clicked, this, &RecordSpinner::PreviousClicked);
}

QToolButton* RecordSpinner::NewArrow(const char* name, Qt::ArrowType arrow, const QString& accessibleName) {
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("spnRecords.") + QString::fromLatin1(name));
    button->setArrowType(arrow);
    button->setFixedSize(ArrowSize);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(accessibleName);
    button->setToolTip(accessibleName);
    button->installEventFilter(this);
    return button;
}

// The buttons themselves would move the focus with the arrow keys.
bool RecordSpinner::eventFilter(QObject* receiver, QEvent* event) {
    return event->type() == QEvent::KeyPress ? TakesKey(static_cast<QKeyEvent*>(event)->key())
                                             : QWidget::eventFilter(receiver, event);
}

bool RecordSpinner::TakesKey(int key) {
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        Q_EMIT NextClicked();
        return true;
    case Qt::Key_Left:
    case Qt::Key_Up:
        Q_EMIT PreviousClicked();
        return true;
    case Qt::Key_Home:
        Q_EMIT FirstAsked();
        return true;
    case Qt::Key_End:
        Q_EMIT LastAsked();
        return true;
    default:
        return false;
    }
}
