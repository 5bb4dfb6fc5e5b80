#pragma once

#include "app/CFG_2015.h"
#include "tests/trust/SavedKind.h"

inline const QString OlderFile = QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG");
inline const QString NewerFile = QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG");

/// The program's global values as at the start, in the program folder c:\gradewell.
void StartProgram(TestFolder& disk);

/// Both configuration files as one save.
class ConfigKind : public SavedKind {
public:
    explicit ConfigKind(TestFolder& disk) { StartProgram(disk); }

    QStringList Paths() const override { return {OlderFile, NewerFile}; }
    QByteArray Saved(const QString& path, Content content) const override;
    void Hold(Content content) override;
    void ReadFiles() override;
    void Save() override { SaveProgramConfig(); }

private:
    ProgramConfigRecord held;
};

/// The same over files that cannot be read to their end, each of which is copied first.
class DamagedConfigKind : public ConfigKind {
public:
    using ConfigKind::ConfigKind;
    QByteArray Before(const QString& path, Content content) const override;
    bool KeepsCopies() const override { return true; }
};
