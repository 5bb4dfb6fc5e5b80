#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <vector>

/// A place in a PDF: its page from 0, and how far above the page's lower edge it lies, in points.
struct PdfPlace {
    int Page = 0;
    double Height = 0;
};

/// A line of the outline that a viewer shows beside the pages.
struct PdfBookmark {
    QString Title;
    int Level = 1; ///< 1, or 2 for a line below the last one of level 1
    PdfPlace Place;
};

/// What turns a row of pages into a document that can be read on a screen.
struct PdfNavigation {
    std::vector<PdfBookmark> Bookmarks;   ///< in the order of the pages; the first one is of level 1
    QHash<QString, PdfPlace> LinkTargets; ///< by name; a link to "#name" leads there
    QByteArray Language;                  ///< "en"; read by screen readers
};

/// Adds bookmarks and language to a PDF as QPdfWriter makes it, and lets its links to "#name" lead to their places: an
/// incremental update (ISO 32000-1, 7.5.6), so no byte of the file changes. A link without a target keeps what it has.
/// Empty when the bytes are no such PDF, or when a place lies on a page that it does not have.
QByteArray AddNavigation(const QByteArray& pdf, const PdfNavigation& navigation);
