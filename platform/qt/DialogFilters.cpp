#include "platform/qt/DialogFilters.h"

namespace {

// "*.jpg" as "*.[jJ][pP][gG]": the stations' file names know no case.
QString AnyCase(const QString& pattern) {
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

// Qt takes the last parentheses of an entry for the pattern, so the label goes without its own.
QString QtFilter(const QString& label, const QString& pattern) {
    const QString name = label.left(label.indexOf(QLatin1Char('('))).trimmed();
    const bool every = pattern == QStringLiteral("*.*");
    return QStringLiteral("%1 (%2)").arg(name, every ? QStringLiteral("*") : AnyCase(pattern));
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
