#include "import/FieldListPanel.h"

#include <QDrag>
#include <QMimeData>

namespace {

// Logical pixels.
constexpr int LabelLeft = 2;
constexpr int LabelWidth = 129;
constexpr int LabelHeight = 14;
constexpr int SmallPixels = 11;

} // namespace

FieldListPanel::FieldListPanel(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("pnlFieldList"));
    setFrameShape(StyledPanel);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setFont(SmallFont(font()));
    setFixedSize(2 * LabelLeft + LabelWidth + 2 * frameWidth(), FieldCount * LabelHeight + 2 * frameWidth());
    for (int field = 1; field <= FieldCount; ++field) {
        auto* label = new FieldLabel(field, this);
        label->setGeometry(frameWidth() + LabelLeft, frameWidth() + (field - 1) * LabelHeight, LabelWidth, LabelHeight);
        lblFieldList[static_cast<std::size_t>(field)] = label;
        Connect(label);
    }
    MakeTabStop(tabStop);
}

void FieldListPanel::Connect(FieldLabel* label) {
    const int field = label->Field();
    connect(label, &FieldLabel::Pressed, this, [this, field] { Q_EMIT Pressed(field); });
    connect(label, &FieldLabel::DoubleClicked, this, [this, field] { Q_EMIT DoubleClicked(field); });
    connect(label, &FieldLabel::Dragged, this, [this, field] { Q_EMIT Dragged(field); });
    connect(label, &FieldLabel::Entered, this, [this, field] { Q_EMIT Entered(field); });
    connect(label, &FieldLabel::FocusMoved, this, [this, field](bool here) { FocusMoved(field, here); });
    connect(label, &FieldLabel::MoveKey, this, [this, field](int key) { Move(field, key); });
}

QString FieldListPanel::FieldMimeType() {
    return QStringLiteral("application/x-gradebook-field");
}

QFont FieldListPanel::SmallFont(QFont font) {
    font.setPixelSize(SmallPixels);
    return font;
}

void FieldListPanel::ShowFields(const FieldMatching& matching) {
    for (int field = 1; field <= FieldCount; ++field) {
        FieldLabel* label = lblFieldList[static_cast<std::size_t>(field)];
        label->setText(matching.Caption(field));
        const bool used = matching.IsUsed(field);
        if (label->isEnabled() == !used) {
            continue;
        }
        if (used && label->hasFocus()) {
            const int below = NextFree(field, 1);
            lblFieldList[static_cast<std::size_t>(below != 0 ? below : NextFree(field, -1))]->setFocus();
        }
        label->SetUsed(used);
    }
    if (!lblFieldList[static_cast<std::size_t>(tabStop)]->isEnabled()) {
        MakeTabStop(NextFree(0, 1));
    }
}

// The next field that is not used, 0 when there is none. "Ignore this field" never is.
int FieldListPanel::NextFree(int from, int step) const {
    for (int field = from + step; field >= 1 && field <= FieldCount; field += step) {
        if (lblFieldList[static_cast<std::size_t>(field)]->isEnabled()) {
            return field;
        }
    }
    return 0;
}

void FieldListPanel::MakeTabStop(int field) {
    lblFieldList[static_cast<std::size_t>(tabStop)]->setFocusPolicy(Qt::ClickFocus);
    tabStop = field;
    lblFieldList[static_cast<std::size_t>(tabStop)]->setFocusPolicy(Qt::StrongFocus);
}

void FieldListPanel::FocusMoved(int field, bool here) {
    focused = here;
    if (here) {
        MakeTabStop(field);
    }
    Q_EMIT AimChanged();
}

void FieldListPanel::Move(int from, int key) {
    const bool up = key == Qt::Key_Up || key == Qt::Key_End;
    const int beyond = up ? FieldCount + 1 : 0;
    const int start = key == Qt::Key_Home || key == Qt::Key_End ? beyond : from;
    if (const int field = NextFree(start, up ? -1 : 1)) {
        lblFieldList[static_cast<std::size_t>(field)]->setFocus();
    }
}

void FieldListPanel::Drag(int field) {
    const FieldLabel* label = lblFieldList[static_cast<std::size_t>(field)];
    auto* mimeData = new QMimeData;
    mimeData->setData(FieldMimeType(), QByteArray::number(field));
    auto* drag = new QDrag(this);
    drag->setMimeData(mimeData);
    drag->setPixmap(label->DragPicture());
    drag->setHotSpot({LabelWidth / 4, LabelHeight / 2});
    dragging = true;
    Q_EMIT AimChanged();
    drag->exec(Qt::CopyAction);
    dragging = false;
    Q_EMIT AimChanged();
}
