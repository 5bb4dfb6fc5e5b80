#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <vector>

/// A heading of the laid out manual.
struct ManualHeading {
    QString Text;
    int Level = 1;  ///< of h1, h2, ...
    int Page = 1;   ///< from 1
    double Top = 0; ///< below the upper edge of the page's text, in pixels of the layout
};

/// Where things of a manual have come to lie.
struct ManualPlaces {
    std::vector<ManualHeading> Headings;
    QHash<QString, int> Pages;             ///< page of each named place
    QMap<QString, std::vector<int>> Index; ///< pages of each term, ascending, each once

    bool operator==(const ManualPlaces& other) const;
};

/// A named place "index:TERM" is an entry of the index; "index:TERM|OTHER" is two.
constexpr char16_t IndexPrefix[] = u"index:";

/// The manual's HTML with what its pages tell: <!--contents--> becomes the headings of levels 1 and 2 with their pages,
/// each a link to "#heading-N" (N from 0, counted over all headings); <!--index--> becomes the terms with links to
/// "#page-N"; @page:NAME@ becomes the page of the place that is so named ("?" while it is not known).
QString FilledManual(const QString& html, const ManualPlaces& places);
