#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>

/// A PDF with one table of objects, as QPdfWriter makes it, and the changes that are to be appended to it.
class PdfFile {
public:
    explicit PdfFile(QByteArray bytes);

    /// Whether the table and the trailer were understood.
    bool IsValid() const { return root > 0; }
    /// The number of the catalogue, from which everything else is reached.
    int Root() const { return root; }
    /// The objects of the pages, in order.
    QList<int> Pages() const;
    /// How many objects there are; they are numbered from 1.
    int Count() const { return static_cast<int>(offsets.size()) - 1; }
    /// What stands between "N 0 obj" and "endobj"; empty for a number without an object.
    QByteArray Object(int number) const;

    void Replace(int number, const QByteArray& object) { changes.insert(number, object); }
    /// Takes a number for an object that is put in place later.
    int NewNumber() { return next++; }
    /// The old bytes with the changes after them.
    QByteArray WithChanges() const;

private:
    void ReadTable(qsizetype table);

    QByteArray bytes;
    QList<qsizetype> offsets; // by number; 0 is no object
    qsizetype tableOffset = 0;
    QByteArray info;
    int root = 0;
    int next = 0;
    QMap<int, QByteArray> changes;
};

/// The number of the object that the entry refers to ("/Pages" in "/Pages 3 0 R"); 0 when there is none.
int ReferenceIn(const QByteArray& object, const QByteArray& entry);
