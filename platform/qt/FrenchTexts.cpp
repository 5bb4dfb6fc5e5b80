#include "platform/qt/FrenchTexts.h"

#include <QByteArrayView>

namespace {

struct Text {
    const char* English;
    const char* French;
};

constexpr Text Table[] = {
    // Buttons
    {"OK", "OK"},
    {"&OK", "&OK"},
    {"Cancel", "Annuler"},
    {"&Cancel", "&Annuler"},
    {"&Yes", "&Oui"},
    {"&No", "&Non"},
    {"Retry", "Réessayer"},
    {"Open", "Ouvrir"},
    {"&Open", "&Ouvrir"},
    {"Save", "Enregistrer"},
    {"&Save", "&Enregistrer"},
    {"Close", "Fermer"},
    {"&Close", "&Fermer"},
    {"Help", "Aide"},
    {"Apply", "Appliquer"},
    // File dialogs
    {"&Choose", "&Choisir"},
    {"Look in:", "Regarder dans :"},
    {"File &name:", "&Nom du fichier :"},
    {"Files of type:", "Type de fichiers :"},
    {"Directory:", "Dossier :"},
    {"Save As", "Enregistrer sous"},
    {"Name", "Nom"},
    {"Size", "Taille"},
    {"Type", "Type"},
    {"Kind", "Type"},
    {"Date Modified", "Modifié le"},
    {"Computer", "Ordinateur"},
    {"Back", "Précédent"},
    {"Forward", "Suivant"},
    {"Parent Directory", "Dossier parent"},
    {"Create New Folder", "Créer un dossier"},
    {"New Folder", "Nouveau dossier"},
    {"&New Folder", "&Nouveau dossier"},
    {"List View", "Liste"},
    {"Detail View", "Détails"},
    {"&Rename", "&Renommer"},
    {"&Delete", "&Supprimer"},
    {"Show &hidden files", "Afficher les fichiers &cachés"},
    {"Recent Places", "Emplacements récents"},
    {"%1 already exists.\nDo you want to replace it?", "%1 existe déjà.\nVoulez-vous le remplacer ?"},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nFichier introuvable.\nVérifiez le nom du fichier."},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nDossier introuvable.\nVérifiez le nom du dossier."},
    // The font dialog
    {"Select Font", "Choisir une police"},
    {"&Font", "&Police"},
    {"Font st&yle", "St&yle"},
    {"&Size", "&Taille"},
    {"Effects", "Effets"},
    {"Stri&keout", "&Barré"},
    {"&Underline", "&Souligné"},
    {"Sample", "Exemple"},
    {"Wr&iting System", "Système d'&écriture"},
    // The menu of a text box
    {"&Undo", "&Annuler"},
    {"&Redo", "&Rétablir"},
    {"Cu&t", "Co&uper"},
    {"&Copy", "&Copier"},
    {"&Paste", "C&oller"},
    {"Delete", "Supprimer"},
    {"Select All", "Tout sélectionner"},
};

} // namespace

// Qt's own texts have the names of its classes as context; all others are worded by the windows.
QString FrenchTexts::translate(const char* context, const char* sourceText, const char*, int) const {
    if (context == nullptr || context[0] != 'Q' || sourceText == nullptr) {
        return {};
    }
    for (const Text& text : Table) {
        if (QByteArrayView(text.English) == QByteArrayView(sourceText)) {
            return QString::fromUtf8(text.French);
        }
    }
    return {};
}
