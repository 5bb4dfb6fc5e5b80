#pragma once

#include <QByteArray>
#include <QStringList>

/// What changed between two texts of a configuration file, for people to read: one line for each changed line, with its
/// number and the section that it belongs to. Empty when nothing changed.
QStringList DescribeChanges(const QByteArray& before, const QByteArray& after);
