#pragma once

#include "platform/ItemText.h"

#include <QByteArray>
#include <QString>
#include <vector>

/// A grade / level scheme as the editor holds it: texts, as typed or as read from a file.
struct SchemePair {
    QString Symbol;
    QString Value; ///< lower limit in percent

    friend bool operator==(const SchemePair&, const SchemePair&) = default;
};

struct Scheme {
    QString Heading;
    std::vector<SchemePair> Pairs; ///< lowest symbol first

    friend bool operator==(const Scheme&, const Scheme&) = default;
};

inline constexpr int HighestSchemePosition = 18;
inline constexpr int LongestSymbol = 3; // characters
inline constexpr int LongestValue = 2;  // digits that can be typed
inline constexpr double HighestSchemeValue = 99;

/// What reading a scheme file gave: a scheme of 2 to 19 pairs, or a pair that is none ("INVALID DATA"), or an error.
struct SchemeReading {
    Scheme Read;
    bool InvalidData = false;
    ItemError Error;

    bool IsGood() const { return !InvalidData && !Error; }
};

/// Reads a scheme file (*.scm): the heading and a comment, then symbol and value of each position. A pair is valid when
/// its value's leading number is 0 to 99 and its symbol has at most 3 characters. Pairs after the nineteenth are not
/// looked at. A file of one pair is invalid data; one that ends too early is error 62.
SchemeReading ReadSchemeText(const QByteArray& bytes);

/// The bytes of a scheme file: quoted lines, CR LF. No text may hold a double quote.
QByteArray WriteSchemeText(const Scheme& scheme);

/// The number that a text begins with: sign, digits, fraction and exponent (E or D); 0 when there is none. Blanks, tabs
/// and line ends are passed over wherever they stand.
double LeadingNumber(const QString& text);
