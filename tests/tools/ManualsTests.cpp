// The manuals themselves: their pages, and that each message of the program is explained.

#include "tools/manual/ManualPages.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <gtest/gtest.h>

namespace {

constexpr int FewestPages = 15;
constexpr int MostPages = 40;
constexpr qsizetype WordsOfAText = 5;

QString Source(const QString& name) {
    QFile file(QStringLiteral(SOURCES "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll());
}

QString ManualName(const std::string& edition) {
    return QStringLiteral("docs/manual/%1.html").arg(QString::fromStdString(edition));
}

// Words and what stands in them; blanks, line ends and arrows are nothing.
QString Words(QString text) {
    static const QRegularExpression between(QStringLiteral("[^\\w@()/.,!'\"#-]+"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    return text.replace(between, QStringLiteral(" ")).trimmed();
}

QString WordsOfManual(const std::string& edition) {
    return Words(QTextDocumentFragment::fromHtml(Source(ManualName(edition))).toPlainText());
}

bool MayHoldMessages(const QString& name, const QString& code) {
    static const QRegularExpression shows(
        QStringLiteral("ShowNotice|ShowMessage|MessageButtons::|Fault|Complaint|Complain|Reason|Question|Refused"));
    return code.contains(shows) || name.endsWith(QStringLiteral("Texts.cpp"));
}

// The parts of a source's texts between line ends and places to be filled in, without tables of captions.
QStringList TextsOf(QString code) {
    static const QRegularExpression left(
        QStringLiteral(
            "//[^\\n]*|#include[^\\n]*|(Q_ASSERT|setAccessible|setToolTip)[^;]*;|Caption \\w+\\[\\] = \\{.*?\\n\\};|"
            "to_array<Caption>\\(\\{.*?\\n\\}\\);"),
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression literal(QStringLiteral("\"((?:[^\"\\\\\\n]|\\\\.)*)\""));
    static const QRegularExpression joint(QStringLiteral("\"\\s*\""));
    static const QRegularExpression gap(QStringLiteral("%\\d|\\\\n"));
    QStringList texts;
    code.remove(left);
    const QString escaped = QStringLiteral("\\\"");
    code.replace(escaped, QStringLiteral("\u0001")).remove(joint).replace(QStringLiteral("\u0001"), escaped);
    for (auto found = literal.globalMatch(code); found.hasNext();) {
        QString text = found.next().captured(1);
        text.replace(escaped, QStringLiteral("\"")).replace(QStringLiteral("\\\\"), QStringLiteral("\\"));
        for (const QString& part : text.split(gap)) {
            const QString words = Words(part);
            if (words.count(u' ') >= WordsOfAText - 1) {
                texts.append(words);
            }
        }
    }
    return texts;
}

// Texts beside the messages in the same sources: captions with a name in them, sections of files, names for screen
// readers, and French texts for a window that is shown in English.
bool IsNoMessage(const QString& text) {
    static const QRegularExpression others(QStringLiteral(
        "^(- |\\.|'|JPeg |All Files |Gradewell Import - |Update (Actions|Fields) 0|Settings are saved in the file|"
        "Les consignes de configuration|Si vous décidez de vérouiller|Utilisez l'option|Veuillez ne PAS supprimer|"
        "Cliquez|L'emplacement des fichiers de données|Impossible de démarrer|Désolé, aucun éditeur)"));
    return text.contains(others);
}

class EachManual : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Editions, EachManual, testing::Values("english", "french"),
                         [](const auto& tested) { return tested.param; });

TEST_P(EachManual, HasPagesPicturesContentsAndIndex) {
    const QString name = ManualName(GetParam());
    const ManualPages manual(Source(name), QUrl::fromLocalFile(QStringLiteral(SOURCES "/") + name));
    EXPECT_GE(manual.Count(), FewestPages);
    EXPECT_LE(manual.Count(), MostPages);
    EXPECT_TRUE(manual.MissingPictures().isEmpty()) << manual.MissingPictures().join(u' ').toStdString();
    EXPECT_GT(manual.Places().Index.size(), 50);
    EXPECT_EQ(manual.Places().Headings.back().Page, manual.Count()) << "the index has the last page for itself";
    EXPECT_GT(manual.Navigation().Bookmarks.size(), 30U);
    const QString filled = FilledManual(Source(name), manual.Places());
    static const QRegularExpression unknown(QStringLiteral("\\b(page|Seite)\\s\\?"));
    EXPECT_FALSE(filled.contains(unknown)) << "a page that is referred to has no name";
    EXPECT_FALSE(filled.contains(QStringLiteral("<!--"))) << "contents and index are in it";
}

TEST_P(EachManual, ShowsEveryPictureThatWasTaken) {
    const QString html = Source(ManualName(GetParam()));
    const QString folder = QStringLiteral("pictures/%1/").arg(QString::fromStdString(GetParam()));
    const QStringList pictures = QDir(QStringLiteral(SOURCES "/docs/manual/") + folder).entryList(QDir::Files);
    EXPECT_GE(pictures.size(), 12);
    for (const QString& picture : pictures) {
        EXPECT_TRUE(html.contains(folder + picture)) << picture.toStdString();
    }
}

TEST(Manuals, ExplainEveryMessageOfTheProgram) {
    const QString manuals = WordsOfManual("english") + u' ' + WordsOfManual("french");
    int texts = 0;
    for (const char* room : {"app", "options", "import", "admin", "transfer", "platform"}) {
        QDirIterator walk(QStringLiteral(SOURCES "/") + QString::fromLatin1(room), {QStringLiteral("*.cpp")},
                          QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString name = QDir(QStringLiteral(SOURCES)).relativeFilePath(walk.next());
            const QString code = Source(name);
            for (const QString& text : MayHoldMessages(name, code) ? TextsOf(code) : QStringList()) {
                if (!IsNoMessage(text)) {
                    EXPECT_TRUE(manuals.contains(text)) << name.toStdString() << ": " << text.toStdString();
                    ++texts;
                }
            }
        }
    }
    EXPECT_GT(texts, 50) << "the sources were read";
}

TEST(Manuals, HaveTheSameChaptersAndMessagesInBothLanguages) {
    const auto count = [](const std::string& edition, const char* tag) {
        return Source(ManualName(edition)).count(QLatin1String(tag));
    };
    for (const char* tag : {"<h1>", "<h2>", "<h3>", "<p class=\"says\">", "<img "}) {
        EXPECT_EQ(count("english", tag), count("french", tag)) << tag;
    }
}

} // namespace
