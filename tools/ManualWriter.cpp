/// Turns a manual written in HTML into the PDF that the program's Help opens: manual_writer MANUAL.html MANUAL.PDF

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>
#include <cstdio>

namespace {

constexpr int PixelsPerInch = 96;

/// Lays the document out for the page and paints it, page numbers included; false when the file cannot be written.
bool WritePdf(const QString& html, const QString& source, const QString& target) {
    QTextDocument manual;
    manual.setDefaultFont(QFont(QStringLiteral("Liberation Sans"), 10));
    manual.setBaseUrl(QUrl::fromLocalFile(QFileInfo(source).absoluteFilePath()));
    manual.setHtml(html);

    QPdfWriter pages(target);
    pages.setResolution(PixelsPerInch * 12);
    pages.setPageSize(QPageSize(QPageSize::Letter));
    pages.setTitle(manual.metaInformation(QTextDocument::DocumentTitle));
    pages.setCreator(QStringLiteral("gradewell-config"));
    manual.print(&pages);
    return QFileInfo(target).size() > 0;
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("Usage: manual_writer MANUAL.html MANUAL.PDF\n", stderr);
        return 2;
    }
    QFile source(arguments[1]);
    if (!source.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "Cannot read %s\n", qPrintable(arguments[1]));
        return 1;
    }
    if (!WritePdf(QString::fromUtf8(source.readAll()), arguments[1], arguments[2])) {
        std::fprintf(stderr, "Cannot write %s\n", qPrintable(arguments[2]));
        return 1;
    }
    return 0;
}
