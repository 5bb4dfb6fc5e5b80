#include "options/SetupCaptions.h"

#include <array>

namespace {

#define SAME_IN_BOTH(text) text, text

constexpr auto Texts = std::to_array<Caption>({
    {"cmdPrefSave", "&Save", "&Enregistrer"},
    {"cmdPrefCancel", "&Cancel", "&Annuler"},
    {"cmdSetup(0)", SAME_IN_BOTH("Paths to ...")},
    {"p3dSetup(0)", SAME_IN_BOTH(" PATHS T0 ... ")}, // a zero, as the gradebook itself has it
    {"cmdSetup(1)", "School Year and Dates", "Année scolaire / Dates"},
    {"p3dSetup(1)", " SCHOOL YEAR / DATE FORMATS", " Année scolaire / Format des dates"},
    {"cmdSetup(2)", SAME_IN_BOTH("Email")},
    {"p3dSetup(2)", SAME_IN_BOTH(" EMAIL")},
    {"cmdSetup(3)", "Bar Coded Attendance", "Assuidité-Barres de codes"},
    {"p3dSetup(3)", " BAR CODED ATTENDANCE", " Assuidité-Barres de codes"},
    {"cmdSetup(4)", "Printer Options", "Options d'imprimante"},
    {"p3dSetup(4)", " PRINTER OPTIONS", " Options d'imprimante"},
    {"cmdSetup(5)", SAME_IN_BOTH("HTML Student Report")},
    {"p3dSetup(5)", SAME_IN_BOTH(" HTML STUDENT REPORT")},
    {"cmdSetup(6)", "Grade / Level Schemes", "Notes / Niveaux"},
    {"p3dSetup(6)", " GRADE / LEVEL SCHEMES", " Notes / Niveaux"},

    // Paths
    {"fraClassPath", "... Class Data", "... Données de classe"},
    {"lblCD1", SAME_IN_BOTH("Teachers save their class data in this folder unless they choose another one. Leave the "
                            "path blank when each teacher uses a folder of their own.")},
    {"lblDrive", "Drive", "Lecture : "},
    {"lblFolder", "Folder", "Dossier : "},
    {"lblCurrent", "Current:", "Courant : "},
    {"cmdDataPath", "Browse", "Survoler"},
    {"cmdClrDfltPath", "Clear", "Effacer"},
    {"fraBackupPath", "... Backups", "... Copies de sauvegarde"},
    {"lblBkup1",
     "Backup copies of class data are saved in this folder. A folder on another drive or computer than the class data "
     "is the safest choice.",
     "Les copies de sauvegarde des données de classe sont enregistrées dans ce dossier. Le choix le plus sûr est un "
     "dossier situé sur un autre lecteur ou un autre ordinateur que les données."},
    {"lblBkupDrive", "Drive", "Lecture : "},
    {"lblBkupFolder", "Folder", "Dossier : "},
    {"lblBkupCurrent", "Current:", "Courant : "},
    {"cmdBkupPathBrowse", "Browse", "Survoler"},
    {"cmdBkupPathClear", "Clear", "Effacer"},
    {"fraPhotos", "... Student Photos", "... Photos des élèves"},
    {"lblPhoto1",
     SAME_IN_BOTH("Gradewell shows the photograph of a student when this folder holds a file named with the student "
                  "number, such as 123456.jpg. Browse to the folder and click on any one of the photographs; the "
                  "folder and the kind of file (JPG or BMP) are kept.")},
    {"cmdPhotos", "Browse", "Survoler"},
    {"cmdMugClear", "Clear", "Effacer"},
    {"lblMugCurrent", "Current:", "Courant : "},

    // School year and dates
    {"fraSYear", "School Year", "Année scolaire"},
    {"lblSY1", "Starts in:", "L'année scolaire commence en : "},
    {"lblSYWarn", "Do not change if attendance data has been entered.",
     "Veuillez ne pas changer si des données d'assiduité se trouvent déjà dans le fichier."},
    {"fraDFormat", "Date Format", "Format des dates"},
    {"lblDF1",
     "Today's date is displayed and printed throughout Gradewell. Please select a default format from this list.",
     "La date aujourd'hui est affichée et imprimée partout dans ce logiciel. Veuillez choisir la forme que vous "
     "désirez "
     "utiliser  de la liste à la gauche."},

    // Email
    {"lblEM1", SAME_IN_BOTH("Teachers can send email to students and parents from within Gradewell.")},
    {"lblEM2",
     SAME_IN_BOTH(
         "Email is sent by connecting directly to an email server rather than using a program such as Outlook. "
         "In order to do this, the name (or IP address) of the SMTP server (host) must be entered in the space "
         "below.")},
    {"lblSMTP", SAME_IN_BOTH("SMTP Host Name:")},

    // Bar-coded attendance
    {"lblBCA1",
     "Gradewell can print a monthly attendance form that shows the course code and the student numbers as Code 39 bar "
     "codes, so that attendance can be read into a central database with a scanner.",
     "Carnelle peut imprimer un formulaire mensuel d'assiduité qui présente le code de cours et les numéros d'élèves "
     "sous forme de codes à barres Code 39, afin qu'un lecteur optique transmette l'assiduité à une base de données "
     "centrale."},
    {"lblBCA2", "A Code 39 bar code font must be installed on every computer that prints the form.",
     "Une police de codes à barres Code 39 doit être installée sur chaque ordinateur qui imprime le formulaire."},
    {"lblBCA3", "Use the bar coded form as the default attendance form?",
     "Utiliser ce formulaire comme formulaire d'assiduité par défaut ?"},
    {"optBCADflt(0)", "No", "Non"},
    {"optBCADflt(1)", "Yes", "Oui"},
    {"fraBCodeFont", "Bar Code Font", "Police de codes à barres"},
    {"cmdBCAFont", "Choose &Font", "Choisir la &police"},
    {"cmdBCAClear", "C&lear", "E&ffacer"},
    {"fraBCodeOpts", "Optional Codes", "Codes facultatifs"},
    {"lblBCADesc", "Description", "Description"},
    {"lblBCACode", "Code", "Code"},
    {"lblBCAResult", "Printed as", "Imprimé"},
    {"lblBCAField", "Field", "Champ"},
    {"lblBCAOpt",
     "Up to three characters can be printed as bar codes beside the student numbers, each with a description of what "
     "it "
     "stands for. They are saved only when a bar code font is chosen.",
     "Jusqu'à trois caractères peuvent être imprimés en codes à barres à côté des numéros d'élèves, chacun avec une "
     "description de sa signification. Ils ne sont enregistrés que si une police de codes à barres est choisie."},

    // Printer options
    {"fraPrinter", "Printer Dialog Box", "Dialogue d'imprimante"},
    {"chkHCDialog", "Show Printer Dialog Box", "Afficher la boîte de dialogue d'imprimante"},
    {"lblHCDialog",
     "Check this box if your system requires a printer dialog box to be displayed each time you print. This will allow "
     "the teacher to select a printer everytime a print routine is used.",
     "Cocher cette boîte si votre système demande l'affichage d'une boîte de dialogue d'imprimante chaque fois que "
     "vous "
     "imprimez."},
    {"fraThickLines", SAME_IN_BOTH("Thick Lines")},
    {"lblThick", SAME_IN_BOTH("Adjust the width of thick lines on printed forms.")},

    // HTML student report
    {"lblHTML1", SAME_IN_BOTH("Gradewell can write one HTML report for each student and course.")},
    {"lblHTML2",
     SAME_IN_BOTH("The file name of a report is made of the student number and the course code. You can add "
                  "a school ID and separators, and choose the order of the parts.")},
    {"lblHTML3", SAME_IN_BOTH("When the school ID is blank, the separator beside it is left out.")},
    {"lblHTML4",
     SAME_IN_BOTH(
         "Characters, allowed in course codes and School IDs but not permitted in file names will be changed to "
         "a tilde (~) by Gradewell. These characters are: /\\:*?<>|")},
    {"fraHTML_FileCode", SAME_IN_BOTH("File Names")},
    {"lblSchoolID", SAME_IN_BOTH("School ID:")},
    {"lblSep1", SAME_IN_BOTH("Separator 1 (Sep1):")},
    {"lblSep2", SAME_IN_BOTH("Separator 2 (Sep2):")},
    {"lblSep3", SAME_IN_BOTH("Order of the parts:")},
    {"lblSep4", SAME_IN_BOTH("Example:")},
    {"lblSep5", SAME_IN_BOTH("May be blank.")},
    {"lblSep6", SAME_IN_BOTH("May be blank.")},
    {"lblSep7", SAME_IN_BOTH("May be blank.")},
    {"lblSep8", SAME_IN_BOTH("\".htm\" is added to every name.")},
    {"lblSep9", SAME_IN_BOTH("StudentID and CourseCode stand for the student number and the course code.")},
    {"lblSep10", SAME_IN_BOTH("Not allowed in separators: /\\:*?<>|")},
    {"fraHTML_Path", SAME_IN_BOTH("Report Folder")},
    {"lblSR1", SAME_IN_BOTH("HTML reports are saved in this folder.")},
    {"lblSR2", SAME_IN_BOTH("Current:")},
    {"cmdHTML_Clear", SAME_IN_BOTH("Clear")},
    {"cmdHTML_Browse", SAME_IN_BOTH("Browse")},

    // Grade / level schemes
    {"lblScheme1", SAME_IN_BOTH("A scheme is the list of symbols that teachers use for mark entry and analysis. Each "
                                "symbol applies from its value up to the value of the next one.")},
    {"lblScheme2", SAME_IN_BOTH("For General Analysis, save a scheme as 'General.scm' in the Gradewell program folder; "
                                "for Modal Analysis, save it there as 'Modal.scm'.")},
    {"lblScheme3", SAME_IN_BOTH("The column heading is printed above General Analysis columns.")},
    {"lblScheme4", "Active Levels", "Niveaux actifs"},
    {"lblABCHeading", "Column Heading", "En-tête de colonnes"},
    {"lblABCSymbol(0)", "Symbol", "Symbole"},
    {"lblABCSymbol(1)", "Symbol", "Symbole"},
    {"lblABCValue(0)", "From %", "Dès %"},
    {"lblABCValue(1)", "From %", "Dès %"},
    {"cmdLoadScheme", "&Load Scheme", "&Charger le schéma"},
    {"cmdClearScheme", "&Clear Scheme", "E&ffacer le schéma"},
    {"cmdSaveScheme", "&Save Scheme", "&Enregistrer le schéma"},
    {"cmdABCCheck", "Chec&k for Problems", "&Vérifier pour des problèmes"},
});

#undef SAME_IN_BOTH

} // namespace

std::span<const Caption> SetupCaptions() {
    return Texts;
}
