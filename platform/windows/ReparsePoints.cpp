#include "platform/windows/ReparsePoints.h"

#include "platform/windows/NativeNames.h"
#include "platform/windows/WindowsErrors.h"

#include <cerrno>
#include <cstring>
#include <vector>
#include <windows.h>
#include <winioctl.h>

namespace {

constexpr std::size_t MostBytes = 16 * 1024; // the system's limit for such a point
constexpr std::size_t NamesOffset = 8;       // behind the tag, the length and a reserved number
constexpr std::size_t LinkNames = 20;        // a link has a number of flags more than a junction
constexpr std::size_t JunctionNames = 16;

// A number of `Number`'s size at a place in the bytes.
template <typename Number>
Number NumberAt(const std::vector<char>& bytes, std::size_t place) {
    Number number = 0;
    std::memcpy(&number, bytes.data() + place, sizeof number);
    return number;
}

// Both kinds begin with places and lengths of two names in bytes: the one to follow and the one to show.
int TargetIn(const std::vector<char>& bytes, NativePath& target) {
    const auto tag = NumberAt<std::uint32_t>(bytes, 0);
    if (tag != IO_REPARSE_TAG_SYMLINK && tag != IO_REPARSE_TAG_MOUNT_POINT) {
        return -EINVAL;
    }
    const std::size_t names = tag == IO_REPARSE_TAG_SYMLINK ? LinkNames : JunctionNames;
    const std::size_t start = names + NumberAt<std::uint16_t>(bytes, NamesOffset);
    const std::size_t length = NumberAt<std::uint16_t>(bytes, NamesOffset + 2);
    if (start + length > bytes.size()) {
        return -EIO;
    }
    std::wstring name(length / sizeof(wchar_t), L'\0');
    std::memcpy(name.data(), bytes.data() + start, name.size() * sizeof(wchar_t));
    const std::wstring kernelPrefix = L"\\??\\";
    target = WithoutPrefix(name.starts_with(kernelPrefix) ? L"\\\\?\\" + name.substr(kernelPrefix.size()) : name);
    return 0;
}

} // namespace

int ReadReparsePoint(const NativePath& path, NativePath& target) {
    const HANDLE point =
        CreateFileW(NameForCall(path).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (point == INVALID_HANDLE_VALUE) {
        return LastFailure();
    }
    std::vector<char> bytes(MostBytes);
    DWORD size = 0;
    const bool read = DeviceIoControl(point, FSCTL_GET_REPARSE_POINT, nullptr, 0, bytes.data(),
                                      static_cast<DWORD>(bytes.size()), &size, nullptr) != 0;
    const int failure = read ? 0 : LastFailure();
    CloseHandle(point);
    return failure != 0 ? failure : TargetIn(bytes, target);
}
