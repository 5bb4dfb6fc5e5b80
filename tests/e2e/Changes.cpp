#include "tests/e2e/Changes.h"

#include "platform/CodePage.h"

namespace {

QStringList Lines(const QByteArray& bytes) {
    QString text = TextFromBytes(bytes);
    return text.remove(QLatin1Char('\r')).split(QLatin1Char('\n'));
}

/// The nearest section title above a line, or nothing.
QString SectionOf(const QStringList& lines, qsizetype line) {
    for (qsizetype above = line; above > 0; --above) {
        const QString title = QString(lines[above]).remove(QLatin1Char('"'));
        if (title.startsWith(QLatin1Char('[')) && above < line) {
            return title + QStringLiteral(" ");
        }
    }
    return {};
}

qsizetype CommonAtEnd(const QStringList& before, const QStringList& after, qsizetype start) {
    const qsizetype most = qMin(before.size(), after.size()) - start;
    qsizetype same = 0;
    while (same < most && before[before.size() - 1 - same] == after[after.size() - 1 - same]) {
        ++same;
    }
    return same;
}

} // namespace

QStringList DescribeChanges(const QByteArray& beforeBytes, const QByteArray& afterBytes) {
    if (beforeBytes.isEmpty()) {
        return {QStringLiteral("new, %1 lines").arg(Lines(afterBytes).size() - 1)};
    }
    const QStringList before = Lines(beforeBytes);
    const QStringList after = Lines(afterBytes);
    const qsizetype end = before.size() == after.size() ? 0 : CommonAtEnd(before, after, 0);
    QStringList changes;
    for (qsizetype line = 0; line < qMax(before.size(), after.size()) - end; ++line) {
        const QString old = line < before.size() - end ? before[line] : QStringLiteral("(no line)");
        const QString now = line < after.size() - end ? after[line] : QStringLiteral("(no line)");
        if (old != now) {
            changes.append(
                QStringLiteral("line %1: %2%3  ->  %4")
                    .arg(line + 1)
                    .arg(SectionOf(line < after.size() ? after : before, line), old.trimmed(), now.trimmed()));
        }
    }
    return changes;
}
