#pragma once

#include <QString>
#include <vector>

class QWidget;

/// Every figure is the median of this many measurements of each of the two compared, taken in turn.
inline constexpr int Rounds = 21;

/// The middle one of an odd number of figures.
double Median(std::vector<double> figures);

/// Prints "name: ours UNIT, bare UNIT, ratio R (at most LIMIT)"; returns whether the ratio keeps to the limit.
bool ReportRatio(const QString& name, const QString& unit, double ours, double bare, double limit);

/// The most memory that this process has held, in kilobytes; 0 where the system does not tell.
long PeakMemory();

/// Once the window has been painted: writes "painted WIDGETS KILOBYTES" to standard output and ends the program.
void EndWhenPainted(QWidget& window);
