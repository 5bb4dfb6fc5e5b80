#include "admin/CourseCodeRules.h"

#include "platform/CodePage.h"

namespace {

bool AnyRuleIsOff(const CourseCodeRules& rules) {
    return rules.CourseStart < 1 || rules.CourseLength < 1 || rules.SectionStart < 1 || rules.SectionLength < 1 ||
           rules.GradeStart < 1 || rules.GradeLength < 1;
}

// `start` counts from 1; a start beyond the end gives an empty part.
QString PartAt(const QString& code, int start, int length) {
    return code.mid(start - 1, length);
}

bool IsOffered(std::int16_t value) {
    return value >= 0 && value <= HighestRuleValue;
}

} // namespace

CourseCodeParts SplitCourseCode(const QString& code, const CourseCodeRules& rules,
                                std::span<const GradeConversion> table) {
    CourseCodeParts parts;
    if (code.isEmpty() || AnyRuleIsOff(rules)) {
        return parts;
    }
    if (rules.UseSplitText) {
        const qsizetype before = code.indexOf(rules.SplitText, 0, Qt::CaseSensitive);
        if (before >= 0) {
            parts.Course = code.left(before);
            parts.Section = code.mid(before + 1);
        }
    } else {
        parts.Course = PartAt(code, rules.CourseStart, rules.CourseLength);
        parts.Section = PartAt(code, rules.SectionStart, rules.SectionLength);
    }
    parts.Grade = PartAt(code, rules.GradeStart, rules.GradeLength);
    if (rules.ConvertGrade && !parts.Grade.isEmpty()) {
        parts.Grade = ConvertedGrade(parts.Grade, table);
    }
    return parts;
}

QString ConvertedGrade(const QString& found, std::span<const GradeConversion> table) {
    for (const GradeConversion& row : table) {
        if (!row.Symbol.isEmpty() && !row.Actual.isEmpty() && UpperCase(row.Symbol) == UpperCase(found)) {
            return row.Actual;
        }
    }
    return found;
}

int ShownRuleValue(std::int16_t stored) {
    return IsOffered(stored) ? stored : 0;
}

std::int16_t RuleValueToStore(std::int16_t stored, int shown, bool chosen) {
    return IsOffered(stored) || chosen ? static_cast<std::int16_t>(shown) : stored;
}
