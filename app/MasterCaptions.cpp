#include "app/MasterCaptions.h"

#include "platform/widgets/Captions.h"

namespace {

// {files}: ConfigFilesText, {file}: ConfigFileName, {product}: ProductName.
constexpr Caption Table[] = {
    {"fraGeneral", "General Options", "General Options"},
    {"lblGenOpt1",
     "Use this to set the default location for teachers to save their data, paths to an external word processor and "
     "student photographs. Setup email, bar coded attendance, grading schemes and more.",
     "Use this to set the default location for teachers to save their data, paths to an external word processor and "
     "student photographs. Setup email, bar coded attendance, grading schemes and more."},
    {"lblGenOpt2",
     "Settings are saved in the files '{files}'. 'Lock' disables the ability of teachers to alter default settings. ",
     "Settings are saved in the file '{file}'. If you choose to 'lock' it, teachers will not be able to alter default "
     "settings and they will not need permission to write (save) to the {product} program folder on a network. "},
    {"lblGenOpt3", "Click the lock to change", "Click the lock to change"},
    {"cmdGeneral", "&General Options", "&General Options"},
    {"fraImport", "Import Student Data", "Import Student Data"},
    {"lblImport",
     "Use this to set the path, field matches and update options for the file teachers use to setup their classes. "
     "This "
     "data file must already exist. Settings are saved in UPDFIELD.CFG in the same folder as the data file.",
     "Utilisez cette option pour indiquer le chemin, les correspondances de champs et les options de mise à jour du "
     "fichier avec lequel les enseignants créent leurs classes. Ce fichier de données doit déjà exister. Les réglages "
     "sont enregistrés dans UPDFIELD.CFG, dans le même dossier que le fichier de données."},
    {"cmdImport", "Setup &Import File", "Setup &Import File"},
    {"fraAdmin", "Admin Edition", "Admin Edition"},
    {"lblAdmin",
     "Use this to set the 'rules' for interpreting course codes and the path to the folder teachers should use to save "
     "their Admin Edition files. These settings are saved in {files}and will be 'locked' if that option is set in the "
     "General Options frame.",
     "Use this to set the 'rules' for interpreting course codes and the path to the folder teachers should use to save "
     "their Admin Edition files. These settings are saved in {file} and will be 'locked' if that option is set in the "
     "General Options frame."},
    {"cmdAdmin", "&Admin Edition", "&Admin Edition"},
    {"fraTransfer", "Transfer Program", "Transfer Program"},
    {"lblTransfer",
     "Use this to set options in the Gradewell Transfer Program and the path to the folder teachers should use to save "
     "their Report Card files. ",
     "Use this to set the options in the Gradewell Transfer Program and the path to the folder teachers should use to "
     "save their Report Card files. These settings are saved in {file}."},
    {"cmdTransfer", "&Transfer Program", "&Transfer Program"},
    {"cmdManual", "&Help", "&Help"},
    {"cmdExit", "E&xit", "&Quitter"},
};

QString Filled(const char* text) {
    QString filled = QString::fromUtf8(text);
    filled.replace(QStringLiteral("{files}"), ConfigFilesText);
    filled.replace(QStringLiteral("{file}"), ConfigFileName);
    filled.replace(QStringLiteral("{product}"), ProductName);
    return filled;
}

} // namespace

QHash<QString, QString> MasterCaptions(Edition edition) {
    QHash<QString, QString> captions;
    for (const Caption& row : Table) {
        captions.insert(QString::fromUtf8(row.Control), Filled(edition == Edition::French ? row.French : row.English));
    }
    return captions;
}
