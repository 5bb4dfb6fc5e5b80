#include "import/ImportCaptions.h"

namespace {

constexpr int FirstFormatWithoutSeparator = 3;

constexpr Caption Table[] = {
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

} // namespace

std::span<const Caption> ImportCaptions() {
    return Table;
}

QString ImportTitleSuffix(CaptionLanguage language) {
    return language == CaptionLanguage::English ? QStringLiteral(" - IMPORT FILE SETUP")
                                                : QStringLiteral(" - Configuration de fichier d'importation");
}

QString SetupFileNameOf(CaptionLanguage language) {
    return language == CaptionLanguage::English ? QStringLiteral("UpdField.cfg") : QStringLiteral("CNFields.cfg");
}

QString DobInstructions(int dobFormat) {
    return dobFormat < FirstFormatWithoutSeparator
               ? QStringLiteral("Month and Day may be 1 or 2 digits; Year, 2 or 4 digits.\n"
                                "Characters other than [ / ] may separate values.")
               : QStringLiteral("Month and Day MUST be 2 digits; Year may be 2 or 4 digits.\n"
                                "There MUST NOT be any separator.");
}
