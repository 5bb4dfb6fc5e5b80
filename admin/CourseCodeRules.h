#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <span>

/// How a full course code, one text that packs subject, grade and section together, is split into its parts.

/// Every start and every length is a number from 0 to this one; 0 in any of them switches the splitting off.
inline constexpr std::int16_t HighestRuleValue = 20;

/// The rows of the conversion table that administrators edit; the file stores more, which are carried along.
inline constexpr int EditedConversionRows = 6;

/// One row of the conversion table: the character(s) found in the code and the grade that they mean.
struct GradeConversion {
    QString Symbol;
    QString Actual;
};

/// Starts count characters from 1; lengths count characters.
struct CourseCodeRules {
    int CourseStart = 0;
    int CourseLength = 0;
    int SectionStart = 0;
    int SectionLength = 0;
    int GradeStart = 0;
    int GradeLength = 0;
    bool UseSplitText = false; ///< course and section are what stands before and after SplitText
    QString SplitText;
    bool ConvertGrade = false; ///< the grade's characters are looked up in the conversion table
};

struct CourseCodeParts {
    QString Course;
    QString Section;
    QString Grade;

    friend bool operator==(const CourseCodeParts&, const CourseCodeParts&) = default;
};

/// Splits a code. All three parts are empty when any start or length is below 1, in both modes. A start beyond the end
/// leaves its part empty, a length beyond the end is cut short. The split text is searched for exactly (an empty one is
/// found at position 1) and counts as one character however long it is.
CourseCodeParts SplitCourseCode(const QString& code, const CourseCodeRules& rules,
                                std::span<const GradeConversion> table);

/// The grade that the table gives for the characters found in a code: the first row whose two sides are not empty and
/// whose symbol equals them without regard to case; the characters themselves when no row does.
QString ConvertedGrade(const QString& found, std::span<const GradeConversion> table);

/// The list entry that shows a stored start or length: itself, or 0 for a value that no list offers.
int ShownRuleValue(std::int16_t stored);

/// What a list's entry is stored as: itself, but a stored value that no list offers stays until the user has chosen.
std::int16_t RuleValueToStore(std::int16_t stored, int shown, bool chosen);
