#include "import/ImportGrid.h"

#include "import/FieldListPanel.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace {

constexpr int RowHeight = 15;
constexpr int RowsSeen = 15;
constexpr int NumberWidth = 20;
constexpr int TextWidth = 412;
constexpr int MatchWidth = 169;
constexpr int TextMargin = 3;
constexpr float LineStrength = 0.25F;
constexpr int LongestDrawn = 160; // characters; no column shows more
constexpr QChar ShownControl(u'\u00B7');

QString Drawn(const QString& text) {
    QString drawn = text.left(LongestDrawn);
    for (QChar& character : drawn) {
        character = character < QChar(u' ') || character.category() == QChar::Other_Control ? ShownControl : character;
    }
    return drawn;
}

// Draws the cells with narrow margins, because the number column leaves no room for the style's own.
class CellPainter : public QStyledItemDelegate {
public:
    explicit CellPainter(ImportGrid* gridToPaint) : QStyledItemDelegate(gridToPaint), grid(gridToPaint) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const bool marked = index.row() == grid->MarkedRow();
        const bool current = grid->hasFocus() && index == grid->currentIndex();
        const QPalette& palette = option.palette;
        if (marked || current) {
            QColor fill = palette.color(QPalette::Highlight);
            fill.setAlphaF(marked ? 0.35F : 0.15F);
            painter->fillRect(option.rect, fill);
        }
        const bool isNumber = index.column() == ImportGrid::NumberColumn;
        painter->setFont(option.font);
        painter->setPen(palette.color(isNumber ? QPalette::PlaceholderText : QPalette::Text));
        const QRect room = isNumber ? option.rect : option.rect.adjusted(TextMargin, 0, -TextMargin, -1);
        const QString text = Drawn(index.data().toString());
        painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          isNumber ? text : option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
        DrawLines(*painter, option, index);
    }

private:
    ImportGrid* grid;

    // Lines between the cells; the style's own can hardly be seen on a dark ground.
    static void DrawLines(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
        QColor colour = option.palette.color(QPalette::Text);
        colour.setAlphaF(LineStrength);
        const QRect& cell = option.rect;
        if (index.row() + 1 < index.model()->rowCount()) {
            painter.fillRect(QRect(cell.left(), cell.bottom(), cell.width(), 1), colour);
        }
        if (index.column() != ImportGrid::MatchColumn) {
            painter.fillRect(QRect(cell.right(), cell.top(), 1, cell.height() - 1), colour);
        }
    }
};

} // namespace

ImportGrid::ImportGrid(QWidget* parent) : QTableWidget(0, 3, parent) {
    setObjectName(QStringLiteral("grdImport"));
    setAccessibleName(QStringLiteral("Fields of the record and their matches"));
    setItemDelegate(new CellPainter(this));
    setFont(FieldListPanel::SmallFont(font()));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setAcceptDrops(true);
    setDropIndicatorShown(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerItem);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(NumberWidth);
    verticalHeader()->setMinimumSectionSize(RowHeight);
    verticalHeader()->setDefaultSectionSize(RowHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setColumnWidth(NumberColumn, NumberWidth);
    setColumnWidth(TextColumn, TextWidth);
    setColumnWidth(MatchColumn, MatchWidth);
    setShowGrid(false);
    SetRows(0);
}

int ImportGrid::GreatestWidth() const {
    return NumberWidth + TextWidth + MatchWidth + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
}

void ImportGrid::SetRows(int count) {
    SetNextRow(NoRow, false);
    clearContents();
    setRowCount(count);
    for (int row = 0; row < count; ++row) {
        SetText(row, NumberColumn, QStringLiteral(" %1").arg(row + 1));
        SetText(row, TextColumn, QString());
        SetText(row, MatchColumn, QString());
    }
    setFixedWidth(GreatestWidth() - (count > RowsSeen ? 0 : verticalScrollBar()->sizeHint().width()));
    const int height = std::min(count, RowsSeen) * RowHeight + 2 * frameWidth();
    setFixedHeight(count == 0 ? GreatestHeight : std::min(height, GreatestHeight));
    scrollToTop();
}

void ImportGrid::ShowFields(const QStringList& fields) {
    const int last = std::min(rowCount(), static_cast<int>(fields.size()));
    for (int row = 0; row < last; ++row) {
        item(row, TextColumn)->setText(fields[row]);
    }
}

void ImportGrid::ShowMatch(int row, const QString& name) {
    item(row, MatchColumn)->setText(name.isEmpty() ? QString() : QStringLiteral(" <-- ") + name);
}

void ImportGrid::SetNextRow(int row, bool marked) {
    const int before = MarkedRow();
    nextRow = row;
    isMarked = marked;
    if (MarkedRow() != NoRow && MarkedRow() != before) {
        scrollToItem(item(MarkedRow(), TextColumn));
    }
    viewport()->update();
}

void ImportGrid::SetText(int row, int column, const QString& text) {
    setItem(row, column, new QTableWidgetItem(text));
}

bool ImportGrid::Takes(const QDropEvent& event) const {
    return event.mimeData()->hasFormat(FieldListPanel::FieldMimeType()) && nextRow != NoRow;
}

void ImportGrid::dragEnterEvent(QDragEnterEvent* event) {
    event->setAccepted(Takes(*event));
}

void ImportGrid::dragMoveEvent(QDragMoveEvent* event) {
    event->setAccepted(Takes(*event));
}

void ImportGrid::dropEvent(QDropEvent* event) {
    event->setAccepted(event->mimeData()->hasFormat(FieldListPanel::FieldMimeType()));
    if (event->isAccepted()) {
        Q_EMIT FieldDropped();
    }
}
