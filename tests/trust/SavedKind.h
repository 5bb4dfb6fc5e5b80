#pragma once

#include "platform/Desktop.h"
#include "tests/support/TestFolder.h"

#include <memory>
#include <string>

/// Two contents of a file, so that a save can make it longer or shorter.
enum class Content { Smaller, Larger };

inline Content Other(Content content) {
    return content == Content::Smaller ? Content::Larger : Content::Smaller;
}

/// One kind of file that the program writes, with the save that the user starts: the real routine, in its window where
/// it has one. Paths are in the program's form.
class SavedKind {
public:
    virtual ~SavedKind() = default;

    /// The files that one save writes, in the order of writing.
    virtual QStringList Paths() const = 0;
    /// What a save of that content leaves in the file.
    virtual QByteArray Saved(const QString& path, Content content) const = 0;
    /// What lies in the file before that content is saved over it.
    virtual QByteArray Before(const QString& path, Content content) const { return Saved(path, Other(content)); }
    /// Whether what lies there before is kept as a damaged copy.
    virtual bool KeepsCopies() const { return false; }
    /// Whether the save ends at the first file that it cannot write.
    virtual bool StopsAtFailure() const { return false; }
    /// The message that tells of an error of that file.
    virtual Message Complaint(const QString& path, const SystemError& error) const;

    /// Makes the program hold the content, ready to be saved.
    virtual void Hold(Content content) = 0;
    /// The program reads its files, as when it starts or opens the window, and holds the same content again.
    virtual void ReadFiles() {}
    virtual void Save() = 0;
};

/// One of AllKinds.
std::unique_ptr<SavedKind> MakeKind(const std::string& name, TestFolder& disk);

inline constexpr const char* PlainKinds[] = {"Config", "Setup", "Scheme", "Transfer"};
inline constexpr const char* DamagedKinds[] = {"DamagedConfig", "DamagedTransfer"};
inline constexpr const char* AllKinds[] = {"Config", "Setup", "Scheme", "Transfer", "DamagedConfig", "DamagedTransfer"};
