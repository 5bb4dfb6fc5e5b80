#include "tests/import/ImportWindow.h"

#include <QMimeData>

ImportWindowTest::ImportWindowTest() {
    folder.MakeFolder(Text("c:\\Gradewell"));
    folder.MakeFolder(Text("c:\\School"));
    SetProductTexts(Edition::English);
    SetTitleLine(2016);
    ProgramFolder = Text("c:\\Gradewell");
    ProgramConfig = ProgramConfigRecord();
    SetDefaultSettings();
    ImportUpdateOptions = UpdateOptions();
}

// Reads that were left to themselves use the folder and the calls.
ImportWindowTest::~ImportWindowTest() {
    calls.Recover();
    AwaitBackgroundWork();
}

void ImportWindowTest::OpenWith(const QByteArray& bytes) {
    folder.Write(path, bytes);
    ProgramConfig.ImportStudentsFile = path;
    Show();
}

void ImportWindowTest::Show() {
    window = std::make_unique<frmImport_SU>();
    window->show();
    QCoreApplication::sendPostedEvents(window.get(), QEvent::MetaCall); // the activation
}

QWidget* ImportWindowTest::Find(const char* name) const {
    auto* found = window->findChild<QWidget*>(Text(name));
    if (found == nullptr) {
        QStringList names;
        for (const QWidget* child : window->findChildren<QWidget*>()) {
            names.append(child->objectName());
        }
        ADD_FAILURE() << name << " is not among: " << names.join(QChar(u' ')).toStdString();
    }
    return found;
}

void ImportWindowTest::DoubleClick(int field) {
    QTest::mouseClick(Field(field), Qt::LeftButton);
    QTest::mouseDClick(Field(field), Qt::LeftButton);
}

void ImportWindowTest::DoubleClick(std::initializer_list<int> fields) {
    for (const int field : fields) {
        DoubleClick(field);
    }
}

bool ImportWindowTest::DropOnGrid() {
    QMimeData data;
    data.setData(FieldListPanel::FieldMimeType(), "1");
    QWidget* grid = window->preview->grdImport->viewport();
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(grid, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(grid, &drop);
    return drop.isAccepted();
}

QStringList ImportWindowTest::Column(int column) const {
    QStringList texts;
    for (int row = 0; row < window->preview->grdImport->rowCount(); ++row) {
        texts.append(Cell(row, column));
    }
    return texts;
}
