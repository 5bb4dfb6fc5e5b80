#include "options/BarCodes.h"

#include "platform/CodePage.h"

#include <array>

namespace {

constexpr std::int16_t TabCode = 9;
constexpr std::int16_t EnterCode = 13;
constexpr std::int16_t DollarCode = 36;
constexpr int LetterOffset = 61; // the letters' codes are their list index and this
constexpr int FirstLetterIndex = 4;
constexpr int ListLength = 30;
constexpr std::array<std::int16_t, FirstLetterIndex> SpecialCodes{NoBarCode, TabCode, EnterCode, DollarCode};

std::int16_t CodeOfIndex(int index) {
    return index < FirstLetterIndex ? SpecialCodes.at(static_cast<std::size_t>(index))
                                    : static_cast<std::int16_t>(index + LetterOffset);
}

QString CharacterOf(std::int16_t code) {
    return TextFromBytes(QByteArray(1, static_cast<char>(code)));
}

} // namespace

QStringList BarCodeListTexts() {
    QStringList texts{QStringLiteral("[None]"), QStringLiteral("[Tab]"), QStringLiteral("[Enter]")};
    for (int index = FirstLetterIndex - 1; index < ListLength; ++index) {
        texts.append(CharacterOf(CodeOfIndex(index)));
    }
    return texts;
}

std::int16_t BarCodeOfText(const QString& text) {
    const qsizetype index = BarCodeListTexts().indexOf(text);
    return index < 0 ? NoBarCode : CodeOfIndex(static_cast<int>(index));
}

int BarCodeIndex(std::int16_t code) {
    for (int index = 0; index < ListLength; ++index) {
        if (CodeOfIndex(index) == code) {
            return index;
        }
    }
    return -1;
}

QString BarCodeResult(std::int16_t code) {
    if (code == TabCode) {
        return QStringLiteral("*$I*");
    }
    if (code == EnterCode) {
        return QStringLiteral("*$M*");
    }
    return code > 0 && code < 256 ? u'*' + CharacterOf(code) + u'*' : QString();
}
