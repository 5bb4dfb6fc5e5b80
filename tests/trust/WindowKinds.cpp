#include "tests/trust/WindowKinds.h"

#include "tests/support/WindowInput.h"
#include "transfer/TransferStore.h"

namespace {

const QString SetupFile = QStringLiteral("c:\\School\\UpdField.cfg");
const QString StudentFile = QStringLiteral("c:\\School\\Students.txt");
const QString SchemeFile = QStringLiteral("c:\\other\\new.scm");
const QString TransferFile = QStringLiteral("c:\\gradewell\\GWT10_PRG.CFG");

void Press(const QWidget& window, const char* button) {
    Find<QAbstractButton>(window, button)->click();
}

// The message box that says more than the numbered one of the configuration files.
Message WithDescription(Message message, const SystemError& error) {
    message.Text += QStringLiteral("\n\n") + error.Description;
    return message;
}

} // namespace

SetupKind::SetupKind(TestFolder& disk) {
    StartProgram(disk);
    ImportUpdateOptions = UpdateOptions();
    disk.Write(StudentFile, "Smith,John,x,03071999,M");
    ProgramConfig.ImportStudentsFile = StudentFile;
    window = std::make_unique<frmImport_SU>();
    window->show();
    QCoreApplication::sendPostedEvents(window.get(), QEvent::MetaCall); // the activation
    window->hide();
    before = ProgramConfig;
}

QStringList SetupKind::Paths() const {
    return {SetupFile, OlderFile, NewerFile};
}

QByteArray SetupKind::Saved(const QString& path, Content content) const {
    const bool larger = content == Content::Larger;
    if (path == SetupFile) {
        return HandWritten(larger ? "import/UpdField-saved.cfg" : "trust/UpdField-two.cfg");
    }
    ProgramConfigRecord record = before;
    record.ImportStudentsFile = StudentFile;
    record.ImportFieldLast = larger ? 4 : 2;
    const QString first = QStringLiteral("First Name");
    const QString last = QStringLiteral("Last Name");
    if (larger) {
        record.ImportFields = {QStringLiteral("4"), last, first, QStringLiteral("Ignore this field"),
                               QStringLiteral("DOB (MMDDYear)")};
    } else {
        record.ImportFields = {QStringLiteral("4"), first, last};
    }
    return WriteConfigText(record, TitleLine);
}

Message SetupKind::Complaint(const QString& path, const SystemError& error) const {
    const Message message = SavedKind::Complaint(path, error);
    return path == SetupFile ? WithDescription(message, error) : message;
}

void SetupKind::Match(int field) {
    QWidget* label = window->preview->pnlFieldList->lblFieldList[std::size_t(field)];
    QTest::mouseClick(label, Qt::LeftButton);
    QTest::mouseDClick(label, Qt::LeftButton);
}

void SetupKind::Hold(Content content) {
    const bool larger = content == Content::Larger;
    window->cboDOB->setCurrentIndex(4);
    Press(*window, "cmdClearAll");
    const std::vector<int> fields = larger ? std::vector<int>{LastNameField, FirstNameField, IgnoreField, DobField}
                                           : std::vector<int>{FirstNameField, LastNameField};
    for (const int field : fields) {
        Match(field);
    }
    for (const char* box : {"chkCLUpd(0)", "chkCLUpd(2)", "chkCLUpdFields(3)", "chkCLUpdFields(11)"}) {
        Find<QAbstractButton>(*window, box)->setChecked(larger);
    }
}

void SetupKind::ReadFiles() {
    LocateProgramConfig();
    ProgramConfig = before;
    window->setResult(QDialog::Rejected);
}

void SetupKind::Save() {
    Press(*window, "cmdSave");
}

SchemeKind::SchemeKind(TestFolder& diskToUse) : disk(diskToUse) {
    StartProgram(disk);
    disk.MakeFolder(QStringLiteral("c:\\other"));
    window = std::make_unique<frmSetUp_SU>();
}

QStringList SchemeKind::Paths() const {
    return {SchemeFile};
}

QByteArray SchemeKind::Saved(const QString&, Content content) const {
    return HandWritten(content == Content::Larger ? "trust/thirteen.scm" : "options/level.scm");
}

Message SchemeKind::Complaint(const QString& path, const SystemError& error) const {
    return {QStringLiteral("SAVE SCHEME ERROR: ") + QString::number(error.Number),
            QStringLiteral("Can't Save: ") + path + QStringLiteral("\n\nThe error is: ") + error.Description,
            MessageButtons::Ok, MessageIcon::Critical};
}

void SchemeKind::Hold(Content content) {
    disk.Write(QStringLiteral("c:\\source.scm"), Saved(SchemeFile, content));
    disk.Screen.AnswerFile(QStringLiteral("c:\\source.scm"));
    Press(*window, "cmdLoadScheme");
}

void SchemeKind::Save() {
    disk.Screen.AnswerFile(SchemeFile);
    Press(*window, "cmdSaveScheme");
}

TransferKind::TransferKind(TestFolder& diskToUse) : disk(diskToUse) {
    StartProgram(disk);
    disk.MakeFolder(QString::fromUtf8("c:\\Reports\\Été 2016"));
}

QStringList TransferKind::Paths() const {
    return {TransferFile};
}

QByteArray TransferKind::Saved(const QString&, Content content) const {
    return HandWritten(content == Content::Larger ? "transfer/secondary.cfg" : "transfer/windsor.cfg");
}

void TransferKind::Hold(Content content) {
    disk.Write(TransferFile, Saved(TransferFile, content));
    window = std::make_unique<frmGWT_SU>();
    lock = TransferLock;
}

void TransferKind::ReadFiles() {
    TransferSettings read;
    LoadTransferFile(QStringLiteral("GWT10_PRG.CFG"), read);
    TransferLock = lock;
}

void TransferKind::Save() {
    Press(*window, "cmdSaveRules");
}

QByteArray DamagedTransferKind::Before(const QString& path, Content content) const {
    const QByteArray cut = Saved(path, Content::Smaller).left(200);
    return content == Content::Larger ? cut : cut + QByteArray("x").repeated(400);
}
