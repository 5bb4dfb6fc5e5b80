#include "tests/trust/SaveScene.h"

#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

// A real file system of a few pages, filled to the last one. A child of the test mounts it where nobody else sees it.

namespace {

constexpr int PageSize = 4096;
constexpr int MostFreePages = 10;
constexpr char DiskSize[] = "size=262144,mode=0777"; // 64 pages

enum class Outcome { Passed = 0, Failed = 1, NoMounts = 77 };

void WriteSetting(const char* file, const std::string& text) {
    const int handle = open(file, O_WRONLY | O_CLOEXEC);
    if (handle >= 0) {
        [[maybe_unused]] const ssize_t written = write(handle, text.data(), text.size());
        close(handle);
    }
}

// An administrator gets a view of the mounts of his own, everybody else one in which he is the administrator.
bool MountSmallDisk(const char* folder) {
    const uid_t user = geteuid();
    const gid_t group = getegid();
    if (unshare(user == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0) {
        return false;
    }
    if (user != 0) {
        WriteSetting("/proc/self/setgroups", "deny");
        WriteSetting("/proc/self/uid_map", "0 " + std::to_string(user) + " 1");
        WriteSetting("/proc/self/gid_map", "0 " + std::to_string(group) + " 1");
    }
    return mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("small", folder, "tmpfs", 0, DiskSize) == 0;
}

// Takes all room but that many pages. The file is open for as long as the disk is to be full.
class Ballast {
public:
    Ballast(const std::string& file, int freePages) : handle(open(file.c_str(), O_RDWR | O_CREAT | O_TRUNC, 0600)) {
        unlink(file.c_str());
        const std::string page(PageSize, 'x');
        off_t size = 0;
        while (write(handle, page.data(), page.size()) == PageSize) {
            size += PageSize;
        }
        EXPECT_GT(size, freePages * PageSize);
        EXPECT_EQ(ftruncate(handle, size - freePages * PageSize), 0);
    }
    ~Ballast() { close(handle); }
    Ballast(const Ballast&) = delete;
    Ballast& operator=(const Ballast&) = delete;

private:
    int handle;
};

bool IsFullDiskMessage(const SavedKind& kind, const Message& message) {
    const QStringList paths = kind.Paths();
    return std::any_of(paths.begin(), paths.end(), [&](const QString& path) {
        const Message expected = kind.Complaint(path, MakeError(ErrorNumber::DiskFull));
        return message.Title == expected.Title && message.Text == expected.Text;
    });
}

int TryEveryFill(const std::string& folder, const char* kind, Place place, Content content) {
    SaveScene scene(RealSystemCalls(), kind, place, content);
    int refused = 0;
    for (int pages = 0; pages <= MostFreePages; ++pages) {
        const std::string where = std::string(kind) + ", " + Describe(place, content) + ", " + std::to_string(pages);
        scene.SetUp();
        {
            const Ballast ballast(folder + "/ballast", pages);
            scene.Save();
        }
        for (const QString& path : scene.Kind->Paths()) {
            const auto state = scene.StateOf(path);
            EXPECT_TRUE(state == SaveScene::State::Old || state == SaveScene::State::New) << where;
        }
        EXPECT_EQ(scene.Losses(), "") << where;
        EXPECT_EQ(scene.Strays(), QString()) << where;
        EXPECT_EQ(scene.Disk.Screen.Messages.empty(), scene.AllNew()) << where;
        for (const Message& message : scene.Disk.Screen.Messages) {
            EXPECT_TRUE(IsFullDiskMessage(*scene.Kind, message)) << where << message.Title.toStdString();
            ++refused;
        }
        scene.SetUp();
        scene.Save();
        EXPECT_TRUE(scene.AllNew()) << where << ": there is room again";
    }
    return refused;
}

Outcome WorkOnSmallDisk(const std::string& folder) {
    const bool administrator = geteuid() == 0;
    if (!MountSmallDisk(folder.c_str())) {
        return Outcome::NoMounts;
    }
    setenv("TMPDIR", folder.c_str(), 1);
    for (const char* kind : AllKinds) {
        const bool keepsCopies = std::string(kind).starts_with("Damaged");
        int refused = 0;
        for (const Content content : {Content::Larger, Content::Smaller}) {
            refused += TryEveryFill(folder, kind, Place::NewFile, content);
            refused += TryEveryFill(folder, kind, Place::Replaced, content);
            refused += TryEveryFill(folder, kind, Place::ThroughLink, content);
            if (administrator && !keepsCopies) {
                refused += TryEveryFill(folder, kind, Place::ReadOnlyFolder, content);
            }
        }
        EXPECT_GT(refused, 0) << kind << ": the disk was never full";
        std::printf("%s: a full disk was told of %d times\n", kind, refused);
    }
    std::fflush(stdout);
    return testing::Test::HasFailure() ? Outcome::Failed : Outcome::Passed;
}

TEST(FullDisk, KeepsEveryFileAndIsTold) {
    const QTemporaryDir folder;
    const pid_t child = fork();
    if (child == 0) {
        _exit(static_cast<int>(WorkOnSmallDisk(folder.path().toStdString())));
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == static_cast<int>(Outcome::NoMounts)) {
        GTEST_SKIP() << "no file system can be mounted here";
    }
    EXPECT_EQ(WEXITSTATUS(status), static_cast<int>(Outcome::Passed));
}

} // namespace
