#include "import/ImportCaptions.h"
#include "tests/import/ImportWindow.h"

#include <QAccessible>

namespace {

using ImportCaptionsTest = ImportWindowTest;

struct Row {
    const char* control;
    const char* english;
    const char* french;
};

constexpr Row Rows[] = {
    {"pnlUpdateOpts", " Update Options", " Options de mise à jour"},
    {"fraDelete", "Add/Delete Students", "Ajouter/supprimer des étudiants"},
    {"chkCLUpd(0)", "Add new students.", "Ajouter des nouveaux étudiants."},
    {"chkCLUpd(1)", "If included in the update,", "Si inclu dans la mise à jour,"},
    {"lblCLUpd1", "re-activate deleted students.", "re-activer les étudiants supprimés."},
    {"chkCLUpd(2)", "Delete names missing in the update.", "Supprimer les noms manquants dans la mise à jour."},
    {"chkCLUpd(3)", "Confirm deletions.", "Confirmer les suppressions."},
    {"fraUpdateFields", "Update data in the following fields ... ",
     "Mise à jour des données dans les zones suivantes ... "},
    {"chkCLUpdFields(0)", "Last Name", "Surnom"},
    {"chkCLUpdFields(1)", "First Name", "Prénom"},
    {"chkCLUpdFields(2)", "Gender", "Sexe"},
    {"chkCLUpdFields(3)", "Program", "Programme"},
    {"chkCLUpdFields(4)", "Home Form", "Classe titulaire"},
    {"chkCLUpdFields(5)", "Date of Birth", "Date de naissance"},
    {"chkCLUpdFields(6)", "Phone #1", "Téléphone N°1"},
    {"chkCLUpdFields(7)", "Phone #2", "Téléphone N°2"},
    {"chkCLUpdFields(8)", "Student e-mail", "Courriel d'étudiant"},
    {"chkCLUpdFields(9)", "Parent e-mail", "Courriel de parent"},
    {"chkCLUpdFields(10)", "Miscellaneous", "Divers"},
    {"chkCLUpdFields(11)", "Special Use", "Utilisation spéciale"},
    {"lblFields", "Available Fields", "Zones Disponibles"},
    {"lblHelp1",
     "Drag or double click fields from Available to Matched so they 'line-up' with the data in the import file.",
     "Glissez ou faites le double-clic sur les zones Disponibles vers Accordés afin qu'elles se « mettent en ligne » "
     "avec les données dans le fichier d'importation."},
    {"lblHelp2",
     "Settings made here override Gradewell defaults and any established when classes were created by teachers.",
     "Les configurations portées ici annulent celles que Carnelle porte par défaut. Cela inclut même les "
     "configurations établies quand les classes ont été créées par les professeurs."},
    {"lblHelp3",
     "Click on 'Clear All' then 'Save' if you no longer want to use this program to setup the 'Import' file.",
     "Cliquez sur « Effacer tout » et puis « Enregistrer » si vous ne désirez plus utiliser ce logiciel pour "
     "configurer le fichier «Importation»."},
    {"pnlDOB", " Format for Importing Birth Dates (DOB)", " Forme pour l'importation des dates de naissance (DDN)"},
    {"cmdOpen", "&Open an Import File", "&Ouvrir fichier d'importation"},
    {"cmdClearMatch", "Clear &Last", "Effacer &dernier accord"},
    {"cmdClearAll", "Clear &All", "Effacer &tout"},
    {"cmdSave", "&Save", "&Enregistrer"},
    {"cmdExitImport", "&Cancel", "&Annuler"},
};

QString CaptionOf(const QWidget* control) {
    for (const char* property : {"text", "title"}) {
        const QVariant caption = control->property(property);
        if (caption.isValid()) {
            return caption.toString();
        }
    }
    return QString();
}

TEST_F(ImportCaptionsTest, ShowsEnglishInBothEditions) {
    for (const Edition edition : {Edition::English, Edition::French}) {
        SetProductTexts(edition);
        OpenWith("a,b");
        for (const Row& row : Rows) {
            EXPECT_EQ(Text(row.english), CaptionOf(Find(row.control))) << row.control;
        }
        EXPECT_EQ(WindowTitle + Text(" - IMPORT FILE SETUP"), window->windowTitle());
        EXPECT_EQ(Text("Last Name"), Field(LastNameField)->text());
    }
}

TEST_F(ImportCaptionsTest, KeepsTheFrenchTableComplete) {
    OpenWith("a,b");
    window->SpeakFrench_ImportSU();
    for (const Row& row : Rows) {
        EXPECT_EQ(Text(row.french), CaptionOf(Find(row.control))) << row.control;
    }
    EXPECT_EQ(WindowTitle + Text(" - Configuration de fichier d'importation"), window->windowTitle());
    EXPECT_EQ(Text("DDN (An/Mois/Jour)"), Field(DobField)->text());
    EXPECT_EQ(Text("AnnéMMJJ"), window->cboDOB->itemText(3));
    EXPECT_EQ(Text("CNFields.cfg"), SetupFileNameOf(CaptionLanguage::French));
    EXPECT_EQ(Text("UpdField.cfg"), SetupFileNameOf(CaptionLanguage::English));
    EXPECT_EQ(std::size(Rows), ImportCaptions().size());
}

TEST_F(ImportCaptionsTest, FitsItsSizeInBothLanguages) {
    OpenWith(QByteArray("x,").repeated(24));
    EXPECT_EQ(QSize(800, 600), window->minimumSize());
    EXPECT_EQ(QSize(800, 600), window->size());
    window->hide();
    window->SpeakFrench_ImportSU();
    window->show();
    EXPECT_EQ(QSize(800, 600), window->minimumSize());
    EXPECT_EQ(QSize(800, 600), window->size());
}

TEST_F(ImportCaptionsTest, FitsItsSizeWithANotice) {
    OpenWith("\xEF\xBB\xBF" + QByteArray("x,").repeated(24));
    EXPECT_TRUE(Find("lblNotice")->isVisible());
    EXPECT_EQ(QSize(800, 600), window->size());
    window->hide();
    window->show();
    EXPECT_EQ(QSize(800, 600), window->minimumSize());
    EXPECT_EQ(QSize(800, 600), window->size());
}

TEST_F(ImportCaptionsTest, PutsEverythingInItsPlace) {
    OpenWith(QByteArray("x,").repeated(24));
    for (const QWidget* child : window->findChildren<QWidget*>()) {
        if (child->isVisible() && child->parentWidget() == window.get()) {
            EXPECT_TRUE(window->rect().contains(child->geometry())) << child->objectName().toStdString();
        }
    }
    for (int field = 1; field <= FieldCount; ++field) {
        EXPECT_EQ(QRect(2 + 1, (field - 1) * 14 + 1, 129, 14), Field(field)->geometry()); // inside a frame of 1
    }
    const ImportGrid* grid = window->preview->grdImport;
    EXPECT_EQ(20, grid->columnWidth(0));
    EXPECT_EQ(412, grid->columnWidth(1));
    EXPECT_EQ(169, grid->columnWidth(2));
    EXPECT_EQ(20 + 412 + 169, grid->viewport()->width()); // no part of a column is hidden, none is left over
    OpenWith("a,b");
    EXPECT_EQ(20 + 412 + 169, window->preview->grdImport->viewport()->width());
}

TEST_F(ImportCaptionsTest, GivesEveryControlAnAccessibleName) {
    OpenWith("a,b");
    for (const QWidget* child : window->findChildren<QWidget*>()) {
        if (child->focusPolicy() == Qt::NoFocus || !child->isVisible()) {
            continue;
        }
        const QString name =
            QAccessible::queryAccessibleInterface(const_cast<QWidget*>(child))->text(QAccessible::Name);
        EXPECT_FALSE(name.isEmpty()) << child->objectName().toStdString() << child->metaObject()->className();
    }
}

TEST_F(ImportCaptionsTest, TabGoesFromTopToBottomAndReachesTheListOnce) {
    OpenWith("a,b");
    window->activateWindow();
    window->cmdOpen->setFocus();
    QStringList names;
    for (int step = 0; step < 30; ++step) {
        names.append(window->focusWidget()->objectName());
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        if (window->focusWidget() == window->cmdOpen) {
            break;
        }
    }
    const QStringList expected =
        Text("cmdOpen grdImport lblFieldList(1) spnRecords.Previous spnRecords.Next cmdClearMatch cmdClearAll "
             "chkCLUpd(0) "
             "chkCLUpd(1) chkCLUpd(2) chkCLUpd(3) chkCLUpdFields(0) chkCLUpdFields(1) chkCLUpdFields(2) "
             "chkCLUpdFields(3) chkCLUpdFields(4) chkCLUpdFields(5) chkCLUpdFields(6) chkCLUpdFields(7) "
             "chkCLUpdFields(8) chkCLUpdFields(9) chkCLUpdFields(10) chkCLUpdFields(11) cboDOB cmdSave cmdExitImport")
            .split(QChar(u' '));
    EXPECT_EQ(expected, names);
}

} // namespace
