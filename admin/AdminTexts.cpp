#include "admin/AdminTexts.h"

namespace {

constexpr Caption Captions[] = {
    {"pnlAdminPath", " PATH TO ADMIN FOLDER", " Chemination vers le fichier administratif"},
    {"lblDrive", "Drive:", "Lecture : "},
    {"lblFolder", "Folder:", "Dossier : "},
    {"lblCurrent", "Current:", "Courant : "},
    {"lblPathHelp", "This is the default location for teachers to save their Admin Edition files.",
     "Ceci est la chemination par défaut qui permet aux professeurs d'enregistrer leurs fichiers de l'édition "
     "administrative de Carnelle."},
    {"cmdAdminPath", "&Browse", "&Survoler"},
    {"cmdClrAdminPath", "&Clear", "&Effacer"},
    {"pnlRules", " COURSE CODE RULES", " Règles de codes de cours d'étude"},
    {"lblRules1",
     "The Course Code is usually a combination of subject, class or section and grade level information. Since there "
     "are a wide variety of formats, the 'Rules' below provide a way for Gradewell to interpret the code. A value of "
     "zero in any field disables this feature completely.",
     "D'habitude le code de cours d'étude est  une combinaison de matière, classe ou section et d'information du "
     "niveau. Puisqu'il y a une large variété de formats, les « Règles » ci-dessous fournissent une façon afin que "
     "Carnelle puisse interpréter le code. Une valeur de zéro dans n'importe quel domaine met hors d'action cette "
     "caractéristique completément."},
    {"lblCourse", "The Course of Subject ID", "Cours d'étude/Matière"},
    {"lblClass", "The Class or Section ID", "Classe/Section"},
    {"lblGrade", "The Grade, Level or Year", "Année/Niveau"},
    {"lblRuleStart(0)", "starts at position", "commence en position"},
    {"lblRuleStart(1)", "starts at position", "commence en position"},
    {"lblRuleStart(2)", "starts at position", "commence en position"},
    {"lblRuleIs(0)", "and is", "avec"},
    {"lblRuleIs(1)", "and is", "avec"},
    {"lblRuleIs(2)", "and is", "avec"},
    {"lblRuleLong(0)", "character(s) long.", "caractère(s)."},
    {"lblRuleLong(1)", "character(s) long.", "caractère(s)."},
    {"lblRuleLong(2)", "character(s) long.", "caractère(s)."},
    {"optRule_GradeConv(0)",
     "The Character(s) in this position are the same as the one(s) used for the Grade / Level / Year.",
     "Les charactères dans cette position de la chaîne sont les mêmes que ceux qu'on utilise pour l'année ou le "
     "niveau."},
    {"lblConversion", "The conversions for character(s) to Grade / Level / Year are listed to the right.",
     "Les conversions des caractère(s) vers l'année ou le niveau sont énumérés à la droite."},
    {"lblRuleMeans(0)", "means", "signifie"},
    {"lblRuleMeans(1)", "means", "signifie"},
    {"lblRuleMeans(2)", "means", "signifie"},
    {"lblRuleMeans(3)", "means", "signifie"},
    {"lblRuleMeans(4)", "means", "signifie"},
    {"lblRuleMeans(5)", "means", "signifie"},
    {"fraTest", "Test the Rules", "L'épreuve des règles"},
    {"lblTest1", "Enter a sample Full Code", "Donnez un échantillon d'un code entier"},
    {"lblTest2", "Course/Subject", "Cours d'étude/Matière"},
    {"lblTest3", "Class/Section", "Classe/Section"},
    {"lblTest4", "Grade/Level", "Année/Niveau"},
    {"cmdSaveRules", "&Save", "&Enregistrer"},
    {"chkUseSplitChar",
     "Split the course and the class at this character:", "Séparer le cours et la classe à ce caractère :"},
    {"cmdRulesCancel", "&Cancel", "&Annuler"},
};

} // namespace

std::span<const Caption> AdminCaptions() {
    return Captions;
}

QString AdminTitleSuffix(CaptionLanguage language) {
    return language == CaptionLanguage::English
               ? QStringLiteral(" - TRANSFER to ADMIN EDITION")
               : QString::fromUtf8(" - Transfert vers l'édition administrative de Carnelle");
}

QString AdminBrowseText(const QString& productName) {
    return QStringLiteral("Use the 'Save in' drop down in the following dialog box to set the path to the %1 Admin "
                          "Edition data folder.\n\nPlease do NOT delete the 'Don't_Delete_Me' file name.\n\nClick on "
                          "Save when you're in the right 'place'.\n")
        .arg(productName);
}
