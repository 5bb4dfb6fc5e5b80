#pragma once

#include "tests/trust/RecordingCalls.h"

#include <optional>
#include <set>

/// What a file system may still hold after a power loss, given the changes that were asked of it. Nothing is promised
/// before it was synced: of the changes of a file since its last sync any may be missing and they may be done in any
/// order; a folder's entry may be any that it was since the folder's last sync, each name for itself, so that even the
/// two halves of a move may come apart.
class DiskModel {
public:
    enum class Writes {
        Whole, ///< a write is done or not
        Torn   ///< also only its first half, or zeros in its place
    };
    explicit DiskModel(Writes writesAsked) : writes(writesAsked) {}

    /// A file that has lain there for long.
    void Put(const NativePath& path, const QByteArray& bytes);
    void Do(const DiskOperation& operation);

    /// Everything that may be found under the name if the power is cut now; nothing for no such file.
    using Found = std::optional<QByteArray>;
    std::set<Found> Possible(const NativePath& path) const;

private:
    struct File {
        QByteArray synced;
        std::vector<DiskOperation> pending;
    };
    using Entry = std::optional<std::size_t>; // the file that a name stands for

    Writes writes;
    std::vector<File> files;
    std::map<NativePath, std::vector<Entry>> names; // each with what it has stood for since the folder's last sync
    std::map<int, std::size_t> opened;

    Entry Now(const NativePath& path) const;
    void Enter(const NativePath& path, Entry entry);
    std::set<QByteArray> Contents(const File& file) const;
    std::vector<QByteArray> After(const QByteArray& before, const DiskOperation& change) const;
    void AddOrders(const QByteArray& before, std::vector<DiskOperation> left, std::set<QByteArray>& found) const;
};
