#include "import/FieldList.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

namespace {

const char* const English[] = {
    "Last Name",          "First Name",   "Program",     "Gender",           "Home Form",     "Student Number",
    "DOB (Mth/Day/Year)", "Phone #1",     "Phone #2",    "Student e-mail",   "Parent e-mail", "Miscellaneous",
    "Import If #1",       "Import If #2", "Special Use", "Ignore this field"};

const char* const French[] = {"Surnom",
                              "Prénom",
                              "Programme",
                              "Sexe",
                              "Classe titulaire",
                              "Numéro d'étudiant",
                              "DDN (Mois/Jour/An)",
                              "Téléphone N°1",
                              "Téléphone N°2",
                              "Courriel d'étudiant",
                              "Courriel de parent",
                              "Divers",
                              "Import Si N°1",
                              "Import Si N°2",
                              "Utilisation spéciale",
                              "Ignorer cette zone"};

TEST(FieldListTest, NamesTheFieldsInBothLanguages) {
    for (int field = 1; field <= FieldCount; ++field) {
        EXPECT_EQ(Text(English[field - 1]), EnglishFieldList().Caption(field, 1));
        EXPECT_EQ(Text(French[field - 1]), FrenchFieldList().Caption(field, 1));
    }
}

TEST(FieldListTest, NamesTheBirthDateFormats) {
    const char* const english[] = {"Year/Mth/Day", "Mth/Day/Year", "Day/Mth/Year", "YearMMDD", "MMDDYear", "DDMMYear"};
    const char* const french[] = {"An/Mois/Jour", "Mois/Jour/An", "Jour/Mois/An", "AnnéMMJJ", "MMJJAnnée", "JJMMAnnée"};
    ASSERT_EQ(6, EnglishFieldList().DobFormats.size());
    ASSERT_EQ(6, FrenchFieldList().DobFormats.size());
    for (int code = 0; code < 6; ++code) {
        EXPECT_EQ(Text("DOB (") + Text(english[code]) + Text(")"), EnglishFieldList().DobCaption(code));
        EXPECT_EQ(Text("DDN (") + Text(french[code]) + Text(")"), FrenchFieldList().DobCaption(code));
    }
}

TEST(FieldListTest, KnowsBirthDateEntries) {
    for (const char* name : {"DOB (", "DOB (x)", "dob (x", "Dob (YearMMDD)"}) {
        EXPECT_TRUE(IsDobEntry(Text(name), Text("DOB"))) << name;
    }
    for (const char* name : {"", "DOB", "DOB(", "DOB  (x)", " DOB (x)", "DDN (x)"}) {
        EXPECT_FALSE(IsDobEntry(Text(name), Text("DOB"))) << name;
    }
}

} // namespace
