#include "tests/trust/SaveScene.h"

#include "tests/support/OtherUser.h"

#include <QSet>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

constexpr fs::perms Everything = fs::perms::all;
constexpr fs::perms LookOnly = static_cast<fs::perms>(0555);
constexpr fs::perms ReadAndWrite = static_cast<fs::perms>(0666);
constexpr fs::perms ReadOnly = static_cast<fs::perms>(0444);

QString FolderOfPath(const QString& path) {
    return path.left(path.lastIndexOf(QLatin1Char('\\')));
}

// Whether `bytes` is `whole` with nothing but line ends behind it.
bool HasOnlyLineEndsBehind(const QByteArray& bytes, const QByteArray& whole) {
    return bytes.startsWith(whole) && bytes.mid(whole.size()).trimmed().isEmpty();
}

} // namespace

std::string Describe(Place place, Content content) {
    const char* names[] = {"a new file", "a file", "a file behind a link", "a file in a read-only folder",
                           "a read-only file"};
    return std::string(names[static_cast<int>(place)]) +
           (content == Content::Larger ? " and a longer text" : " and a shorter text");
}

SaveScene::SaveScene(SystemCalls& calls, const std::string& kind, Place place, Content content)
    : Surrounding(place), Held(content), Disk(calls), Kind(MakeKind(kind, Disk)), paths(Kind->Paths()) {
    Disk.Screen.AnswerToOthers = MessageAnswer::Ok;
    fs::permissions(Disk.Native(QStringLiteral("c:\\")), Everything);
    Kind->Hold(content);
    if (place == Place::ThroughLink) {
        for (const QString& path : paths) {
            fs::remove(Disk.Native(path));
            Disk.MakeFolder(FolderOfPath(RealPath(path)));
            fs::create_symlink(fs::path("..") / "real" / Disk.Native(path).filename(), Disk.Native(path));
        }
    }
}

SaveScene::~SaveScene() {
    Open();
}

QString SaveScene::RealPath(const QString& path) const {
    const bool linked = Surrounding == Place::ThroughLink;
    return linked ? QStringLiteral("c:\\real") + path.mid(path.lastIndexOf(QLatin1Char('\\'))) : path;
}

NativePath SaveScene::PlaceOf(const QString& path) const {
    return Disk.Native(RealPath(path));
}

QStringList SaveScene::Folders() const {
    QStringList folders;
    for (const QString& path : paths) {
        for (const QString& folder : {FolderOfPath(path), FolderOfPath(RealPath(path))}) {
            if (!folders.contains(folder)) {
                folders.append(folder);
            }
        }
    }
    return folders;
}

QByteArray SaveScene::Before(const QString& path) const {
    return Surrounding == Place::NewFile ? QByteArray() : Kind->Before(path, Held);
}

void SaveScene::Open() {
    for (const QString& folder : Folders()) {
        fs::permissions(Disk.Native(folder), Everything);
    }
}

void SaveScene::Protect() {
    if (Surrounding == Place::ReadOnlyFolder) {
        for (const QString& folder : Folders()) {
            fs::permissions(Disk.Native(folder), LookOnly);
        }
    }
}

void SaveScene::PutFile(const QString& path) {
    fs::remove(PlaceOf(path));
    if (Surrounding != Place::NewFile) {
        Disk.Write(RealPath(path), Before(path));
        fs::permissions(PlaceOf(path), Surrounding == Place::ReadOnlyFile ? ReadOnly : ReadAndWrite);
    }
}

void SaveScene::SetUp() {
    Open();
    for (const QString& folder : Folders()) {
        for (const QString& name : Disk.Names(folder)) {
            const QString path = folder + QLatin1Char('\\') + name;
            if (!paths.contains(path) && name != QStringLiteral("Students.txt")) {
                fs::remove(Disk.Native(path));
            }
        }
    }
    for (const QString& path : paths) {
        PutFile(path);
    }
    Kind->ReadFiles();
    Protect();
    Disk.Screen.Messages.clear();
    Disk.Screen.FileDialogs.clear();
}

void SaveScene::Save() {
    if (Surrounding == Place::ReadOnlyFolder) {
        const OtherUser user;
        Kind->Save();
        return;
    }
    Kind->Save();
}

SaveScene::State SaveScene::StateOf(const QString& path) const {
    if (!fs::exists(PlaceOf(path))) {
        return Surrounding == Place::NewFile ? State::Old : State::Torn;
    }
    return StateOf(path, Disk.Read(RealPath(path)));
}

SaveScene::State SaveScene::StateOf(const QString& path, const QByteArray& bytes) const {
    const QByteArray after = Kind->Saved(path, Held);
    if (bytes == after) {
        return State::New;
    }
    if (Surrounding == Place::NewFile) {
        return State::Torn;
    }
    if (bytes == Before(path)) {
        return State::Old;
    }
    if (HasOnlyLineEndsBehind(bytes, after)) {
        return State::NewAndLineEnds;
    }
    return HasOnlyLineEndsBehind(bytes, Before(path)) ? State::OldAndLineEnds : State::Torn;
}

bool SaveScene::AllNew() const {
    return std::all_of(paths.begin(), paths.end(), [this](const QString& path) { return IsNew(path); });
}

bool SaveScene::AnyTorn() const {
    return std::any_of(paths.begin(), paths.end(), [this](const auto& path) { return StateOf(path) == State::Torn; });
}

bool SaveScene::AnyLineEnds() const {
    return std::any_of(paths.begin(), paths.end(), [this](const QString& path) {
        const State state = StateOf(path);
        return state == State::OldAndLineEnds || state == State::NewAndLineEnds;
    });
}

bool SaveScene::IsCopy(const QString& name, const QByteArray& bytes) const {
    return Kind->KeepsCopies() && std::any_of(paths.begin(), paths.end(), [&](const QString& path) {
               return name.startsWith(path.mid(path.lastIndexOf(QLatin1Char('\\')) + 1) +
                                      QStringLiteral(".damaged-20160307-0930")) &&
                      bytes == Before(path);
           });
}

QString SaveScene::Strays() const {
    QStringList strays;
    for (const QString& folder : Folders()) {
        for (const QString& name : Disk.Names(folder)) {
            const QString path = folder + QLatin1Char('\\') + name;
            const bool target = std::any_of(paths.begin(), paths.end(), [&](const QString& known) {
                return path == known || path == RealPath(known);
            });
            if (!target && name != QStringLiteral("Students.txt") && !IsCopy(name, Disk.Read(path))) {
                strays.append(name);
            }
        }
    }
    return strays.join(QLatin1Char(' '));
}

std::string SaveScene::Losses() const {
    for (const QString& path : paths) {
        if (Surrounding == Place::ThroughLink && !fs::is_symlink(Disk.Native(path))) {
            return path.toStdString() + " is no link any more";
        }
        if (!Kind->KeepsCopies() || Surrounding == Place::NewFile || StateOf(path) == State::Old) {
            continue;
        }
        const QStringList names = Disk.Names(FolderOfPath(path));
        const bool kept = std::any_of(names.begin(), names.end(), [&](const QString& name) {
            return name.startsWith(path.mid(path.lastIndexOf(QLatin1Char('\\')) + 1) + QStringLiteral(".damaged-")) &&
                   Disk.Read(FolderOfPath(path) + QLatin1Char('\\') + name) == Before(path);
        });
        if (!kept) {
            return path.toStdString() + " was replaced and not copied";
        }
    }
    return {};
}
