#pragma once

#include "import/FieldMatching.h"
#include "import/ImportFile.h"
#include "import/PreviewPanel.h"
#include "import/ReadingGuard.h"
#include "import/UpdateOptionsPanel.h"
#include "platform/widgets/Captions.h"
#include "platform/widgets/DropDownList.h"
#include "platform/widgets/OptionsWindow.h"
#include "platform/widgets/PathLabel.h"

#include <QPointer>
#include <functional>
#include <memory>

/// The import file setup: shows the student data file record by record and lets the administrator match its columns
/// to the gradebook's fields. Save writes UpdField.cfg beside the file, and the configuration files.
class frmImport_SU : public OptionsWindow {
    Q_OBJECT

public:
    explicit frmImport_SU(QWidget* parent = nullptr);
    ~frmImport_SU() override;

    /// Every caption of the window in a language; loading the window applies English in both editions.
    void SpeakEnglish_ImportSU();
    void SpeakFrench_ImportSU();

    QPushButton* cmdOpen;
    PathLabel* lblFileName; ///< the import file's path, the program's form
    PreviewPanel* preview;
    UpdateOptionsPanel* pnlUpdateOpts;
    QGroupBox* pnlDOB;
    DropDownList* cboDOB; ///< the index is the DOB format code
    QLabel* lblDOBInstr;
    QLabel* lblHelp2;
    QPushButton* cmdSave;
    QPushButton* cmdExitImport;

    /// Shows a record, counted from 1; one that the file does not have gives its first or last.
    void GoToRecord(std::int64_t record);

    /// Cancel: stops a reading that goes on, else leaves the window at once.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    FieldMatching matching;
    ImportFile importFile;
    QString setupFileName;
    std::int64_t currentRecord = 1;
    std::int64_t recordCount = 0;
    bool forceDialog = false;
    bool reading = false;
    bool stopAsked = false;
    bool closeAsked = false; // while the file was read
    std::unique_ptr<ReadingGuard> guard;
    QPointer<QWidget> focusBefore; // the reading

    // The window (frmImport_SU.cpp)
    void BuildLayout();
    QLayout* BuildBottom();
    void ConnectControls();
    void Form_Load();
    void Form_Activate();
    void SpeakImportSU(CaptionLanguage language, FieldList fields);

    // The import file (OpenImportFile.cpp)
    void OpenImportFile();
    bool AskForImportFile(QString& path);
    void ReadUpdFieldCFG(const QString& path);
    void LoadUpdateOptions();
    void ReadImportFile(const QString& path);
    void ShowFirstRecord(const ImportRecord& record);
    void ShowNoRecord(const ImportFile::Result& why);
    void ShowFieldMatches();
    void ShowFileNotice(const ImportFile::Result& counted);
    void cmdOpen_Click();

    // The records (PageRecords.cpp)
    void ShowImportRecord(std::int64_t wanted);
    ImportFile::Result FileHasChanged(std::int64_t& wanted, ImportRecord& record);
    void ShowRecord(std::int64_t number, const ImportRecord& record);
    void TellReadingFailure(const SystemError& error);

    // The reading, which may take long (PatientReading.cpp)
    bool ReadPatiently(const std::function<void()>& work);
    ImportFile::RecordReading ReadRecord(const ImportFile::Reader& reader);
    ImportFile::Result CountRecords();
    void BeginReading();
    void EndReading();
    void LeaveIfAsked();

    // Matching and saving (MatchAndSave.cpp)
    void lblFieldList_MouseDown(int field);
    void lblFieldList_DblClick(int field);
    void lblFieldList_Drag();
    void grdImport_DragDrop();
    void ShowMatches();
    void cboDOB_Click(int format);
    void cmdClearMatch_Click();
    void cmdClearAll_Click();
    void cmdSave_Click();
    void SaveWithoutMatches();
    void TakeOverSetup();
    bool SaveUpdFieldCFG();
};
