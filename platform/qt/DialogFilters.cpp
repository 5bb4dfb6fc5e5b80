#include "platform/qt/DialogFilters.h"

namespace {

#ifdef Q_OS_WIN
// The system's dialog matches without case, and takes "*.*" for every file.
QString PatternOf(const QString& pattern) {
    return pattern;
}
#else
// "*.jpg" as "*.[jJ][pP][gG]": the stations' file names know no case.
QString PatternOf(const QString& pattern) {
    if (pattern == QStringLiteral("*.*")) {
        return QStringLiteral("*");
    }
    QString result;
    for (const QChar character : pattern) {
        if (character.toLower() != character.toUpper()) {
            result += QLatin1Char('[') + character.toLower() + character.toUpper() + QLatin1Char(']');
        } else {
            result += character;
        }
    }
    return result;
}
#endif

// Qt takes the last parentheses of an entry for the pattern. The system's dialog on Windows shows them; elsewhere the
// label keeps its own, and the dialog is told to show nothing more.
QString QtFilter(const QString& label, const QString& pattern) {
#ifdef Q_OS_WIN
    const QString name = label.left(label.indexOf(QLatin1Char('('))).trimmed();
#else
    const QString& name = label;
#endif
    return QStringLiteral("%1 (%2)").arg(name, PatternOf(pattern));
}

} // namespace

QStringList QtFilters(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        filters.append(QtFilter(parts[i], parts[i + 1]));
    }
    return filters;
}
