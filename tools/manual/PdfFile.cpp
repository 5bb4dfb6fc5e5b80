#include "tools/manual/PdfFile.h"

namespace {

constexpr qsizetype TableLine = 20; // bytes of a line of the table

QByteArray Reference(int number) {
    return QByteArray::number(number) + " 0 R";
}

} // namespace

int ReferenceIn(const QByteArray& object, const QByteArray& entry) {
    const qsizetype place = object.indexOf(entry + ' ');
    const QList<QByteArray> words = object.mid(place + entry.size()).simplified().split(' ');
    return place >= 0 && words.size() > 2 && words[2].startsWith('R') ? words[0].toInt() : 0;
}

PdfFile::PdfFile(QByteArray bytesToRead) : bytes(std::move(bytesToRead)) {
    const qsizetype start = bytes.lastIndexOf("startxref");
    const qsizetype trailer = bytes.lastIndexOf("trailer");
    if (!bytes.startsWith("%PDF-1.") || start < 0 || trailer < 0) {
        return;
    }
    tableOffset = bytes.mid(start + 9).simplified().split(' ').first().toLongLong();
    ReadTable(tableOffset);
    const QByteArray entries = bytes.mid(trailer, start - trailer);
    info = ReferenceIn(entries, "/Info") > 0 ? "/Info " + Reference(ReferenceIn(entries, "/Info")) + "\n" : "";
    const int found = ReferenceIn(entries, "/Root");
    root = Object(found).contains("/Type /Catalog") ? found : 0;
}

void PdfFile::ReadTable(qsizetype table) {
    const qsizetype firstLine = bytes.indexOf('\n', table + 5) + 1; // behind "xref" and "0 COUNT"
    if (table <= 0 || bytes.mid(table, 7) != "xref\n0 " || firstLine == 0) {
        return;
    }
    next = bytes.mid(table + 7, firstLine - table - 7).trimmed().toInt();
    for (int number = 0; number < next; ++number) {
        const QByteArray line = bytes.mid(firstLine + number * TableLine, TableLine);
        offsets.append(line.size() == TableLine && line[17] == 'n' ? line.left(10).toLongLong() : 0);
    }
}

QByteArray PdfFile::Object(int number) const {
    const qsizetype start = number > 0 && number < offsets.size() ? offsets[number] : 0;
    const QByteArray head = QByteArray::number(number) + " 0 obj\n";
    if (start == 0 || bytes.mid(start, head.size()) != head) {
        return {};
    }
    const qsizetype first = start + head.size();
    const qsizetype end = bytes.indexOf("endobj", first);
    return end < 0 ? QByteArray() : bytes.mid(first, end - first);
}

QList<int> PdfFile::Pages() const {
    QList<int> pages;
    const QByteArray tree = Object(ReferenceIn(Object(root), "/Pages"));
    const qsizetype first = tree.indexOf("/Kids") + 5;
    const QByteArray kids = tree.mid(first, tree.indexOf(']', first) - first).replace('[', ' ');
    const QList<QByteArray> words = kids.simplified().split(' ');
    for (qsizetype i = 0; i + 2 < words.size(); i += 3) {
        pages.append(words[i].toInt());
    }
    return pages;
}

QByteArray PdfFile::WithChanges() const {
    QByteArray result = bytes.endsWith('\n') ? bytes : bytes + '\n';
    QByteArray table = "xref\n";
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        const QByteArray number = QByteArray::number(change.key());
        table += number + " 1\n" + QByteArray::number(result.size()).rightJustified(10, '0') + " 00000 n \n";
        result += number + " 0 obj\n" + change.value() + "\nendobj\n";
    }
    const qsizetype start = result.size();
    return result + table + "trailer\n<<\n/Size " + QByteArray::number(next) + "\n" + info + "/Root " +
           Reference(root) + "\n/Prev " + QByteArray::number(tableOffset) + "\n>>\nstartxref\n" +
           QByteArray::number(start) + "\n%%EOF\n";
}
