#include "tools/manual/ManualPages.h"

#include <QAbstractTextDocumentLayout>
#include <QImageReader>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <QTextTable>
#include <cmath>

namespace {

// The layout is in pixels of 1/96 inch; an A4 page has 793.7 by 1122.5 of them.
constexpr double PixelsPerInch = 96;
constexpr double PointsPerPixel = 72 / PixelsPerInch;
constexpr double PageHeight = 1122.5;
constexpr double PageWidth = 793.7;
constexpr QSizeF TextSize(628, 946);
constexpr double Left = (PageWidth - TextSize.width()) / 2;
constexpr double Top = 92;
constexpr double HeaderTop = 52;
constexpr double FooterTop = 1052;
constexpr double LineHeight = 20;
constexpr int LinesOfShortBlock = 8;
constexpr int MostPasses = 8; // until no page number changes any more
const QColor Faint(0x50, 0x5a, 0x66);

QFont ManualFont(double points) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(qRound(points / PointsPerPixel)); // not in points, which the PDF's own resolution would scale
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

bool StaysWithNext(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    return format.headingLevel() > 0 || (format.bottomMargin() == 0 && block.textList() == nullptr);
}

bool BeginsPage(const QTextBlock& block) {
    return (block.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore) != 0;
}

bool IsInTable(const QTextBlock& block) {
    return QTextCursor(block).currentTable() != nullptr;
}

} // namespace

ManualPages::ManualPages(const QString& html, const QUrl& base) {
    document.setDefaultFont(ManualFont(10));
    document.setUseDesignMetrics(true);
    document.setDocumentMargin(0);
    document.setBaseUrl(base);
    document.setPageSize(TextSize);
    for (int pass = 0; pass < MostPasses; ++pass) {
        const ManualPlaces before = places;
        LayOut(FilledManual(html, places));
        if (places == before) {
            break;
        }
    }
}

void ManualPages::LayOut(const QString& html) {
    document.setHtml(html);
    KeepTogether();
    TakePlaces();
}

// The document's own layout after a change leaves blocks and tables behind the change at old places.
void ManualPages::LayOutAnew() {
    document.setPageSize(QSizeF());
    document.setPageSize(TextSize);
}

void ManualPages::KeepTogether() {
    const int most = document.blockCount();
    for (int moved = 0; moved < most && MoveFirstTornBlock(); ++moved) {
        LayOutAnew();
    }
}

// A short paragraph that the page's end cuts, or one that is cut off from the block that it stays with.
bool ManualPages::IsTorn(const QTextBlock& block) const {
    const int page = PageOf(block, 0);
    const bool isShort = block.layout()->lineCount() <= LinesOfShortBlock;
    return !IsInTable(block) &&
           ((isShort && PageOf(block, block.length() - 1) != page) ||
            (StaysWithNext(block) && !BeginsPage(block.next()) && PageOf(block.next(), 0) != page));
}

// The first torn block begins a new page, with all that stay with it.
bool ManualPages::MoveFirstTornBlock() {
    for (QTextBlock block = document.begin(); block.next().isValid(); block = block.next()) {
        const int page = PageOf(block, 0);
        if (!IsTorn(block)) {
            continue;
        }
        QTextBlock first = block;
        while (first.previous().isValid() && StaysWithNext(first.previous()) && !IsInTable(first.previous()) &&
               PageOf(first.previous(), 0) == page) {
            first = first.previous();
        }
        QTextBlockFormat format = first.blockFormat();
        if (TopOf(first) < LineHeight || BeginsPage(first)) {
            continue;
        }
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(first).setBlockFormat(format);
        return true;
    }
    return false;
}

int ManualPages::PageOf(const QTextBlock& block, int position) const {
    const QRectF place = document.documentLayout()->blockBoundingRect(block);
    const QTextLine line = block.layout()->lineForTextPosition(position);
    return static_cast<int>(std::floor((place.top() + (line.isValid() ? line.y() : 0) + 1) / TextSize.height())) + 1;
}

double ManualPages::TopOf(const QTextBlock& block) const {
    return std::fmod(document.documentLayout()->blockBoundingRect(block).top(), TextSize.height());
}

void ManualPages::TakePlaces() {
    places = {};
    tops.clear();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (const int level = block.blockFormat().headingLevel(); level > 0) {
            tops.insert(QStringLiteral("heading-%1").arg(places.Headings.size()), TopOf(block));
            places.Headings.push_back({block.text(), level, PageOf(block, 0), TopOf(block)});
        }
        TakeNames(block);
    }
}

// A name marks the first character after it, which would become a link to nowhere.
void ManualPages::TakeNames(const QTextBlock& block) {
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextFragment fragment = at.fragment();
        const QTextCharFormat format = fragment.charFormat();
        const int page = PageOf(block, fragment.position() - block.position());
        for (const QString& name : format.anchorNames()) {
            const QString prefix = QString::fromUtf16(IndexPrefix);
            if (!name.startsWith(prefix)) {
                places.Pages.insert(name, page);
                tops.insert(name, TopOf(block));
                continue;
            }
            for (const QString& term : name.mid(prefix.size()).split(u'|')) {
                std::vector<int>& pages = places.Index[term];
                if (pages.empty() || pages.back() != page) {
                    pages.push_back(page);
                }
            }
        }
    }
}

int ManualPages::Count() const {
    return document.pageCount();
}

QString ManualPages::Title() const {
    return document.metaInformation(QTextDocument::DocumentTitle);
}

PdfNavigation ManualPages::Navigation() const {
    const auto placeAt = [](int page, double top) {
        return PdfPlace{page - 1, (PageHeight - Top - top + LineHeight / 2) * PointsPerPixel};
    };
    PdfNavigation navigation;
    for (std::size_t i = 0; i < places.Headings.size(); ++i) {
        const ManualHeading& heading = places.Headings[i];
        const PdfPlace place = placeAt(heading.Page, heading.Top);
        navigation.LinkTargets.insert(QStringLiteral("heading-%1").arg(i), place);
        if (heading.Level <= 2) {
            navigation.Bookmarks.push_back({heading.Text, heading.Level, place});
        }
    }
    for (auto name = places.Pages.begin(); name != places.Pages.end(); ++name) {
        navigation.LinkTargets.insert(name.key(), placeAt(*name, tops[name.key()]));
    }
    for (int page = 1; page <= Count(); ++page) {
        navigation.LinkTargets.insert(QStringLiteral("page-%1").arg(page), placeAt(page, 0));
    }
    return navigation;
}

QStringList ManualPages::MissingPictures() const {
    QStringList missing;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextCharFormat format = at.fragment().charFormat();
            const QString name = format.isImageFormat() ? format.toImageFormat().name() : QString();
            if (!name.isEmpty() && !QImageReader(document.baseUrl().resolved(QUrl(name)).toLocalFile()).canRead()) {
                missing.append(name);
            }
        }
    }
    return missing;
}

void ManualPages::Paint(QPagedPaintDevice& device) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd();) {
            const QTextFragment fragment = at.fragment();
            QTextCharFormat format = fragment.charFormat();
            ++at;
            if (format.isAnchor() && format.anchorHref().isEmpty()) {
                QTextCursor cursor(&document);
                cursor.setPosition(fragment.position());
                cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
                format.setAnchor(false);
                format.clearProperty(QTextFormat::AnchorName);
                cursor.setCharFormat(format);
                at = block.begin(); // the fragments are others now
            }
        }
    }
    LayOutAnew();
    QPainter painter(&device);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.scale(device.logicalDpiX() / PixelsPerInch, device.logicalDpiY() / PixelsPerInch);
    for (int page = 1; page <= Count(); ++page) {
        if (page > 1) {
            device.newPage();
        }
        PaintPage(painter, page);
    }
}

void ManualPages::PaintPage(QPainter& painter, int page) {
    painter.save();
    painter.translate(Left, Top - (page - 1) * TextSize.height());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF(QPointF(0, (page - 1) * TextSize.height()), TextSize);
    context.palette.setColor(QPalette::Text, Qt::black);
    painter.setClipRect(context.clip);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
    if (page == 1) {
        return;
    }
    QString chapter;
    for (const ManualHeading& heading : places.Headings) {
        chapter = heading.Level == 1 && heading.Page <= page ? heading.Text : chapter;
    }
    painter.setFont(ManualFont(8.5));
    painter.setPen(Faint);
    const QRectF header(Left, HeaderTop, TextSize.width(), LineHeight);
    painter.drawText(header, Qt::AlignLeft | Qt::AlignVCenter, Title());
    painter.drawText(header, Qt::AlignRight | Qt::AlignVCenter, chapter);
    painter.drawLine(QPointF(Left, HeaderTop + LineHeight + 4),
                     QPointF(Left + TextSize.width(), HeaderTop + LineHeight + 4));
    painter.drawText(QRectF(Left, FooterTop, TextSize.width(), LineHeight), Qt::AlignCenter, QString::number(page));
}
