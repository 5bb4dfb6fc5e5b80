#pragma once

#include "tests/trust/SavedKind.h"

/// Where a save meets its files.
enum class Place { NewFile, Replaced, ThroughLink, ReadOnlyFolder, ReadOnlyFile };

inline constexpr Place AllPlaces[] = {Place::NewFile, Place::Replaced, Place::ThroughLink, Place::ReadOnlyFolder,
                                      Place::ReadOnlyFile};

/// "replaced by a longer one".
std::string Describe(Place place, Content content);

/// One save of one kind of file, which can be set up and made again and again on the disk of the test. An administrator
/// works in a read-only folder with the rights of another user, so that the folder's permissions are real.
class SaveScene {
public:
    SaveScene(SystemCalls& calls, const std::string& kind, Place place, Content content);
    ~SaveScene();

    /// Puts the files, the folders and the program's state there as before the save, and forgets all messages.
    void SetUp();
    void Save();

    /// How a file stands after a save.
    enum class State {
        Old,
        New,
        OldAndLineEnds, ///< as a save in place leaves it when nothing works any more
        NewAndLineEnds,
        Torn
    };
    State StateOf(const QString& path) const;
    /// The state of bytes found in place of that file.
    State StateOf(const QString& path, const QByteArray& bytes) const;
    bool IsNew(const QString& path) const { return StateOf(path) == State::New; }
    QByteArray Bytes(const QString& path) const { return Disk.Read(RealPath(path)); }
    bool AllNew() const;
    bool AnyTorn() const;
    /// Whether a file ends in line ends that neither the old nor the new one has.
    bool AnyLineEnds() const;

    /// Files that are neither targets nor whole damaged copies, joined by blanks.
    QString Strays() const;
    /// Whether every link stands, and every replaced damaged file has a whole copy. Tells what is wrong.
    std::string Losses() const;

    /// The native path of the bytes of a target, its link followed.
    NativePath PlaceOf(const QString& path) const;
    /// The folders that hold targets.
    QStringList Folders() const;
    /// What lies in the file before the save; a null array when there is no file.
    QByteArray Before(const QString& path) const;

    const Place Surrounding;
    const Content Held;
    TestFolder Disk;
    std::unique_ptr<SavedKind> Kind;

private:
    QStringList paths;

    QString RealPath(const QString& path) const;
    void PutFile(const QString& path);
    void Open();
    void Protect();
    bool IsCopy(const QString& name, const QByteArray& bytes) const;
};
