#include "tools/manual/ManualText.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

namespace {

QString Row(const QString& attributes, const QString& text, const QString& page) {
    return QStringLiteral("<tr><td%1>%2</td><td align=\"right\" valign=\"bottom\">%3</td></tr>\n")
        .arg(attributes, text, page);
}

QString Contents(const std::vector<ManualHeading>& headings) {
    QString rows;
    for (std::size_t i = 0; i < headings.size(); ++i) {
        const ManualHeading& heading = headings[i];
        if (heading.Level > 2) {
            continue;
        }
        const QString format = heading.Level == 1
                                   ? QStringLiteral("<b><a href=\"#heading-%1\">%2</a></b>")
                                   : QStringLiteral("<a href=\"#heading-%1\" style=\"font-size: 9pt\">%2</a>");
        rows += Row(heading.Level == 1 ? QStringLiteral(" style=\"padding-top: 4px\"")
                                       : QStringLiteral(" style=\"padding-left: 18px\""),
                    format.arg(QString::number(i), heading.Text.toHtmlEscaped()), QString::number(heading.Page));
    }
    return QStringLiteral("<table width=\"100%\" cellspacing=\"0\" cellpadding=\"0\">\n%1</table>").arg(rows);
}

// Letters with marks are sorted among those without, and capitals among the others.
QString SortKey(const QString& term) {
    QString key;
    for (const QChar character : term.normalized(QString::NormalizationForm_KD)) {
        if (character.isLetterOrNumber() || character.isSpace()) {
            key += character.toLower();
        }
    }
    return key.trimmed();
}

QStringList IndexEntries(const QMap<QString, std::vector<int>>& index) {
    QStringList terms = index.keys();
    std::stable_sort(terms.begin(), terms.end(),
                     [](const QString& left, const QString& right) { return SortKey(left) < SortKey(right); });
    QStringList entries;
    for (const QString& term : terms) {
        QStringList pages;
        for (const int page : index[term]) {
            pages.append(QStringLiteral("<a href=\"#page-%1\">%1</a>").arg(page));
        }
        entries.append(term.toHtmlEscaped() + QStringLiteral(", ") + pages.join(QStringLiteral(", ")));
    }
    return entries;
}

// Two columns as long as each other, read down the left one first.
QString Index(const QMap<QString, std::vector<int>>& index) {
    const QStringList entries = IndexEntries(index);
    const qsizetype left = (entries.size() + 1) / 2;
    return QStringLiteral("<table width=\"100%\" cellspacing=\"0\"><tr><td width=\"50%\">%1</td>"
                          "<td width=\"50%\">%2</td></tr></table>\n")
        .arg(entries.mid(0, left).join(QStringLiteral("<br>")), entries.mid(left).join(QStringLiteral("<br>")));
}

} // namespace

bool ManualPlaces::operator==(const ManualPlaces& other) const {
    const auto same = [](const ManualHeading& left, const ManualHeading& right) {
        return left.Text == right.Text && left.Level == right.Level && left.Page == right.Page;
    };
    return std::equal(Headings.begin(), Headings.end(), other.Headings.begin(), other.Headings.end(), same) &&
           Pages == other.Pages && Index == other.Index;
}

QString FilledManual(const QString& html, const ManualPlaces& places) {
    static const QRegularExpression pageOf(QStringLiteral("@page:([^@]+)@"));
    QString filled;
    qsizetype end = 0;
    for (auto found = pageOf.globalMatch(html); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const auto page = places.Pages.find(match.captured(1));
        filled += html.mid(end, match.capturedStart() - end);
        filled += page == places.Pages.end() ? QStringLiteral("?") : QString::number(*page);
        end = match.capturedEnd();
    }
    filled += html.mid(end);
    filled.replace(QStringLiteral("<!--contents-->"), Contents(places.Headings));
    filled.replace(QStringLiteral("<!--index-->"), Index(places.Index));
    return filled;
}
