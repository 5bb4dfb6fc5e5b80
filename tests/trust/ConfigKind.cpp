#include "tests/trust/ConfigKind.h"

#include "tests/app/FieldValues.h"
#include "tests/trust/WindowKinds.h"

void StartProgram(TestFolder& disk) {
    ProgramFolder = QStringLiteral("c:\\gradewell");
    disk.MakeFolder(ProgramFolder);
    ProgramEdition = Edition::English;
    SetProductTexts(Edition::English);
    SetTitleLine(2016);
    ProgramConfig = {};
    SetDefaultSettings();
}

Message SavedKind::Complaint(const QString& path, const SystemError& error) const {
    const QString name = path.mid(path.lastIndexOf(QLatin1Char('\\')) + 1);
    return {name + QStringLiteral(" SAVE ERROR: ") + QString::number(error.Number),
            QStringLiteral("Unexpected Error while trying to save: ") + name, MessageButtons::Ok,
            MessageIcon::Critical};
}

QByteArray ConfigKind::Saved(const QString&, Content content) const {
    return HandWritten(content == Content::Larger ? "app/every-field.cfg" : "app/defaults.cfg");
}

void ConfigKind::Hold(Content content) {
    held = content == Content::Larger ? EveryField() : DefaultRecord();
    ProgramConfig = held;
}

void ConfigKind::ReadFiles() {
    LocateProgramConfig();
    ProgramConfig = held;
}

// Cut in the middle of a section, and of another length than either of the two contents.
QByteArray DamagedConfigKind::Before(const QString& path, Content content) const {
    const QByteArray cut = Saved(path, Content::Larger).left(700);
    return content == Content::Larger ? cut : cut + QByteArray("x").repeated(600);
}

std::unique_ptr<SavedKind> MakeKind(const std::string& name, TestFolder& disk) {
    if (name == "Setup") {
        return std::make_unique<SetupKind>(disk);
    }
    if (name == "Scheme") {
        return std::make_unique<SchemeKind>(disk);
    }
    if (name == "Transfer") {
        return std::make_unique<TransferKind>(disk);
    }
    if (name == "DamagedConfig") {
        return std::make_unique<DamagedConfigKind>(disk);
    }
    if (name == "DamagedTransfer") {
        return std::make_unique<DamagedTransferKind>(disk);
    }
    return std::make_unique<ConfigKind>(disk);
}
