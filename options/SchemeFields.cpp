#include "options/SchemeFields.h"

#include "app/CFG_2015.h"
#include "options/PanelParts.h"
#include "options/SchemeCheck.h"
#include "platform/CodePage.h"
#include "platform/widgets/ProgramStyle.h"
#include "platform/widgets/TextBox.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>

namespace {

constexpr int RowsInColumn = 10;
constexpr int ColumnsOfHalf = 4; // number, symbol, value, gap
constexpr int SymbolWidth = 48;  // logical pixels
constexpr int ValueWidth = 40;

constexpr QColor Filled(255, 255, 255);
constexpr QColor Empty(255, 255, 128);
constexpr QColor Beyond(192, 255, 255);
constexpr QColor Problem(255, 128, 255);

// The colours are light in every palette, so the text on them is dark.
void Colour(TextBox& box, const QColor& colour) {
    QPalette palette = box.palette();
    if (palette.color(QPalette::Active, QPalette::Base) == colour &&
        palette.color(QPalette::Active, QPalette::Text) == Qt::black) {
        return;
    }
    palette.setColor(QPalette::Base, colour);
    palette.setColor(QPalette::Text, Qt::black);
    box.setPalette(palette);
}

void ColourByText(TextBox& box) {
    Colour(box, box.text().isEmpty() ? Empty : Filled);
}

void PutText(TextBox& box, const QString& text, int longest) {
    box.setMaxLength(std::max(longest, static_cast<int>(text.size())));
    box.setText(text);
}

bool CanBeSaved(TextBox& box) {
    QString text = box.text();
    CheckInputText(text, 1, 0, QString(), 0);
    if (ErrorPosition != 0) {
        box.setFocus(Qt::OtherFocusReason);
    }
    return ErrorPosition == 0;
}

} // namespace

SchemeFields::SchemeFields(QWidget* parent) : QWidget(parent), lblABCLow(NewLabel("lblABCLow", this)) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Spacing::Gap / 2);
    grid->setVerticalSpacing(2);
    AddHeader(grid, 0, 1);
    AddHeader(grid, 1, ColumnsOfHalf + 1);
    for (int position = 0; position < Count; ++position) {
        AddPair(grid, position);
    }
    grid->addWidget(lblABCLow, 1, 0, Qt::AlignRight | Qt::AlignVCenter);
    lblABCLow->setBuddy(txtABCChr.front());
    lblABCLow->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->setColumnMinimumWidth(ColumnsOfHalf - 1, Spacing::Margin);
    grid->setColumnStretch(2 * ColumnsOfHalf, 1);
}

void SchemeFields::AddHeader(QGridLayout* grid, int half, int column) {
    for (const char* array : {"lblABCSymbol", "lblABCValue"}) {
        auto* header = NewControl<QLabel>(IndexedName(array, half), this);
        grid->addWidget(header, 0, column++);
    }
}

void SchemeFields::AddPair(QGridLayout* grid, int position) {
    const int row = position % RowsInColumn + 1;
    const int column = position / RowsInColumn * ColumnsOfHalf;
    const auto p = static_cast<std::size_t>(position);
    if (position > 0) {
        auto* number = new QLabel(QString::number(position + 1), this);
        grid->addWidget(number, row, column, Qt::AlignRight | Qt::AlignVCenter);
    }
    txtABCChr[p] = NewField("txtABCChr", position, LongestSymbol);
    txtABCVal[p] = NewField("txtABCVal", position, LongestValue);
    txtABCChr[p]->setFixedWidth(SymbolWidth);
    txtABCVal[p]->setFixedWidth(ValueWidth);
    grid->addWidget(txtABCChr[p], row, column + 1);
    grid->addWidget(txtABCVal[p], row, column + 2);
    TextBox* symbol = txtABCChr[p];
    TextBox* value = txtABCVal[p];
    symbol->SetLostFocusRule([this, symbol] { return LeaveSymbol(*symbol); });
    value->SetLostFocusRule([this, position, value] { return LeaveValue(position, *value); });
}

TextBox* SchemeFields::NewField(const char* array, int position, int longest) {
    auto* box = NewControl<TextBox>(IndexedName(array, position), this);
    box->setMaxLength(longest);
    connect(box, &QLineEdit::textEdited, this, [box, longest] { box->setMaxLength(longest); }); // also one from a file
    connect(box, &QLineEdit::textChanged, this, [box] {
        if (box->isEnabled()) {
            ColourByText(*box);
        }
    });
    return box;
}

// Clear does not move the columns.
void SchemeFields::KeepRoomForLowest(bool french) {
    const QString shown = lblABCLow->text();
    int room = 0;
    for (const QString& text : {LowestSymbolText(QStringLiteral("99"), french), LowestSymbolUnknownText(french)}) {
        lblABCLow->setText(text);
        room = std::max(room, lblABCLow->sizeHint().width());
    }
    lblABCLow->setText(shown);
    lblABCLow->setMinimumWidth(room);
}

void SchemeFields::NameFields(bool french) {
    KeepRoomForLowest(french);
    for (int position = 0; position < Count; ++position) {
        const auto p = static_cast<std::size_t>(position);
        const QString number = QString::number(position + 1);
        txtABCChr[p]->setAccessibleName(
            (french ? QStringLiteral("Symbole à la position ") : QStringLiteral("Symbol at position ")) + number);
        txtABCVal[p]->setAccessibleName(
            (french ? QStringLiteral("Pourcentage à la position ") : QStringLiteral("Percent at position ")) + number);
    }
}

void SchemeFields::Put(int position, const SchemePair& pair) {
    const auto p = static_cast<std::size_t>(position);
    PutText(*txtABCChr[p], pair.Symbol, LongestSymbol);
    PutText(*txtABCVal[p], pair.Value, LongestValue);
}

void SchemeFields::SetHighest(int highest) {
    for (int position = 0; position < Count; ++position) {
        const auto p = static_cast<std::size_t>(position);
        const bool active = position <= highest;
        for (TextBox* box : {txtABCChr[p], txtABCVal[p]}) {
            box->setEnabled(active);
            if (active) {
                ColourByText(*box);
            } else {
                box->clear();
                Colour(*box, Beyond);
            }
        }
    }
}

void SchemeFields::EmptyAll() {
    for (int position = 0; position < Count; ++position) {
        Put(position, {});
    }
}

std::vector<SchemePair> SchemeFields::Pairs(int highest) const {
    std::vector<SchemePair> pairs;
    for (std::size_t p = 0; p <= static_cast<std::size_t>(std::min(highest, HighestSchemePosition)); ++p) {
        pairs.push_back({txtABCChr[p]->text(), txtABCVal[p]->text()});
    }
    return pairs;
}

void SchemeFields::ShowProblems(const SchemeProblems& problems, int highest) {
    for (int position = 0; position <= std::min(highest, HighestSchemePosition); ++position) {
        const auto p = static_cast<std::size_t>(position);
        Colour(*txtABCChr[p], problems.Symbols.contains(position) ? Problem : Filled);
        Colour(*txtABCVal[p], problems.Values.contains(position) ? Problem : Filled);
    }
}

bool SchemeFields::TextsCanBeSaved(int highest) {
    for (std::size_t p = 0; p <= static_cast<std::size_t>(std::min(highest, HighestSchemePosition)); ++p) {
        if (!CanBeSaved(*txtABCChr[p]) || !CanBeSaved(*txtABCVal[p])) {
            return false;
        }
    }
    return true;
}

bool SchemeFields::LeaveSymbol(TextBox& box) {
    QString symbol = TrimBlanks(box.text());
    box.setText(symbol);
    CheckInputText(symbol, 0, 0, QString(), 0);
    Q_EMIT Edited();
    return ErrorPosition == 0;
}

bool SchemeFields::LeaveValue(int position, TextBox& box) {
    const QString value = TrimBlanks(box.text());
    box.setText(value);
    CheckAllowedCharacters(value, QStringLiteral("0123456789"), 1);
    if (ErrorPosition != 0) {
        return false;
    }
    if (position == 1) {
        Q_EMIT SecondValueLeft(value);
    }
    Q_EMIT Edited();
    return true;
}
