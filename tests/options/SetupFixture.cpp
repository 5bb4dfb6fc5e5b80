#include "tests/options/SetupFixture.h"

SetupTest::SetupTest() {
    for (const char* folder : {"c:\\gradewell", "c:\\marks\\2016", "c:\\marks\\gwdata", "c:\\backup", "c:\\other",
                               "c:\\photos", "c:\\html", "c:\\GWother"}) {
        Machine.MakeFolder(QString::fromUtf8(folder));
    }
    Start(Base());
}

void SetupTest::Start(const QByteArray& configFile, Edition edition) {
    Machine.Write(QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG"), configFile);
    ProgramEdition = edition;
    ProgramFolder = QStringLiteral("c:\\gradewell");
    SetProductTexts(edition);
    SetTitleLine(2016);
    ProgramConfig = {};
    SetDatePatterns(0);
    SetDefaultSettings();
    LocateProgramConfig();
}

void SetupTest::Open() {
    Window = std::make_unique<frmSetUp_SU>();
    ShowActive(*Window);
}

void SetupTest::OpenPanel(int panel) {
    Open();
    ShowPanel(panel);
}

void SetupTest::ShowPanel(int panel) {
    Click(QStringLiteral("cmdSetup(%1)").arg(panel).toUtf8().constData());
}

void SetupTest::Click(const char* button) {
    auto* pressed = Find<QAbstractButton>(*Window, button);
    // Options and check boxes act on their mark and text only, which stand at the left.
    QTest::mouseClick(pressed, Qt::LeftButton, Qt::NoModifier, QPoint(8, pressed->height() / 2));
}

void SetupTest::Type(const QString& box, const QString& text) {
    auto* line = C<QLineEdit>(box);
    QTest::mouseClick(line, Qt::LeftButton);
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Delete);
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
}

void SetupTest::Enter(const QString& box, const QString& text) {
    Type(box, text);
    QTest::keyClick(C<QLineEdit>(box), Qt::Key_Tab);
}

void SetupTest::Choose(const QString& list, const QString& entry) {
    auto* box = C<QComboBox>(list);
    const int index = box->findText(entry);
    ASSERT_GE(index, 0) << entry.toStdString();
    box->setCurrentIndex(index);
}

QByteArray SetupTest::Saved() {
    const QByteArray newer = Machine.Read(QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG"));
    EXPECT_EQ(newer, Machine.Read(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG")));
    return newer;
}

QString SetupTest::Titles() const {
    QStringList titles;
    for (const Message& message : Screen.Messages) {
        titles.append(message.Title);
    }
    return titles.join(u'|');
}

QByteArray WithLines(const QByteArray& file, const Lines& lines) {
    QList<QByteArray> all = file.split('\n');
    for (const auto& [number, text] : lines) {
        all[number - 1] = text + '\r';
    }
    return all.join('\n');
}

QByteArray Base() {
    return HandWritten("options/base.cfg");
}
