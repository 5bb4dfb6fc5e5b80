#pragma once

#include "platform/SystemError.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <variant>
#include <vector>

/// The two line forms that the configuration file, the scheme files and the Transfer Program's file share.
/// Plain line: the text itself; a number with a blank (or its minus sign) before and a blank after it.
/// Quoted line: items separated by commas, texts in double quotes, numbers bare. Lines end CR LF.

/// What stopped a reader, and in which line of the file (counted from 1).
struct ItemError {
    SystemError Error;
    int Line = 0;

    explicit operator bool() const { return bool(Error); }
};

/// A decimal number within 16 bits: blanks around it are ignored, one sign is allowed, nothing else.
/// Reports number 13 for anything that is no such number and 6 for one that does not fit; `value` changes only on
/// success.
SystemError ParseNumber(const QString& text, std::int16_t& value);

/// Reads a file item by item, plain and quoted lines alike: an item ends at a comma or at the end of a line
/// (CR LF, LF or CR). Double quotes around an item are removed, and a comma between them belongs to the item;
/// what stands between a closing quote and the next comma is dropped. An unquoted item keeps its blanks.
/// After the first failure every further read fails and the error stays the first one.
class ItemReader {
public:
    explicit ItemReader(QByteArray bytes);

    /// Reads the next item. Fails with number 62 at the end of the file and 75 when a quote is not closed in its line.
    bool ReadText(QString& value);

    /// Reads the next item as a number (ParseNumber); `value` changes only on success.
    bool ReadNumber(std::int16_t& value);

    /// Reads and drops `count` items.
    bool Skip(int count = 1);

    /// Stops the reading with an error of the caller's own in the line of the last item; returns false.
    bool Fail(ErrorNumber number);

    /// True when no item is left.
    bool AtEnd() const;

    const ItemError& Error() const { return error; }

private:
    QByteArray bytes;
    qsizetype at = 0;
    int line = 1;
    int itemLine = 1;
    bool itemAfterComma = false;
    ItemError error;

    bool ReadItem(QString& value);
    qsizetype QuotedItem(qsizetype quote, QString& value);
    qsizetype EndOfField(qsizetype from) const;
    void PassSeparator();
};

/// An item of a quoted line: a text (written in double quotes) or a number (written bare).
using Item = std::variant<QString, std::int16_t>;

/// Builds the bytes of a file line by line.
class ItemWriter {
public:
    void PlainLine(const QString& text);
    void PlainNumber(std::int16_t number);
    void QuotedLine(const std::vector<Item>& items);
    /// The separator line: a quoted empty text, the two characters "".
    void Separator();

    const QByteArray& Bytes() const { return bytes; }

private:
    QByteArray bytes;

    void EndLine();
};
