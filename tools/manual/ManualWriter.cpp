/// Turns a manual written in HTML into the PDF that the program's Help opens: manual_writer MANUAL.html MANUAL.PDF

#include "tools/manual/ManualPages.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPdfWriter>
#include <QRegularExpression>
#include <cstdio>

namespace {

constexpr int DotsPerInch = 1200;

// The language that the html element names.
QByteArray LanguageOf(const QString& html) {
    static const QRegularExpression language(QStringLiteral("<html lang=\"([a-z]+)\">"));
    return language.match(html).captured(1).toLatin1();
}

QByteArray PdfOf(ManualPages& manual, const QByteArray& language) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(DotsPerInch);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF());
        writer.setTitle(manual.Title());
        writer.setCreator(QStringLiteral("gradewell-config"));
        manual.Paint(writer);
    }
    PdfNavigation navigation = manual.Navigation();
    navigation.Language = language;
    return AddNavigation(buffer.data(), navigation);
}

bool WriteFile(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    return !bytes.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
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
    const QString html = QString::fromUtf8(source.readAll());
    ManualPages manual(html, QUrl::fromLocalFile(QFileInfo(source).absoluteFilePath()));
    for (const QString& name : manual.MissingPictures()) {
        std::fprintf(stderr, "There is no picture %s\n", qPrintable(name));
        return 1;
    }
    if (!WriteFile(arguments[2], PdfOf(manual, LanguageOf(html)))) {
        std::fprintf(stderr, "Cannot write %s\n", qPrintable(arguments[2]));
        return 1;
    }
    return 0;
}
