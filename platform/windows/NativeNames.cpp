#include "platform/windows/NativeNames.h"

#include <windows.h>

namespace {

constexpr std::size_t LongestPlainName = 240; // a folder's limit is 12 below that of a file
const std::wstring Prefix = L"\\\\?\\";
const std::wstring SharePrefix = L"\\\\?\\UNC\\";
const std::wstring ShareStart = L"\\\\";

} // namespace

std::wstring FullName(const std::wstring& name) {
    std::wstring full(name.size() + MAX_PATH, L'\0');
    DWORD size = GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (size > full.size()) {
        full.resize(size);
        size = GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    }
    full.resize(size < full.size() ? size : 0);
    return full;
}

std::wstring NameForCall(const NativePath& path) {
    const std::wstring name = NativePath(path).make_preferred().native();
    if (name.size() < LongestPlainName || name.starts_with(Prefix)) {
        return name;
    }
    const std::wstring full = FullName(name); // the prefix turns off all reading of "." and ".."
    if (full.empty() || full.starts_with(Prefix)) {
        return name;
    }
    return full.starts_with(ShareStart) ? SharePrefix + full.substr(ShareStart.size()) : Prefix + full;
}

NativePath WithoutPrefix(const std::wstring& name) {
    if (name.starts_with(SharePrefix)) {
        return ShareStart + name.substr(SharePrefix.size());
    }
    return name.starts_with(Prefix) ? name.substr(Prefix.size()) : name;
}
