#include "transfer/TransferTexts.h"

namespace {

constexpr Caption Captions[] = {
    {"pnlAdminPath", " PATH TO REPORT CARD FOLDER", " La chemination pour le dossier de bulletins scolaires"},
    {"lblCPHelp", "This is the default location for teachers to save their Report Card files.",
     "Voici l'emplacement par défaut où les professeurs enregistrent leurs fichiers de bulletin scolaire."},
    {"lblDrive", "Drive: ", "Lecture : "},
    {"lblFolder", "Folder: ", "Dossier : "},
    {"lblCurrent", "Current: ", "Courant : "},
    {"cmdGWT_Browse", "&Browse", "&Survoler"},
    {"cmdClrPath", "&Clear", "&Effacer"},
    {"pnlSetup", " SETUP", " CONFIGURATION"},
    {"fraSetupSIS", "Student Information Software", "Logiciel de l'information sur les étudiants"},
    {"lblSIS", "Select the software used by your school, Board or District.",
     "Sélectionnez les logiciels utilisés par votre école, Conseil ou District. "},
    {"fraSetupBoard", "Elementary / Secondary", "Élémentaire / Secondaire"},
    {"lblClickLock", "Click the lock to change its setting.",
     "Veuillez cliquer le mécanisme de verrouillage pour changer sa configuration."},
    {"fraWH_WorkHabits", "Work Habits", "Habitudes de travail"},
    {"cmdWH_WorkHabits", "Create / Edit the &Work Habits Code List",
     "Créer / modifier la liste des codes d'&habitudes de travail"},
    {"cmdRulesCancel", "&Cancel", "&Annuler"},
    {"cmdSaveRules", "&Save", "&Enregistrer"},
};

QString ByLanguage(CaptionLanguage language, const char* english, const char* french) {
    return QString::fromUtf8(language == CaptionLanguage::English ? english : french);
}

} // namespace

std::span<const Caption> TransferCaptions() {
    return Captions;
}

QString TransferTitleSuffix(CaptionLanguage language) {
    return ByLanguage(language, " - TRANSFER PROGRAM", " - Logiciel de transfer pour Carnelle");
}

QString TransferFileName(CaptionLanguage language) {
    return ByLanguage(language, "GWT10_PRG.CFG", "CNT9_PRG.CFG");
}

QString SystemNameSeparator(CaptionLanguage language) {
    return ByLanguage(language, ": ", " : ");
}

QStringList BoardNames(CaptionLanguage language) {
    return {ByLanguage(language, "Elementary - Public", "Élémentaire - Publique"),
            ByLanguage(language, "Elementary - Catholic", "Élémentaire - Catholique"),
            ByLanguage(language, "Secondary - Public", "Secondaire - Publique"),
            ByLanguage(language, "Secondary - Catholic", "Secondaire - Catholique")};
}

QString TransferHelpText(CaptionLanguage language, const QString& fileName) {
    return ByLanguage(language, "Settings are saved in the file '",
                      "Les consignes de configuration sont enregistrés dans le fichier « ") +
           fileName +
           ByLanguage(language,
                      "'. If you choose to 'lock' it, teachers will not be able to alter default settings and they "
                      "will not need permission to write (save) to the Gradewell program folder on a network.",
                      " ».  Si vous décidez de vérouiller le fichier, les professeurs ne pourront plus modifier les "
                      "consignes par défaut et ils n'auront plus besoin de permission à écrire (enregistrer) vers le "
                      "dossier du logiciel Carnelle sur un réseau.");
}

QString ReportBrowseTitle(CaptionLanguage language) {
    return ByLanguage(language, "Locate Gradewell Data Folders", "L'emplacement des fichiers de données de Carnelle");
}

QString ReportBrowseText(CaptionLanguage language) {
    return ByLanguage(language,
                      "Use the 'Save in' drop down in the following dialog box to set the path to the Report folder."
                      "\n\nPlease do NOT delete the 'Don't_Delete_Me' file name."
                      "\n\nClick on Save when you're in the right 'place'.",
                      "Utilisez l'option « Enregistrer dans » au menu déroulant dans la boîte de dialogue pour "
                      "configurer la chemination "
                      "pour le dossier de bulletins scolaires."
                      "\n\nVeuillez ne PAS supprimer le nom du fichier « Don't_Delete_Me »."
                      "\n\nCliquez « Enregister » dès que vous auriez fini.");
}

QString WorkHabitsQuestion(const QString& programFolder) {
    return QStringLiteral("This routine is used to create and/or edit a file with customized Work Habits codes for use "
                          "with Windsor-Harts\n\nThis file must:\n   -> have each code on a separate line.\n   -> be "
                          "named 'WorkHabits.txt'.\n   -> be saved in this folder: ") +
           programFolder + QStringLiteral(".\n");
}

QString EditorErrorTitle(CaptionLanguage language) {
    return ByLanguage(language, "Can't start the text editor", "Impossible de démarrer l'éditeur de texte");
}

QString EditorErrorText(CaptionLanguage language, const QString& file) {
    return ByLanguage(language, "Sorry, no text editor could be started for the file '",
                      "Désolé, aucun éditeur de texte n'a pu être démarré pour le fichier « ") +
           file + ByLanguage(language, "'.", " ».");
}
