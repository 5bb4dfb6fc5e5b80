#include "platform/TemporaryName.h"

#include "platform/NativeText.h"

#include <QByteArray>
#include <QCryptographicHash>

namespace {

constexpr qsizetype LongestKeptName = 100;

QByteArray Prefix(const NativePath& target) {
    QByteArray name = BytesFromNative(target.filename());
    if (name.size() > LongestKeptName) {
        name = QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex();
    }
    return '.' + name + '.';
}

constexpr char Suffix[] = ".tmp";
constexpr qsizetype SuffixLength = 4;

} // namespace

NativePath TemporaryName(const NativePath& target, std::int64_t process) {
    const QByteArray name = Prefix(target) + QByteArray::number(qlonglong{process}) + Suffix;
    return target.parent_path() / NativeFromBytes(name);
}

std::optional<std::int64_t> ProcessOfTemporaryName(const NativePath& target, const NativePath& name) {
    const QByteArray bytes = BytesFromNative(name);
    const QByteArray prefix = Prefix(target);
    if (!bytes.startsWith(prefix) || !bytes.endsWith(Suffix) || bytes.size() <= prefix.size() + SuffixLength) {
        return std::nullopt;
    }
    const QByteArray digits = bytes.mid(prefix.size(), bytes.size() - prefix.size() - SuffixLength);
    bool isNumber = false;
    const qlonglong process = digits.toLongLong(&isNumber);
    const bool ours = isNumber && process >= 0 && QByteArray::number(process) == digits;
    return ours ? std::optional<std::int64_t>(process) : std::nullopt;
}
