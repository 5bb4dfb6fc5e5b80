#include "import/LeadingNumber.h"

#include <QByteArray>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

qsizetype PassDigits(const QByteArray& text, qsizetype at) {
    while (at < text.size() && IsDigit(text[at])) {
        ++at;
    }
    return at;
}

bool IsSign(const QByteArray& text, qsizetype at) {
    return at < text.size() && (text[at] == '+' || text[at] == '-');
}

// Where the number that starts at 0 (a sign allowed) ends; 0 when there is none.
qsizetype EndOfNumber(const QByteArray& text) {
    const qsizetype whole = IsSign(text, 0) ? 1 : 0;
    qsizetype end = PassDigits(text, whole);
    qsizetype digits = end - whole;
    if (end < text.size() && text[end] == '.') {
        const qsizetype fraction = end + 1;
        end = PassDigits(text, fraction);
        digits += end - fraction;
    }
    if (digits == 0) {
        return 0;
    }
    if (end < text.size() && (text[end] == 'E' || text[end] == 'e')) {
        const qsizetype exponent = end + 1 + (IsSign(text, end + 1) ? 1 : 0);
        const qsizetype last = PassDigits(text, exponent);
        end = last > exponent ? last : end;
    }
    return end;
}

// An exponent outside the range of a double: a huge number, or one that is nothing.
double BeyondRange(const QByteArray& number) {
    return number.contains("e-") || number.contains("E-") ? 0 : std::numeric_limits<double>::infinity();
}

double RoundHalfToEven(double number) {
    const double below = std::floor(number);
    const double part = number - below;
    if (part < 0.5) {
        return below;
    }
    if (part > 0.5) {
        return below + 1;
    }
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

} // namespace

bool LeadingNumber(const QString& text, std::int16_t& value) {
    qsizetype start = 0;
    while (start < text.size() && text[start] == QChar(u' ')) {
        ++start;
    }
    const QByteArray rest = text.mid(start).toLatin1();
    const QByteArray number = rest.left(EndOfNumber(rest));
    const char* const first = number.constData() + (number.startsWith('+') ? 1 : 0);
    double result = 0;
    const auto parsed = std::from_chars(first, number.constData() + number.size(), result);
    if (parsed.ec == std::errc::result_out_of_range) {
        result = BeyondRange(number);
    }
    const double rounded = RoundHalfToEven(result);
    if (!(rounded >= std::numeric_limits<std::int16_t>::min() && rounded <= std::numeric_limits<std::int16_t>::max())) {
        return false;
    }
    value = static_cast<std::int16_t>(rounded);
    return true;
}
