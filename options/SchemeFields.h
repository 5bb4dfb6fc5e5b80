#pragma once

#include "options/SchemeFile.h"

#include <QWidget>
#include <array>

class QGridLayout;
class QLabel;
class TextBox;
struct SchemeProblems;

/// The nineteen pairs of symbol and value of the scheme editor, with their colours: white for a filled active field,
/// light yellow for an empty one, light cyan for a field beyond the active levels, pink for one that a problem names.
class SchemeFields : public QWidget {
    Q_OBJECT

public:
    explicit SchemeFields(QWidget* parent);

    static constexpr int Count = HighestSchemePosition + 1;

    /// Puts a pair into the fields of a position; texts that were read from a file may be longer than typed ones.
    void Put(int position, const SchemePair& pair);

    /// Empties, colours and disables the fields above the highest active position, colours and enables the others.
    void SetHighest(int highest);

    /// Empties all fields.
    void EmptyAll();

    /// The pairs of the positions 0 to `highest`, as they stand in the fields.
    std::vector<SchemePair> Pairs(int highest) const;

    /// Colours the fields up to `highest` white, those that a problem names pink.
    void ShowProblems(const SchemeProblems& problems, int highest);

    /// Brings the first field whose text no scheme file can hold to the front and reports it; true when there is none.
    bool TextsCanBeSaved(int highest);

    /// What a screen reader says for the fields, in the edition's language.
    void NameFields(bool french);

    QLabel* const lblABCLow; ///< label of the lowest symbol

Q_SIGNALS:
    /// A symbol was left (its text may have been refused) or a value was left and passed.
    void Edited();
    /// The value of the second position was left and passed.
    void SecondValueLeft(const QString& value);

private:
    std::array<TextBox*, Count> txtABCChr{};
    std::array<TextBox*, Count> txtABCVal{};

    void AddHeader(QGridLayout* grid, int half, int column);
    void AddPair(QGridLayout* grid, int position);
    TextBox* NewField(const char* array, int position, int longest);
    void KeepRoomForLowest(bool french);
    bool LeaveSymbol(TextBox& box);
    bool LeaveValue(int position, TextBox& box);
};
