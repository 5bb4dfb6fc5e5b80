#include "tests/reference/ReferenceImport.h"
#include "tests/reference/ReferenceItems.h"

#include <cmath>

namespace {

const char* const ActionKeys[] = {"AddNames", "ReActivate", "DeleteNames", "ConfirmDelete"};
const char* const FieldKeys[] = {"LastName", "FirstName", "Gender",       "Program",     "HomeForm",      "DateOfBirth",
                                 "Phone1",   "Phone2",    "StudentEMail", "ParentEMail", "Miscellaneous", "SpecialUse"};
const char* const Captions[] = {"Last Name",
                                "First Name",
                                "Program",
                                "Gender",
                                "Home Form",
                                "Student Number",
                                "",
                                "Phone #1",
                                "Phone #2",
                                "Student e-mail",
                                "Parent e-mail",
                                "Miscellaneous",
                                "Import If #1",
                                "Import If #2",
                                "Special Use",
                                "Ignore this field"};
const char* const BirthDates[] = {"Year/Mth/Day)", "Mth/Day/Year)", "Day/Mth/Year)",
                                  "YearMMDD)",     "MMDDYear)",     "DDMMYear)"};

bool TakeNumber(const std::string& text, std::int16_t& value) {
    const double number = ReferenceLeadingNumber(text);
    const double below = std::floor(number);
    double nearest = number - below > 0.5 ? below + 1 : below;
    if (number - below == 0.5 && std::fmod(below, 2) != 0) {
        nearest = below + 1;
    }
    if (!(nearest >= -32768 && nearest <= 32767)) {
        return false;
    }
    value = static_cast<std::int16_t>(nearest);
    return true;
}

bool SameText(const std::string& text, const std::string& other) {
    return text.size() == other.size() && ReferenceUpper(text) == ReferenceUpper(other);
}

bool TakeLine(const std::string& line, ReferenceSetup& setup) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos || equals == 0 || line[0] == '[' || line[0] == ';') {
        return true;
    }
    const std::string key = ReferenceUpper(line.substr(0, equals));
    const std::string value = line.substr(equals + 1);
    if (key == "ACTIVEFIELDS") {
        return TakeNumber(value, setup.ActiveFields);
    }
    for (std::size_t k = 1; k <= 24 && key.rfind("FIELD", 0) == 0; ++k) {
        if (key == "FIELD" + std::to_string(k)) {
            setup.Matches[k] = value;
        }
    }
    for (std::size_t i = 0; i < 4; ++i) {
        if (SameText(key, ActionKeys[i])) {
            return TakeNumber(value, setup.Actions[i]);
        }
    }
    for (std::size_t i = 0; i < 12; ++i) {
        if (SameText(key, FieldKeys[i])) {
            return TakeNumber(value, setup.Fields[i]);
        }
    }
    return true;
}

// What is wrong with an entry; nothing when it is good. A good one takes the list's spelling.
std::string JudgeEntry(std::string& entry, std::string& code, std::array<bool, 17>& used) {
    if (ReferenceUpper(entry.substr(0, 5)) == "DOB (") {
        used[7] = true;
        for (int i = 0; i < 6; ++i) {
            if (entry.substr(5) == BirthDates[i]) {
                code = std::to_string(i);
                return {};
            }
        }
        return "Invalid DOB format: " + entry;
    }
    for (std::size_t j = 1; j <= 16; ++j) {
        if (j != 7 && SameText(entry, Captions[j - 1])) {
            if (used[j]) {
                return "Duplicate Match Fields: " + entry;
            }
            entry = Captions[j - 1];
            used[j] = j != 16;
            return {};
        }
    }
    return entry + " is not a valid field name.";
}

} // namespace

bool ReferenceReadSetup(const std::string& bytes, ReferenceSetup& setup) {
    for (const std::string& line : ReferenceLines(bytes)) {
        if (!TakeLine(line, setup)) {
            return false;
        }
    }
    return true;
}

std::vector<std::pair<std::string, std::string>> ReferenceCheckMatches(ReferenceSetup& setup) {
    if (setup.ActiveFields < 0 || setup.ActiveFields > 24) {
        setup.ActiveFields = 0;
        setup.Matches = {};
        return {{"FIELD MATCH COUNT ERROR", "The number of fields to be matched must be from 0 to 24"}};
    }
    std::vector<std::pair<std::string, std::string>> messages;
    std::array<bool, 17> used{};
    for (std::size_t k = 1; static_cast<int>(k) <= setup.ActiveFields; ++k) {
        std::string& entry = setup.Matches[k];
        entry = ReferenceTrimmed(entry);
        const std::string fault = JudgeEntry(entry, setup.Matches[0], used);
        if (!fault.empty()) {
            messages.emplace_back("FIELD MATCH ERROR", fault + "\n\nMatch Field #" + std::to_string(k) +
                                                           " has been changed to 'Ignore this field'.");
            entry = "Ignore this field";
        }
    }
    return messages;
}

std::string ReferenceWriteSetup(const ReferenceSetup& setup) {
    const std::string end = "\r\n";
    std::string file = "[Gradewell Import - Setup File]\r\n;\r\n[Field Matches]\r\nActiveFields=" +
                       std::to_string(setup.ActiveFields) + end;
    for (std::size_t k = 1; static_cast<int>(k) <= setup.ActiveFields; ++k) {
        file += "Field" + std::to_string(k) + "=" + setup.Matches[k] + end;
    }
    file += ";\r\n[Update Actions: 0 = No, 1 = Yes]\r\n";
    for (std::size_t i = 0; i < 4; ++i) {
        file += ActionKeys[i] + ("=" + std::to_string(setup.Actions[i])) + end;
    }
    file += ";\r\n[Update Fields: 0 = No, 1 = Yes]\r\n";
    for (std::size_t i = 0; i < 12; ++i) {
        file += FieldKeys[i] + ("=" + std::to_string(setup.Fields[i])) + end;
    }
    return file;
}
