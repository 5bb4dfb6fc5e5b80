#include "tests/reference/ReferenceImport.h"

#include "tests/reference/ReferenceItems.h"

#include <algorithm>

ReferenceRecord ReferenceSplit(std::string line) {
    ReferenceRecord record;
    line = ReferenceTrimmed(line);
    if (line.find('\t') != std::string::npos) {
        record.Separator = '\t';
    } else if (line.find(',') != std::string::npos) {
        record.Separator = ',';
    } else {
        record.Fields.push_back(line);
        return record;
    }
    while (true) {
        if (!line.empty() && line[0] == '"') {
            const std::size_t next = line.find('"', 1);
            for (std::size_t i = 0; next != std::string::npos && i <= next; ++i) {
                if (line[i] == '\t' || line[i] == '"' || line[i] == ',') {
                    line[i] = ' ';
                }
            }
        }
        const std::size_t place = line.find(record.Separator);
        if (place == std::string::npos) {
            if (!line.empty()) {
                record.Fields.push_back(ReferenceTrimmed(line));
            }
            return record;
        }
        record.Fields.push_back(ReferenceTrimmed(line.substr(0, place)));
        line = line.substr(place + 1);
        if (record.Fields.size() == 24) {
            return record;
        }
    }
}

namespace {

std::string Part(const std::string& code, int start, int length) {
    const auto first = static_cast<std::size_t>(start - 1);
    return first < code.size() ? code.substr(first, static_cast<std::size_t>(length)) : std::string();
}

} // namespace

std::array<std::string, 3> ReferenceSplitCode(const std::string& code, const ReferenceRules& rules) {
    if (std::any_of(rules.Numbers.begin(), rules.Numbers.end(), [](int number) { return number < 1; })) {
        return {};
    }
    std::string course;
    std::string section;
    if (!rules.BySplitText) {
        course = Part(code, rules.Numbers[0], rules.Numbers[1]);
        section = Part(code, rules.Numbers[2], rules.Numbers[3]);
    } else if (const std::size_t place = code.find(rules.SplitText); !code.empty() && place != std::string::npos) {
        course = code.substr(0, place);
        section = code.substr(place + 1);
    }
    std::string grade = Part(code, rules.Numbers[4], rules.Numbers[5]);
    if (!grade.empty() && rules.Convert) {
        for (const auto& [symbol, actual] : rules.Rows) {
            if (!symbol.empty() && !actual.empty() && ReferenceUpper(symbol) == ReferenceUpper(grade)) {
                grade = actual;
                break;
            }
        }
    }
    return {course, section, grade};
}
