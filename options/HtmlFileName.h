#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

/// Names of the gradebook's HTML student reports.

inline constexpr std::int16_t HtmlOrderCount = 8;

/// The texts of the eight orders, the same in both editions.
QStringList HtmlOrderTexts();

/// Builds the name of a report from the school ID `s`, the course code `C`, the student number `KidNumb` and the
/// separators in an order of 0 to 7, and adds ".htm". Any other order leaves `name` as it is.
/// The arguments are the settings themselves: with a blank school ID, the orders 2 and 3 empty `Sp1`, and 4 and above
/// empty `Sp2`.
void ConstructHtmlFileName(const QString& s, const QString& C, const QString& KidNumb, QString& Sp1, QString& Sp2,
                           std::int16_t Order, QString& name);
