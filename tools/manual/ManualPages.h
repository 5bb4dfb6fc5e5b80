#pragma once

#include "tools/manual/ManualText.h"
#include "tools/manual/PdfNavigation.h"

#include <QTextDocument>
#include <QUrl>

class QPagedPaintDevice;
class QPainter;
class QTextBlock;

/// A manual, laid out on A4 pages: a title page, then pages with the manual's title above and their number below. A
/// heading, a picture's line and every paragraph without room below it stay on the page of what follows them; a short
/// paragraph stays on one page.
class ManualPages {
public:
    /// Pictures are found beside `base`, the manual's own file.
    ManualPages(const QString& html, const QUrl& base);

    int Count() const;
    QString Title() const;
    const ManualPlaces& Places() const { return places; }
    /// Bookmarks of the headings of levels 1 and 2, and the targets of the links.
    PdfNavigation Navigation() const;
    /// The names of pictures that could not be read.
    QStringList MissingPictures() const;

    /// Paints all pages; the device's pages are A4 without margins.
    void Paint(QPagedPaintDevice& device);

private:
    void LayOut(const QString& html);
    void LayOutAnew();
    void KeepTogether();
    bool IsTorn(const QTextBlock& block) const;
    bool MoveFirstTornBlock();
    void TakePlaces();
    void TakeNames(const QTextBlock& block);
    void PaintPage(QPainter& painter, int page);
    int PageOf(const QTextBlock& block, int position) const;
    double TopOf(const QTextBlock& block) const;

    QTextDocument document;
    ManualPlaces places;
    QHash<QString, double> tops; // of named places, below the upper edge of the page's text
};
