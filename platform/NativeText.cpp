#include "platform/NativeText.h"

#include "platform/CodePage.h"

#include <QStringDecoder>

namespace {

constexpr char16_t FirstPrintable = u' ';

} // namespace

QByteArray BytesFromNative(const NativePath& path) {
    const std::u8string bytes = path.u8string();
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
}

NativePath NativeFromText(const QString& text) {
    return NativeFromBytes(text.toUtf8());
}

NativePath NativeFromBytes(const QByteArray& bytes) {
    return NativePath(std::u8string(bytes.begin(), bytes.end()));
}

std::optional<QString> TextFromNative(const NativePath& path) {
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decode(BytesFromNative(path));
    return decode.hasError() ? std::nullopt : std::optional(text);
}

QString ShownNative(const NativePath& path) {
    return QString::fromUtf8(BytesFromNative(path));
}

bool NameFitsProgramPath(const QString& name) {
    for (const QChar character : name) {
        if (character < FirstPrintable || character == u'\\' || character == u'"') {
            return false;
        }
    }
    return CodePageHasAll(name) && !name.endsWith(u' ');
}
