#include "platform/windows/WindowsDisks.h"

#include "platform/windows/NativeNames.h"
#include "platform/windows/WindowsErrors.h"

#include <windows.h>

namespace {

constexpr DWORD Hidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

class SystemDisks : public WindowsDisks {
public:
    QString Letters() const override {
        const DWORD drives = GetLogicalDrives();
        QString letters;
        for (unsigned bit = 0; bit < 26; ++bit) {
            if ((drives >> bit & 1U) != 0) {
                letters.append(QChar(u'a' + bit));
            }
        }
        return letters;
    }

    QString CurrentFolder(const QString& drive) const override {
        return QString::fromStdWString(FullName(drive.toStdWString()));
    }

    int VisibleFolders(const NativePath& folder, QStringList& names) const override {
        names.clear();
        WIN32_FIND_DATAW entry = {};
        const HANDLE search = FindFirstFileExW(NameForCall(folder / "*").c_str(), FindExInfoBasic, &entry,
                                               FindExSearchLimitToDirectories, nullptr, FIND_FIRST_EX_LARGE_FETCH);
        if (search == INVALID_HANDLE_VALUE) {
            return GetLastError() == ERROR_FILE_NOT_FOUND ? 0 : LastFailure(); // an empty root has not even "."
        }
        do {
            const QString name = QString::fromWCharArray(entry.cFileName);
            const bool isFolder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0; // of a link, what it names
            const bool isDots = name == QStringLiteral(".") || name == QStringLiteral("..");
            if (isFolder && !isDots && (entry.dwFileAttributes & Hidden) == 0) {
                names.append(name);
            }
        } while (FindNextFileW(search, &entry) != 0);
        const DWORD end = GetLastError();
        FindClose(search);
        return end == ERROR_NO_MORE_FILES ? 0 : -ErrnoFromWindows(end);
    }

    NativePath ShortName(const NativePath& folder) const override {
        std::wstring name(folder.native().size() + MAX_PATH, L'\0');
        const DWORD size = GetShortPathNameW(NameForCall(folder).c_str(), name.data(), static_cast<DWORD>(name.size()));
        name.resize(size < name.size() ? size : 0);
        return name.empty() ? folder : WithoutPrefix(name);
    }
};

} // namespace

const WindowsDisks& RealDisks() {
    static const SystemDisks disks;
    return disks;
}
