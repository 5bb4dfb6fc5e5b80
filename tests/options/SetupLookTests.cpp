#include "options/SetupCaptions.h"
#include "tests/options/SetupFixture.h"

#include <QAccessible>

namespace {

class SetupLook : public SetupTest {
protected:
    QString CaptionOf(const QString& control) {
        auto* widget = C<QWidget>(control);
        const char* property = qobject_cast<QGroupBox*>(widget) != nullptr ? "title" : "text";
        return widget->property(property).toString();
    }

    // Pair by pair, then the side with heading, levels and buttons.
    static QStringList SchemeOrder() {
        QStringList order;
        for (int p = 0; p <= 12; ++p) {
            order << QStringLiteral("txtABCChr(%1)").arg(p) << QStringLiteral("txtABCVal(%1)").arg(p);
        }
        return order + QStringList{QStringLiteral("txtABCHeading"),  QStringLiteral("cboABCLevels"),
                                   QStringLiteral("cmdLoadScheme"),  QStringLiteral("cmdSaveScheme"),
                                   QStringLiteral("cmdClearScheme"), QStringLiteral("cmdABCCheck")};
    }

    // The controls that Tab reaches on the panel shown, in the order of Tab.
    QList<QWidget*> TabOrder() {
        QList<QWidget*> order;
        QWidget* at = Window.get();
        do {
            at = at->nextInFocusChain();
            if (at->isVisible() && at->isEnabled() && (at->focusPolicy() & Qt::TabFocus) != 0) {
                order.append(at);
            }
        } while (at != Window.get());
        return order;
    }
};

struct Telling {
    const char* Control;
    const char* English;
    const char* French;
};

const Telling TellingRows[] = {
    {"cmdPrefSave", "&Save", "&Enregistrer"},
    {"cmdPrefCancel", "&Cancel", "&Annuler"},
    {"cmdSetup(0)", "Paths to ...", "Paths to ..."},
    {"p3dSetup(0)", " PATHS T0 ... ", " PATHS T0 ... "},
    {"cmdSetup(1)", "School Year and Dates", "Année scolaire / Dates"},
    {"p3dSetup(1)", " SCHOOL YEAR / DATE FORMATS", " Année scolaire / Format des dates"},
    {"cmdSetup(2)", "Email", "Email"},
    {"p3dSetup(2)", " EMAIL", " EMAIL"},
    {"cmdSetup(3)", "Bar Coded Attendance", "Assuidité-Barres de codes"},
    {"p3dSetup(3)", " BAR CODED ATTENDANCE", " Assuidité-Barres de codes"},
    {"cmdSetup(4)", "Printer Options", "Options d'imprimante"},
    {"p3dSetup(4)", " PRINTER OPTIONS", " Options d'imprimante"},
    {"cmdSetup(5)", "HTML Student Report", "HTML Student Report"},
    {"p3dSetup(5)", " HTML STUDENT REPORT", " HTML STUDENT REPORT"},
    {"cmdSetup(6)", "Grade / Level Schemes", "Notes / Niveaux"},
    {"p3dSetup(6)", " GRADE / LEVEL SCHEMES", " Notes / Niveaux"},
    {"lblDrive", "Drive", "Lecture : "},
    {"lblFolder", "Folder", "Dossier : "},
    {"lblCurrent", "Current:", "Courant : "},
    {"cmdDataPath", "Browse", "Survoler"},
    {"cmdPhotos", "Browse", "Survoler"},
    {"cmdClrDfltPath", "Clear", "Effacer"},
    {"cmdMugClear", "Clear", "Effacer"},
    {"lblSY1", "Starts in:", "L'année scolaire commence en : "},
    {"lblSYWarn", "Do not change if attendance data has been entered.",
     "Veuillez ne pas changer si des données d'assiduité se trouvent déjà dans le fichier."},
    {"fraDFormat", "Date Format", "Format des dates"},
    {"lblDF1",
     "Today's date is displayed and printed throughout Gradewell. Please select a default format from this list.",
     "La date aujourd'hui est affichée et imprimée partout dans ce logiciel. Veuillez choisir la forme que vous "
     "désirez "
     "utiliser  de la liste à la gauche."},
    {"lblSMTP", "SMTP Host Name:", "SMTP Host Name:"},
    {"lblEM2",
     "Email is sent by connecting directly to an email server rather than using a program such as Outlook. In order to "
     "do this, the name (or IP address) of the SMTP server (host) must be entered in the space below.",
     "Email is sent by connecting directly to an email server rather than using a program such as Outlook. In order to "
     "do this, the name (or IP address) of the SMTP server (host) must be entered in the space below."},
    {"fraPrinter", "Printer Dialog Box", "Dialogue d'imprimante"},
    {"chkHCDialog", "Show Printer Dialog Box", "Afficher la boîte de dialogue d'imprimante"},
    {"lblHCDialog",
     "Check this box if your system requires a printer dialog box to be displayed each time you print. This will allow "
     "the teacher to select a printer everytime a print routine is used.",
     "Cocher cette boîte si votre système demande l'affichage d'une boîte de dialogue d'imprimante chaque fois que "
     "vous "
     "imprimez."},
    {"fraThickLines", "Thick Lines", "Thick Lines"},
    {"lblThick", "Adjust the width of thick lines on printed forms.",
     "Adjust the width of thick lines on printed forms."},
    {"lblScheme4", "Active Levels", "Niveaux actifs"},
    {"lblABCHeading", "Column Heading", "En-tête de colonnes"},
    {"cmdLoadScheme", "&Load Scheme", "&Charger le schéma"},
    {"cmdClearScheme", "&Clear Scheme", "E&ffacer le schéma"},
    {"cmdSaveScheme", "&Save Scheme", "&Enregistrer le schéma"},
    {"cmdABCCheck", "Chec&k for Problems", "&Vérifier pour des problèmes"},
    {"lblHTML4",
     "Characters, allowed in course codes and School IDs but not permitted in file names will be changed to a tilde "
     "(~) "
     "by Gradewell. These characters are: /\\:*?<>|",
     "Characters, allowed in course codes and School IDs but not permitted in file names will be changed to a tilde "
     "(~) "
     "by Gradewell. These characters are: /\\:*?<>|"},
};

TEST_F(SetupLook, TellingCaptionsOfBothEditions) {
    Open();
    for (const Telling& row : TellingRows) {
        EXPECT_EQ(CaptionOf(QString::fromUtf8(row.Control)), QString::fromUtf8(row.English));
    }
    EXPECT_EQ(Window->windowTitle(), QStringLiteral("Gradewell - GENERAL OPTIONS"));
    Start(Base(), Edition::French);
    Open();
    for (const Telling& row : TellingRows) {
        EXPECT_EQ(CaptionOf(QString::fromUtf8(row.Control)), QString::fromUtf8(row.French));
    }
    EXPECT_EQ(Window->windowTitle(), QStringLiteral("Carnelle - GENERAL OPTIONS"));
}

TEST_F(SetupLook, EveryKeyHasACaptionInBothEditions) {
    const QStringList keys =
        QStringLiteral(
            "cmdPrefSave cmdPrefCancel cmdSetup(0) cmdSetup(6) p3dSetup(0) p3dSetup(6) fraClassPath lblCD1 lblDrive "
            "lblFolder "
            "lblCurrent cmdDataPath cmdClrDfltPath fraBackupPath fraPhotos lblPhoto1 cmdPhotos cmdMugClear "
            "lblMugCurrent "
            "fraSYear lblSY1 lblSYWarn fraDFormat lblDF1 lblEM1 lblEM2 lblSMTP lblBCA1 lblBCA2 lblBCA3 optBCADflt(0) "
            "optBCADflt(1) fraBCodeFont cmdBCAFont cmdBCAClear fraBCodeOpts lblBCADesc lblBCACode lblBCAResult "
            "lblBCAField "
            "lblBCAOpt fraPrinter chkHCDialog lblHCDialog fraThickLines lblThick lblHTML1 lblHTML2 lblHTML3 lblHTML4 "
            "fraHTML_FileCode lblSchoolID lblSep1 lblSep2 lblSep3 lblSep4 lblSep5 lblSep6 lblSep7 lblSep8 lblSep9 "
            "lblSep10 "
            "fraHTML_Path lblSR1 lblSR2 cmdHTML_Clear cmdHTML_Browse lblScheme1 lblScheme2 lblScheme3 lblScheme4 "
            "lblABCHeading cmdLoadScheme cmdClearScheme cmdSaveScheme cmdABCCheck cmdBkupPathBrowse cmdBkupPathClear")
            .split(u' ');
    Open();
    for (const QString& key : keys) {
        Window->SpeakEnglish_Setup();
        EXPECT_NE(CaptionOf(key).trimmed(), QString()) << key.toStdString();
        Window->SpeakFrench_Setup();
        EXPECT_NE(CaptionOf(key).trimmed(), QString()) << key.toStdString();
    }
}

TEST_F(SetupLook, CaptionsCanBeWritten) {
    for (const Caption& row : SetupCaptions()) {
        for (const char* text : {row.English, row.French}) {
            EXPECT_FALSE(QString::fromUtf8(text).contains(QChar::ReplacementCharacter)) << row.Control;
        }
    }
}

class SetupOfEdition : public SetupLook, public testing::WithParamInterface<Edition> {};

TEST_P(SetupOfEdition, FitsTheSmallestScreen) {
    Start(Base(), GetParam());
    Open();
    for (int panel = 0; panel <= 6; ++panel) {
        ShowPanel(panel);
        QCoreApplication::processEvents();
        const QSize least = Window->minimumSizeHint();
        EXPECT_LE(least.width(), 800) << panel;
        EXPECT_LE(least.height(), 600) << panel;
        EXPECT_EQ(Window->size(), QSize(800, 600)) << panel;
    }
}

TEST_P(SetupOfEdition, ALongReportNameDoesNotWidenTheWindow) {
    constexpr int reportLine = 71;
    Start(WithLines(Base(), {{reportLine, "\"" + QByteArray("NORTH-").repeated(20) + "\",\"-\",\"_\",3,0"}}),
          GetParam());
    OpenPanel(5);
    QCoreApplication::processEvents();
    EXPECT_EQ(Window->size(), QSize(800, 600));
}

TEST_P(SetupOfEdition, TabFollowsTheEye) {
    Start(Base(), GetParam());
    Open();
    const QStringList expected[] = {
        {QStringLiteral("drvHDir"), QStringLiteral("dirHDir"), QStringLiteral("cmdDataPath"),
         QStringLiteral("cmdClrDfltPath"), QStringLiteral("drvBkupPath"), QStringLiteral("dirBkupPath"),
         QStringLiteral("cmdBkupPathBrowse"), QStringLiteral("cmdBkupPathClear"), QStringLiteral("cmdPhotos"),
         QStringLiteral("cmdMugClear")},
        {QStringLiteral("cboSYSM"), QStringLiteral("optDFormat(4)"), QStringLiteral("cmdSetup(0)")},
        {QStringLiteral("txtSMTP")},
        {QStringLiteral("cmdBCAFont"), QStringLiteral("cmdBCAClear"), QStringLiteral("optBCADflt(1)"),
         QStringLiteral("txtBCADesc(0)"), QStringLiteral("cboBCACode(0)"), QStringLiteral("txtBCADesc(1)"),
         QStringLiteral("cboBCACode(1)"), QStringLiteral("txtBCADesc(2)"), QStringLiteral("cboBCACode(2)")},
        {QStringLiteral("chkHCDialog"), QStringLiteral("optThickLine(1)"), QStringLiteral("cmdSetup(0)")},
        {QStringLiteral("txtHTML_School"), QStringLiteral("txtHTML_File_Sep1"), QStringLiteral("txtHTML_File_Sep2"),
         QStringLiteral("cboHTML_FileNameOrder"), QStringLiteral("cmdHTML_Browse"), QStringLiteral("cmdHTML_Clear")},
        SchemeOrder()};
    const QStringList after{
        QStringLiteral("cmdSetup(0)"), QStringLiteral("cmdSetup(1)"), QStringLiteral("cmdSetup(2)"),
        QStringLiteral("cmdSetup(3)"), QStringLiteral("cmdSetup(4)"), QStringLiteral("cmdSetup(5)"),
        QStringLiteral("cmdSetup(6)"), QStringLiteral("cmdPrefSave"), QStringLiteral("cmdPrefCancel")};
    for (int panel = 0; panel <= 6; ++panel) {
        ShowPanel(panel);
        QStringList names;
        for (const QWidget* control : TabOrder()) {
            names.append(control->objectName());
        }
        const QStringList& first = expected[panel];
        EXPECT_EQ(names.mid(0, first.size()), first) << panel << ": " << names.join(u' ').toStdString();
        EXPECT_EQ(names.mid(names.size() - after.size()), after) << panel;
    }
}

TEST_P(SetupOfEdition, EveryControlHasAnAccessibleName) {
    Start(Base(), GetParam());
    Open();
    for (int panel = 0; panel <= 6; ++panel) {
        ShowPanel(panel);
        for (QWidget* control : TabOrder()) {
            QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(control);
            ASSERT_NE(interface, nullptr);
            EXPECT_NE(interface->text(QAccessible::Name).trimmed(), QString()) << control->objectName().toStdString();
        }
    }
}

TEST_P(SetupOfEdition, ButtonsThatLookAlikeHaveNamesOfTheirOwn) {
    Start(Base(), GetParam());
    Open();
    QStringList names;
    for (QWidget* control : TabOrder()) {
        const QString given = control->accessibleName(); // that of a list is what it shows
        names.append(given.isEmpty() ? QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name) : given);
    }
    EXPECT_EQ(names.removeDuplicates(), 0) << names.join(u'|').toStdString();
}

// A desktop with large letters: each panel gets the room it needs when it is shown.
TEST_P(SetupOfEdition, GrowsForALargeFont) {
    Start(Base(), GetParam());
    const QFont before = QApplication::font();
    QApplication::setFont(QFont(before.family(), before.pointSize() * 2));
    Open();
    for (int panel = 0; panel <= 6; ++panel) {
        ShowPanel(panel);
        EXPECT_TRUE(QTest::qWaitFor([this] { return Window->height() >= Window->minimumHeight(); }));
        const auto* shown = C<QWidget>(QStringLiteral("p3dSetup(%1)").arg(panel));
        EXPECT_GE(shown->width(), shown->minimumSizeHint().width()) << panel;
        EXPECT_GE(shown->height(), shown->layout()->totalMinimumHeightForWidth(shown->width())) << panel;
    }
    QApplication::setFont(before);
}

INSTANTIATE_TEST_SUITE_P(Editions, SetupOfEdition, testing::Values(Edition::English, Edition::French));

} // namespace
