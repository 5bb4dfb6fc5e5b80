#pragma once

#include "import/frmImport_SU.h"
#include "options/frmSetUp_SU.h"
#include "tests/trust/ConfigKind.h"
#include "transfer/frmGWT_SU.h"

/// The setup file beside the student data file, saved by the import window together with both configuration files.
class SetupKind : public SavedKind {
public:
    explicit SetupKind(TestFolder& disk);

    QStringList Paths() const override;
    QByteArray Saved(const QString& path, Content content) const override;
    bool StopsAtFailure() const override { return true; }
    Message Complaint(const QString& path, const SystemError& error) const override;
    void Hold(Content content) override;
    void ReadFiles() override;
    void Save() override;

private:
    ProgramConfigRecord before;
    std::unique_ptr<frmImport_SU> window;

    void Match(int field);
};

/// A scheme file, saved by the scheme editor of General Options.
class SchemeKind : public SavedKind {
public:
    explicit SchemeKind(TestFolder& disk);

    QStringList Paths() const override;
    QByteArray Saved(const QString& path, Content content) const override;
    Message Complaint(const QString& path, const SystemError& error) const override;
    void Hold(Content content) override;
    void Save() override;

private:
    TestFolder& disk;
    std::unique_ptr<frmSetUp_SU> window;
};

/// The Transfer Program's file, saved by its options window.
class TransferKind : public SavedKind {
public:
    explicit TransferKind(TestFolder& disk);

    QStringList Paths() const override;
    QByteArray Saved(const QString& path, Content content) const override;
    void Hold(Content content) override;
    void ReadFiles() override;
    void Save() override;

private:
    TestFolder& disk;
    std::unique_ptr<frmGWT_SU> window;
    std::int16_t lock = 0; // that belongs to the content
};

/// The same over a file that cannot be read to its end, which is copied first.
class DamagedTransferKind : public TransferKind {
public:
    using TransferKind::TransferKind;
    QByteArray Before(const QString& path, Content content) const override;
    bool KeepsCopies() const override { return true; }
};
