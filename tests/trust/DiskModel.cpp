#include "tests/trust/DiskModel.h"

using Kind = DiskOperation::Kind;

namespace {

QByteArray Written(QByteArray file, std::int64_t position, const QByteArray& bytes) {
    const auto at = static_cast<qsizetype>(position);
    if (bytes.isEmpty()) {
        return file;
    }
    if (file.size() < at + bytes.size()) {
        file.append(at + bytes.size() - file.size(), '\0');
    }
    return file.replace(at, bytes.size(), bytes);
}

QByteArray Resized(QByteArray file, std::int64_t size) {
    const auto wanted = static_cast<qsizetype>(size);
    return file.size() < wanted ? file.append(wanted - file.size(), '\0') : file.left(wanted);
}

} // namespace

void DiskModel::Put(const NativePath& path, const QByteArray& bytes) {
    files.push_back({bytes, {}});
    names[path.lexically_normal()] = {files.size() - 1};
}

DiskModel::Entry DiskModel::Now(const NativePath& path) const {
    const auto name = names.find(path);
    return name == names.end() ? Entry() : name->second.back();
}

void DiskModel::Enter(const NativePath& path, Entry entry) {
    const auto name = names.try_emplace(path, std::vector<Entry>{std::nullopt}).first;
    name->second.push_back(entry);
}

void DiskModel::Do(const DiskOperation& operation) {
    switch (operation.What) {
    case Kind::Open:
        opened[operation.File] = Now(operation.Path).value();
        break;
    case Kind::Create:
        files.push_back({});
        opened[operation.File] = files.size() - 1;
        Enter(operation.Path, files.size() - 1);
        break;
    case Kind::Write:
    case Kind::Truncate:
        files[opened.at(operation.File)].pending.push_back(operation);
        break;
    case Kind::SyncFile: {
        File& file = files[opened.at(operation.File)];
        for (const DiskOperation& change : file.pending) {
            file.synced = After(file.synced, change).back();
        }
        file.pending.clear();
        break;
    }
    case Kind::Replace:
        Enter(operation.Target, Now(operation.Path));
        Enter(operation.Path, std::nullopt);
        break;
    case Kind::Remove:
        Enter(operation.Path, std::nullopt);
        break;
    case Kind::SyncFolder:
        for (auto& [path, entries] : names) {
            if (path.parent_path() == operation.Path) {
                entries = {entries.back()};
            }
        }
        break;
    }
}

// All that may come of one change that is not synced; the last one is the change wholly done.
std::vector<QByteArray> DiskModel::After(const QByteArray& before, const DiskOperation& change) const {
    if (change.What == Kind::Truncate) {
        return {before, Resized(before, change.Position)};
    }
    std::vector<QByteArray> results = {before};
    if (writes == Writes::Torn) {
        const QByteArray zeros(change.Bytes.size(), '\0');
        results.push_back(Written(before, change.Position, change.Bytes.left(change.Bytes.size() / 2)));
        results.push_back(Written(before, change.Position, zeros));
    }
    results.push_back(Written(before, change.Position, change.Bytes));
    return results;
}

void DiskModel::AddOrders(const QByteArray& before, std::vector<DiskOperation> left,
                          std::set<QByteArray>& found) const {
    if (left.empty()) {
        found.insert(before);
        return;
    }
    for (std::size_t next = 0; next < left.size(); ++next) {
        std::vector<DiskOperation> others = left;
        others.erase(others.begin() + static_cast<std::ptrdiff_t>(next));
        for (const QByteArray& result : After(before, left[next])) {
            AddOrders(result, others, found);
        }
    }
}

std::set<QByteArray> DiskModel::Contents(const File& file) const {
    std::set<QByteArray> found;
    AddOrders(file.synced, file.pending, found);
    return found;
}

std::set<DiskModel::Found> DiskModel::Possible(const NativePath& path) const {
    const auto name = names.find(path.lexically_normal());
    if (name == names.end()) {
        return {std::nullopt};
    }
    std::set<Found> found;
    for (const Entry& entry : name->second) {
        if (!entry) {
            found.insert(std::nullopt);
            continue;
        }
        for (const QByteArray& bytes : Contents(files[*entry])) {
            found.insert(bytes);
        }
    }
    return found;
}
