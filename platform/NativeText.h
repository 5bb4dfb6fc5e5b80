#pragma once

#include "platform/SystemCalls.h"

#include <QByteArray>
#include <QString>
#include <optional>

/// Between the names of the disk and text. On systems without drive letters the bytes of a name are UTF-8.

/// The native path of a text that is in the system's own form.
NativePath NativeFromText(const QString& text);

/// The native path of bytes as they stand on the disk.
NativePath NativeFromBytes(const QByteArray& bytes);

/// The bytes of a native path as they stand on the disk.
QByteArray BytesFromNative(const NativePath& path);

/// The text of a native path; nothing when its bytes are no valid text.
std::optional<QString> TextFromNative(const NativePath& path);

/// The text of a native path for a message: bytes that are no valid text show as the replacement character.
QString ShownNative(const NativePath& path);

/// Whether a name of the disk can stand in a path of the program and come back from a file unchanged: the code page
/// has every character, and there is no backslash, quote, control character or blank at its end.
bool NameFitsProgramPath(const QString& name);
