#include "tests/trust/WatchingReader.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <stdexcept>
#include <sys/mman.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif
#include <sys/wait.h>
#include <unistd.h>

struct WatchingReader::Shared {
    std::atomic<long> reads;
    std::atomic<long> partial;
    char first[200];
};

namespace {

// Everything in the file; a text that is none of its contents when it cannot be read.
QByteArray ReadOnce(const char* path) {
    const int handle = open(path, O_RDONLY | O_CLOEXEC);
    if (handle < 0) {
        return QByteArray("cannot be opened: ") + std::strerror(errno);
    }
    QByteArray bytes;
    char buffer[4096];
    for (ssize_t size = 1; size > 0;) {
        size = read(handle, buffer, sizeof buffer);
        bytes.append(buffer, static_cast<qsizetype>(std::max<ssize_t>(size, 0)));
    }
    close(handle);
    return bytes;
}

} // namespace

WatchingReader::WatchingReader(std::vector<Watched> files) {
    void* memory = mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        throw std::runtime_error("no shared memory");
    }
    shared = new (memory) Shared();
    process = fork();
    if (process == 0) {
        EndWithParent();
    }
    while (process == 0) { // the reader never returns
        for (const Watched& file : files) {
            const QByteArray bytes = ReadOnce(file.Path.c_str());
            const bool whole = std::count(file.Contents.begin(), file.Contents.end(), bytes) > 0;
            if (!whole && shared->partial++ == 0) {
                std::strncpy(shared->first, bytes.constData(), sizeof shared->first - 1);
            }
            ++shared->reads;
        }
    }
}

WatchingReader::~WatchingReader() {
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    munmap(shared, sizeof(Shared));
}

long WatchingReader::Reads() const {
    return shared->reads;
}

long WatchingReader::Partial() const {
    return shared->partial;
}

std::string WatchingReader::FirstPartial() const {
    return shared->first;
}

void UseMemoryFolders() {
    if (access("/dev/shm", W_OK | X_OK) == 0) {
        setenv("TMPDIR", "/dev/shm", 1);
    }
}

void EndWithParent() {
#ifdef __linux__
    prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
}

void SleepRandomly(int mostMicroseconds) {
    static std::mt19937 random{std::random_device{}()};
    usleep(static_cast<useconds_t>(std::uniform_int_distribution<int>(0, mostMicroseconds)(random)));
}

int KillsAskedFor(int usual) {
    const char* asked = std::getenv("GRADEWELL_KILLS");
    return asked != nullptr ? std::max(1, std::atoi(asked)) : usual;
}
