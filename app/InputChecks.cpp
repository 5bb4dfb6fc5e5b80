#include "app/InputChecks.h"

#include "platform/CodePage.h"
#include "platform/Desktop.h"

#include <algorithm>
#include <limits>

std::int16_t ErrorPosition = 0;
QString CleanedText;

namespace {

constexpr std::int16_t LongReport = 1;
constexpr std::int16_t ShortReport = 2;
constexpr std::int16_t Clean = 1;

void Report(const QString& text) {
    ShowNotice(MessageIcon::Critical, QStringLiteral("INPUT ERROR"), text);
}

// Positions are 16-bit; no line of a configuration file comes near that length.
std::int16_t PositionOf(qsizetype index) {
    return static_cast<std::int16_t>(std::min<qsizetype>(index + 1, std::numeric_limits<std::int16_t>::max()));
}

// The text with the character at `index` in brackets.
QString ErrorFoundIn(const QString& text, qsizetype index) {
    return QStringLiteral("An error has been found in: ") + text.left(index) + QStringLiteral(" [") + text[index] +
           QStringLiteral("] ") + text.mid(index + 1) + QStringLiteral("\n\n [") + text[index] +
           QStringLiteral("] is not a valid character for this line.\n\n");
}

struct InputRules {
    bool allowCommas;
    bool allowLineBreaks;
    const QString& refused;

    bool Refuses(QChar character) const {
        const char16_t code = character.unicode();
        if (code == u'\r' || code == u'\n') {
            return !allowLineBreaks || refused.contains(character);
        }
        return code < u' ' || code == u'"' || (code == u',' && !allowCommas) || refused.contains(character);
    }
};

void ReportInput(const QString& text, qsizetype index, const InputRules& rules) {
    Report(ErrorFoundIn(text, index) + QStringLiteral("Non-printable characters") +
           (rules.allowCommas ? QString() : QStringLiteral(", commas")) +
           QStringLiteral(" and quotation marks are not allowed on most lines.") +
           (rules.refused.isEmpty()
                ? QString()
                : QStringLiteral(" As well, the following characters are not allowed: ") + rules.refused) +
           QStringLiteral("\n\nPlease Re-enter!"));
}

} // namespace

void CheckAllowedCharacters(const QString& text, const QString& allowed, std::int16_t mode) {
    ErrorPosition = 0;
    qsizetype index = 0;
    while (index < text.size() && allowed.contains(text[index])) {
        ++index;
    }
    if (index == text.size()) {
        return;
    }
    ErrorPosition = PositionOf(index);
    const QString ending = QStringLiteral("Valid characters are: ") + allowed + QStringLiteral("\n\nPlease ReEnter!");
    if (mode == LongReport) {
        Report(ErrorFoundIn(text, index) + ending);
    } else if (mode == ShortReport) {
        Report(QStringLiteral("Sorry, [") + text[index] +
               QStringLiteral("] is not a valid character for this line.\n\n") + ending);
    }
}

void CheckInputText(QString& text, std::int16_t allowCommas, std::int16_t allowLineBreaks, const QString& refused,
                    std::int16_t mode) {
    ErrorPosition = 0;
    if (text.isEmpty()) {
        return;
    }
    const InputRules rules{allowCommas != 0, allowLineBreaks != 0, refused};
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!rules.Refuses(text[i])) {
            continue;
        }
        if (mode != Clean) {
            ErrorPosition = PositionOf(i);
            ReportInput(text, i, rules);
            return;
        }
        text[i] = refused.isEmpty() ? u' ' : u'~';
    }
    if (mode == Clean) {
        CleanedText = TrimBlanks(text);
    }
}
