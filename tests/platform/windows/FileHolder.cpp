// Another program that has a file open: file_holder FILE SHARING, where SHARING names what it lets others do at the
// same time ("r", "rw", "rwd", "-"). It writes a line when it has the file, and lets go of it when its standard input
// ends.

#include <cstdio>
#include <cwchar>
#include <windows.h>

int wmain(int argc, wchar_t** argv) {
    if (argc != 3) {
        return 2;
    }
    DWORD sharing = 0;
    sharing |= std::wcschr(argv[2], L'r') != nullptr ? DWORD{FILE_SHARE_READ} : 0;
    sharing |= std::wcschr(argv[2], L'w') != nullptr ? DWORD{FILE_SHARE_WRITE} : 0;
    sharing |= std::wcschr(argv[2], L'd') != nullptr ? DWORD{FILE_SHARE_DELETE} : 0;
    const HANDLE file = CreateFileW(argv[1], GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return 1;
    }
    std::puts("held");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    CloseHandle(file);
    return 0;
}
