#include "platform/SystemCalls.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <poll.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr unsigned PermissionBits = 07777;
constexpr int ProcessBits = 32;
constexpr std::int64_t NanosecondsASecond = 1'000'000'000;

template <typename Result>
Result OrError(Result result) {
    return result < 0 ? static_cast<Result>(-errno) : result;
}

// Tells this machine from others that work in the same shared folder.
std::int64_t MachineNumber() {
    char name[256] = {};
    if (gethostname(name, sizeof name - 1) != 0) {
        return 0;
    }
    return static_cast<std::int64_t>(std::hash<std::string>()(name) & 0x7FFFFFFFU);
}

class PosixCalls : public SystemCalls {
public:
    int Status(const NativePath& path, FileStatus& status) override {
        struct stat found = {};
        if (lstat(path.c_str(), &found) != 0) {
            return -errno;
        }
        status = {S_ISDIR(found.st_mode),
                  S_ISREG(found.st_mode),
                  S_ISLNK(found.st_mode),
                  std::int64_t{found.st_size},
                  found.st_mode & PermissionBits,
                  found.st_uid,
                  found.st_gid,
                  std::int64_t{found.st_mtim.tv_sec} * NanosecondsASecond + found.st_mtim.tv_nsec};
        return 0;
    }

    int ReadLink(const NativePath& path, NativePath& target) override {
        std::string buffer(256, '\0');
        for (;;) {
            const ssize_t size = readlink(path.c_str(), buffer.data(), buffer.size());
            if (size < 0) {
                return -errno;
            }
            if (static_cast<std::size_t>(size) < buffer.size()) {
                buffer.resize(static_cast<std::size_t>(size));
                target = buffer;
                return 0;
            }
            buffer.resize(buffer.size() * 2);
        }
    }

    int OpenForReading(const NativePath& path) override { return Open(path, O_RDONLY, 0); }
    int OpenForWriting(const NativePath& path) override { return Open(path, O_WRONLY, 0); }
    int CreateExclusive(const NativePath& path, unsigned mode) override {
        return Open(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
    }

    std::int64_t Read(int handle, char* buffer, std::int64_t size) override {
        return OrError(std::int64_t{read(handle, buffer, static_cast<std::size_t>(size))});
    }
    std::int64_t Write(int handle, const char* bytes, std::int64_t size) override {
        return OrError(std::int64_t{write(handle, bytes, static_cast<std::size_t>(size))});
    }
    std::int64_t Seek(int handle, std::int64_t position) override {
        return OrError(std::int64_t{lseek(handle, position, SEEK_SET)});
    }
    int Truncate(int handle, std::int64_t size) override { return OrError(ftruncate(handle, size)); }
    int SetMode(int handle, unsigned mode) override { return OrError(fchmod(handle, mode)); }
    int SetOwner(int handle, unsigned owner, unsigned group) override { return OrError(fchown(handle, owner, group)); }
    int Sync(int handle) override { return OrError(fsync(handle)); }
    int Close(int handle) override { return OrError(close(handle)); }

    int Replace(const NativePath& source, const NativePath& target) override {
        return OrError(rename(source.c_str(), target.c_str()));
    }
    int Remove(const NativePath& path) override { return OrError(unlink(path.c_str())); }

    int SyncFolder(const NativePath& folder) override {
        const int handle = Open(folder, O_RDONLY | O_DIRECTORY, 0);
        if (handle < 0) {
            return handle;
        }
        const int result = OrError(fsync(handle));
        close(handle);
        return result;
    }

    int ListNames(const NativePath& folder, std::vector<NativePath>& names) override {
        names.clear();
        DIR* listing = opendir(folder.c_str());
        if (listing == nullptr) {
            return -errno;
        }
        errno = 0;
        while (const dirent* entry = readdir(listing)) {
            if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0) {
                names.emplace_back(entry->d_name);
            }
            errno = 0;
        }
        const int result = -errno;
        closedir(listing);
        return result;
    }

    std::int64_t ProcessNumber() override { return MachineNumber() << ProcessBits | std::int64_t{getpid()}; }

    bool ProcessIsAlive(std::int64_t number) override {
        if (number >> ProcessBits != MachineNumber()) {
            return true; // nobody can tell from here
        }
        const auto process = static_cast<pid_t>(number & 0x7FFFFFFF);
        return process > 0 && (kill(process, 0) == 0 || errno == EPERM);
    }

    void Wait(int milliseconds) override { poll(nullptr, 0, milliseconds); }

private:
    static int Open(const NativePath& path, int flags, unsigned mode) {
        return OrError(open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode));
    }
};

} // namespace

SystemCalls& RealSystemCalls() {
    static PosixCalls calls;
    return calls;
}
