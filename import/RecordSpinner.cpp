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
    return button;
}

void RecordSpinner::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        Q_EMIT NextClicked();
        return;
    case Qt::Key_Left:
    case Qt::Key_Up:
        Q_EMIT PreviousClicked();
        return;
    case Qt::Key_Home:
        Q_EMIT FirstAsked();
        return;
    case Qt::Key_End:
        Q_EMIT LastAsked();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}
