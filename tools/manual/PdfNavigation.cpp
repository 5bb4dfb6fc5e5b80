#include "tools/manual/PdfNavigation.h"

#include "tools/manual/PdfFile.h"

#include <algorithm>

namespace {

// A text in hexadecimal digits, which need no escapes: a byte order mark, then UTF-16.
QByteArray TextObject(const QString& text) {
    QByteArray digits = "<FEFF";
    for (const QChar character : text) {
        digits += QByteArray::number(character.unicode(), 16).rightJustified(4, '0').toUpper();
    }
    return digits + '>';
}

QByteArray Reference(int number) {
    return QByteArray::number(number) + " 0 R";
}

QByteArray Destination(const QList<int>& pages, const PdfPlace& place) {
    return "[" + Reference(pages[place.Page]) + " /XYZ 0 " + QByteArray::number(place.Height, 'f', 1) + " null]";
}

// The outline's lines with their numbers and neighbours.
class Outline {
public:
    Outline(PdfFile& fileToChange, const QList<int>& pagesToUse, const std::vector<PdfBookmark>& lines)
        : file(fileToChange), pages(pagesToUse), bookmarks(lines), number(file.NewNumber()) {
        for (std::size_t i = 0; i < bookmarks.size(); ++i) {
            numbers.push_back(file.NewNumber());
        }
    }

    int Write() {
        QByteArray object = "<<\n/Type /Outlines\n" + Children(0, 1);
        file.Replace(number, object + ">>");
        for (std::size_t i = 0; i < bookmarks.size(); ++i) {
            WriteLine(i);
        }
        return number;
    }

private:
    void WriteLine(std::size_t line) {
        const PdfBookmark& bookmark = bookmarks[line];
        const std::size_t parent = bookmark.Level == 1 ? bookmarks.size() : Neighbour(line, -1, 1);
        QByteArray object = "<<\n/Title " + TextObject(bookmark.Title) + "\n/Parent " +
                            Reference(parent < bookmarks.size() ? numbers[parent] : number) + "\n";
        for (const int step : {-1, 1}) {
            const std::size_t other = Neighbour(line, step, bookmark.Level);
            if (other < bookmarks.size()) {
                object += (step < 0 ? "/Prev " : "/Next ") + Reference(numbers[other]) + "\n";
            }
        }
        if (bookmark.Level == 1) {
            object += Children(line + 1, 2);
        }
        file.Replace(numbers[line], object + "/Dest " + Destination(pages, bookmark.Place) + "\n>>");
    }

    // The nearest line of that level, without leaving the parent; the number of lines when there is none.
    std::size_t Neighbour(std::size_t line, int step, int level) const {
        for (auto i = static_cast<std::ptrdiff_t>(line) + step; i >= 0 && i < std::ssize(bookmarks); i += step) {
            const int found = bookmarks[static_cast<std::size_t>(i)].Level;
            if (found <= level) {
                return found == level ? static_cast<std::size_t>(i) : bookmarks.size();
            }
        }
        return bookmarks.size();
    }

    // First, last and count of the lines of that level from `first` on; those of level 2 are folded in at the start.
    QByteArray Children(std::size_t first, int level) const {
        std::size_t last = bookmarks.size();
        int count = 0;
        for (std::size_t i = first; i < bookmarks.size() && bookmarks[i].Level >= level; ++i) {
            if (bookmarks[i].Level == level) {
                last = i;
                ++count;
            }
        }
        if (count == 0) {
            return {};
        }
        return "/First " + Reference(numbers[first]) + "\n/Last " + Reference(numbers[last]) + "\n/Count " +
               QByteArray::number(level == 1 ? count : -count) + "\n";
    }

    PdfFile& file;
    const QList<int>& pages;
    const std::vector<PdfBookmark>& bookmarks;
    int number;
    std::vector<int> numbers;
};

// A link is made by the text's own writer as one to an address of the net, here "#name".
void LeadLinks(PdfFile& file, const QList<int>& pages, const QHash<QString, PdfPlace>& targets) {
    for (int number = 1; number <= file.Count(); ++number) {
        const QByteArray object = file.Object(number);
        const qsizetype action = object.indexOf("/A <<");
        const qsizetype name = object.indexOf("/URI (#") + 7;
        if (!object.contains("/Subtype /Link") || action < 0 || name < 7) {
            continue;
        }
        const auto target = targets.find(QString::fromLatin1(object.mid(name, object.indexOf(')', name) - name)));
        if (target != targets.end()) {
            file.Replace(number, object.left(action) + "/Dest " + Destination(pages, *target) + "\n>>");
        }
    }
}

} // namespace

QByteArray AddNavigation(const QByteArray& pdf, const PdfNavigation& navigation) {
    PdfFile file(pdf);
    const QList<int> pages = file.IsValid() ? file.Pages() : QList<int>();
    const auto isThere = [&pages](const PdfPlace& place) { return place.Page >= 0 && place.Page < pages.size(); };
    const bool allThere = std::all_of(navigation.Bookmarks.begin(), navigation.Bookmarks.end(),
                                      [&](const PdfBookmark& line) { return isThere(line.Place); }) &&
                          std::all_of(navigation.LinkTargets.begin(), navigation.LinkTargets.end(), isThere);
    if (pages.isEmpty() || !allThere) {
        return {};
    }
    QByteArray additions = "/Lang (" + navigation.Language + ")\n";
    if (!navigation.Bookmarks.empty()) {
        additions +=
            "/Outlines " + Reference(Outline(file, pages, navigation.Bookmarks).Write()) + "\n/PageMode /UseOutlines\n";
    }
    const QByteArray catalog = file.Object(file.Root());
    file.Replace(file.Root(), catalog.left(catalog.lastIndexOf(">>")) + additions + ">>");
    LeadLinks(file, pages, navigation.LinkTargets);
    return file.WithChanges();
}
