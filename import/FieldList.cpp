#include "import/FieldList.h"

#include "platform/CodePage.h"

QString FieldList::Caption(int field, int dobFormat) const {
    return field == DobField ? DobCaption(dobFormat) : Captions[static_cast<std::size_t>(field)];
}

QString FieldList::DobCaption(int dobFormat) const {
    return DobPrefix + QStringLiteral(" (") + DobFormats.at(dobFormat) + QChar(u')');
}

FieldList EnglishFieldList() {
    return {{QString(), QStringLiteral("Last Name"), QStringLiteral("First Name"), QStringLiteral("Program"),
             QStringLiteral("Gender"), QStringLiteral("Home Form"), QStringLiteral("Student Number"), QString(),
             QStringLiteral("Phone #1"), QStringLiteral("Phone #2"), QStringLiteral("Student e-mail"),
             QStringLiteral("Parent e-mail"), QStringLiteral("Miscellaneous"), QStringLiteral("Import If #1"),
             QStringLiteral("Import If #2"), QStringLiteral("Special Use"), QStringLiteral("Ignore this field")},
            QStringLiteral("DOB"),
            {QStringLiteral("Year/Mth/Day"), QStringLiteral("Mth/Day/Year"), QStringLiteral("Day/Mth/Year"),
             QStringLiteral("YearMMDD"), QStringLiteral("MMDDYear"), QStringLiteral("DDMMYear")}};
}

FieldList FrenchFieldList() {
    return {{QString(), QStringLiteral("Surnom"), QStringLiteral("Prénom"), QStringLiteral("Programme"),
             QStringLiteral("Sexe"), QStringLiteral("Classe titulaire"), QStringLiteral("Numéro d'étudiant"), QString(),
             QStringLiteral("Téléphone N°1"), QStringLiteral("Téléphone N°2"), QStringLiteral("Courriel d'étudiant"),
             QStringLiteral("Courriel de parent"), QStringLiteral("Divers"), QStringLiteral("Import Si N°1"),
             QStringLiteral("Import Si N°2"), QStringLiteral("Utilisation spéciale"),
             QStringLiteral("Ignorer cette zone")},
            QStringLiteral("DDN"),
            {QStringLiteral("An/Mois/Jour"), QStringLiteral("Mois/Jour/An"), QStringLiteral("Jour/Mois/An"),
             QStringLiteral("AnnéMMJJ"), // without its last "e", as the gradebook has it
             QStringLiteral("MMJJAnnée"), QStringLiteral("JJMMAnnée")}};
}

int DobFormatOf(const QString& code) {
    if (code.size() != 1 || code[0] < QChar(u'0') || code[0] >= QChar(u'0' + DobFormatCount)) {
        return 0;
    }
    return code[0].unicode() - u'0';
}

bool IsDobEntry(const QString& name, const QString& prefix) {
    return UpperCase(name).startsWith(prefix + QStringLiteral(" ("));
}
