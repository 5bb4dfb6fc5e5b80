#include "admin/CourseCodeRules.h"
#include "app/InputChecks.h"
#include "tests/fuzz/AllocationMeter.h"
#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/QuietDesktop.h"
#include "tests/fuzz/Targets.h"
#include "tests/reference/ReferenceImport.h"
#include "tests/reference/ReferenceItems.h"

#include <algorithm>
#include <vector>

namespace {

// The input cut at each NUL into `count` texts.
std::vector<std::string> Cut(const std::string& bytes, std::size_t count) {
    std::vector<std::string> texts(1);
    for (const char byte : bytes) {
        if (byte == '\0' && texts.size() < count) {
            texts.emplace_back();
        } else {
            texts.back() += byte;
        }
    }
    texts.resize(count);
    return texts;
}

int NumberAt(const std::string& text, std::size_t place) {
    return place < text.size() ? static_cast<unsigned char>(text[place]) % 23 - 1 : 1;
}

// Where the character check stops, by the rule itself.
int FirstRefused(const std::string& text, bool commas, bool lineBreaks, const std::string& refused) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int code = static_cast<unsigned char>(text[i]);
        const bool lineBreak = code == 10 || code == 13;
        if ((code < 32 && !lineBreak) || (lineBreak && !lineBreaks) || code == 34 || (code == ',' && !commas) ||
            refused.find(text[i]) != std::string::npos) {
            return static_cast<int>(i) + 1;
        }
    }
    return 0;
}

} // namespace

std::string FuzzCourseCodeRule(const std::string& bytes) {
    const std::vector<std::string> texts = Cut(bytes, 16);
    ReferenceRules expected;
    for (std::size_t i = 0; i < 6; ++i) {
        expected.Numbers[i] = NumberAt(texts[0], i);
    }
    expected.BySplitText = NumberAt(texts[0], 6) % 2 != 0;
    expected.Convert = NumberAt(texts[0], 7) % 2 != 0;
    expected.SplitText = texts[1];
    CourseCodeRules rules;
    rules.CourseStart = expected.Numbers[0];
    rules.CourseLength = expected.Numbers[1];
    rules.SectionStart = expected.Numbers[2];
    rules.SectionLength = expected.Numbers[3];
    rules.GradeStart = expected.Numbers[4];
    rules.GradeLength = expected.Numbers[5];
    rules.UseSplitText = expected.BySplitText;
    rules.SplitText = Text(texts[1]);
    rules.ConvertGrade = expected.Convert;
    std::vector<GradeConversion> table;
    for (std::size_t i = 3; i + 1 < texts.size(); i += 2) {
        expected.Rows.emplace_back(texts[i], texts[i + 1]);
        table.push_back({Text(texts[i]), Text(texts[i + 1])});
    }
    const QString code = Text(texts[2]);
    const AllocationMeter meter;
    const CourseCodeParts parts = SplitCourseCode(code, rules, table);
    if (std::string complaint = meter.Judge(bytes.size(), 16); !complaint.empty()) {
        return complaint;
    }
    const std::array<std::string, 3> wanted = ReferenceSplitCode(texts[2], expected);
    if (Bytes(parts.Course) != wanted[0] || Bytes(parts.Section) != wanted[1] || Bytes(parts.Grade) != wanted[2]) {
        return "[" + Bytes(parts.Course) + "|" + Bytes(parts.Section) + "|" + Bytes(parts.Grade) + "] for [" +
               wanted[0] + "|" + wanted[1] + "|" + wanted[2] + "]";
    }
    return {};
}

std::string FuzzInputChecks(const std::string& bytes) {
    const std::vector<std::string> texts = Cut(bytes, 3);
    const int flags = texts[0].empty() ? 0 : static_cast<unsigned char>(texts[0][0]);
    const bool commas = (flags & 1) != 0;
    const bool lineBreaks = (flags & 2) != 0;
    const std::string& refused = texts[1];
    const std::string& typed = texts[2];
    const int expected = FirstRefused(typed, commas, lineBreaks, refused);
    QString cleaned = Text(typed);
    CleanedText.clear();
    CheckInputText(cleaned, commas ? 1 : 0, lineBreaks ? 1 : 0, Text(refused), 1);
    std::string wanted = typed;
    for (char& byte : wanted) {
        if (FirstRefused(std::string(1, byte), commas, lineBreaks, refused) != 0) {
            byte = refused.empty() ? ' ' : '~';
        }
    }
    if (Bytes(cleaned) != wanted || (!typed.empty() && Bytes(CleanedText) != ReferenceTrimmed(wanted)) ||
        ErrorPosition != 0) {
        return "cleaned to [" + Bytes(CleanedText) + "] for [" + wanted + "]";
    }
    QuietDesktop desktop;
    QString checked = Text(typed);
    CheckInputText(checked, commas ? 1 : 0, lineBreaks ? 1 : 0, Text(refused), 0);
    if (ErrorPosition != expected || desktop.Shown != (expected == 0 ? 0 : 1) || checked != Text(typed)) {
        return "input check: position " + std::to_string(ErrorPosition) + " for " + std::to_string(expected);
    }
    CheckAllowedCharacters(Text(typed), Text(refused), static_cast<std::int16_t>(flags % 4));
    const std::size_t stranger = typed.find_first_not_of(refused);
    if (ErrorPosition != (stranger == std::string::npos ? 0 : static_cast<int>(stranger) + 1)) {
        return "allowed characters: position " + std::to_string(ErrorPosition);
    }
    return {};
}
