#include "import/RecordSplitter.h"

#include "platform/CodePage.h"

#include <algorithm>

namespace {

constexpr char Tab = '\t';
constexpr char Comma = ',';
constexpr char Quote = '"';
constexpr char Blank = ' ';

struct Rest {
    std::int64_t From;
    std::int64_t To;
};

char Unquoted(char byte) {
    return byte == Tab || byte == Comma || byte == Quote ? Blank : byte;
}

// A field's text; its bytes before `quotedUntil` stand in quotes. What lies beyond the cut can only be more of the
// field's inside or blanks, so trimming after the cut is right for both.
QString FieldText(RecordBytes& bytes, const Rest& field, std::int64_t quotedUntil) {
    const auto byteAt = [&](std::int64_t place) {
        const char byte = bytes.At(place);
        return place < quotedUntil ? Unquoted(byte) : byte;
    };
    std::int64_t start = field.From;
    while (start < field.To && byteAt(start) == Blank) {
        ++start;
    }
    QByteArray shown;
    for (std::int64_t place = start; place < std::min(field.To, start + ShownCharacters); ++place) {
        shown.append(byteAt(place));
    }
    return TrimBlanks(TextFromBytes(shown));
}

// Where the quotes of a leading quoted field end (behind the closing one); the rest's start when there are none.
std::int64_t EndOfQuotes(RecordBytes& bytes, const Rest& rest) {
    if (rest.From == rest.To || bytes.At(rest.From) != Quote) {
        return rest.From;
    }
    const std::int64_t closing = bytes.Find(Quote, rest.From + 1, rest.To);
    return closing == rest.To ? rest.From : closing + 1;
}

// Takes the next field off the rest; false when the record is finished.
bool SplitNextField(RecordBytes& bytes, Rest& rest, ImportRecord& record) {
    const std::int64_t quotedUntil = EndOfQuotes(bytes, rest);
    const std::int64_t separator = bytes.Find(record.Separator, quotedUntil, rest.To);
    if (separator == rest.To) {
        if (rest.From < rest.To) {
            record.Fields.append(FieldText(bytes, rest, quotedUntil));
        }
        return false;
    }
    record.Fields.append(FieldText(bytes, {rest.From, separator}, quotedUntil));
    rest.From = separator + 1;
    return record.Fields.size() < FieldLimit;
}

Rest WithoutBlanks(RecordBytes& bytes, std::int64_t from, std::int64_t to) {
    from = bytes.FindOther(Blank, from, to);
    while (to > from && bytes.At(to - 1) == Blank) {
        --to;
    }
    return {from, to};
}

} // namespace

ImportRecord SplitImportRecord(RecordBytes& bytes, std::int64_t from, std::int64_t to) {
    ImportRecord record;
    Rest rest = WithoutBlanks(bytes, from, to);
    if (bytes.Find(Tab, rest.From, rest.To) != rest.To) {
        record.Separator = Tab;
    } else if (bytes.Find(Comma, rest.From, rest.To) != rest.To) {
        record.Separator = Comma;
    } else {
        record.Fields.append(FieldText(bytes, rest, rest.From));
        return record;
    }
    while (SplitNextField(bytes, rest, record)) {
    }
    return record;
}

ImportRecord SplitImportRecord(const QByteArray& record) {
    BytesInMemory bytes(record);
    return SplitImportRecord(bytes, 0, record.size());
}
