#include "options/SchemeCheck.h"

#include "platform/CodePage.h"

namespace {

void ReportMissing(const std::vector<SchemePair>& pairs, SchemeProblems& problems) {
    for (int p = 0; p < static_cast<int>(pairs.size()); ++p) {
        const SchemePair& pair = pairs[static_cast<std::size_t>(p)];
        if (!pair.Symbol.isEmpty() && !pair.Value.isEmpty()) {
            continue;
        }
        problems.Report += QStringLiteral("  -> Position %1 does not have a symbol and/or a value.\n").arg(p + 1);
        if (pair.Symbol.isEmpty()) {
            problems.Symbols.insert(p);
        }
        if (pair.Value.isEmpty()) {
            problems.Values.insert(p);
        }
    }
}

void ReportDuplicates(const std::vector<SchemePair>& pairs, SchemeProblems& problems) {
    const int count = static_cast<int>(pairs.size());
    for (int p = 0; p < count; ++p) {
        const QString& symbol = pairs[static_cast<std::size_t>(p)].Symbol;
        for (int q = p + 1; q < count; ++q) {
            const QString& other = pairs[static_cast<std::size_t>(q)].Symbol;
            if (other.isEmpty() || UpperCase(symbol) != UpperCase(other)) {
                continue;
            }
            problems.Report += QStringLiteral("  -> Duplicated symbol:  [") + symbol +
                               QStringLiteral("] at positions %1 and %2\n").arg(p + 1).arg(q + 1);
            problems.Symbols.insert({p, q});
        }
    }
}

void ReportOrder(const std::vector<SchemePair>& pairs, SchemeProblems& problems) {
    for (int p = 0; p + 1 < static_cast<int>(pairs.size()); ++p) {
        const SchemePair& lower = pairs[static_cast<std::size_t>(p)];
        const SchemePair& higher = pairs[static_cast<std::size_t>(p) + 1];
        if (higher.Symbol.isEmpty() || LeadingNumber(lower.Value) < LeadingNumber(higher.Value)) {
            continue;
        }
        problems.Report += QStringLiteral("  -> The value at position %1 (").arg(p + 2) + higher.Value +
                           QStringLiteral(") is LESS than or EQUAL to the value at position %1 (").arg(p + 1) +
                           lower.Value + QStringLiteral(")\n");
        problems.Values.insert({p, p + 1});
    }
}

} // namespace

SchemeProblems CheckScheme(const std::vector<SchemePair>& pairs) {
    SchemeProblems problems;
    for (const auto pass : {ReportMissing, ReportDuplicates}) {
        pass(pairs, problems);
        if (!problems.Report.isEmpty()) {
            problems.Report += u'\n';
        }
    }
    ReportOrder(pairs, problems);
    return problems;
}

QString LowestSymbolText(const QString& secondValue, bool french) {
    const QString limit = QString::number(LeadingNumber(secondValue) - 1, 'g', 15);
    return french ? QStringLiteral("Pour 0 à ") + limit + QStringLiteral(",9% utiliser :")
                  : QStringLiteral("For 0 to ") + limit + QStringLiteral(".9% use:");
}

QString LowestSymbolUnknownText(bool french) {
    return french ? QStringLiteral("Pour le plus bas utiliser :") : QStringLiteral("For the lowest symbol use:");
}
