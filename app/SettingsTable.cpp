#include "app/SettingsTable.h"

#include <limits>
#include <type_traits>

namespace {

using Record = ProgramConfigRecord;

// The element of the member: the member itself, or one of its array.
template <auto Member, typename Value>
Value& ElementOf(Record& record, std::size_t index) {
    if constexpr (std::is_same_v<Value, std::remove_reference_t<decltype(record.*Member)>>) {
        return record.*Member;
    } else {
        return (record.*Member)[index];
    }
}

template <auto Member>
SettingsField Text(const char* name, const char* defaultText, const char* meaning) {
    return {name, TextField{&ElementOf<Member, QString>, defaultText}, meaning};
}

template <auto Member>
SettingsField Number(const char* name, std::int16_t defaultNumber, const char* meaning,
                     std::int16_t highest = std::numeric_limits<std::int16_t>::max()) {
    return {name, NumberField{&ElementOf<Member, std::int16_t>, defaultNumber, highest}, meaning};
}

SettingsLine Plain(std::vector<SettingsField> fields) {
    return {LineForm::Plain, LineRepeat::Once, std::move(fields)};
}

SettingsLine Quoted(std::vector<SettingsField> fields, LineRepeat repeat = LineRepeat::Once) {
    return {LineForm::Quoted, repeat, std::move(fields)};
}

SettingsSection BarCodeSection() {
    return {
        "[Bar Code Attendance]",
        nullptr,
        LineForm::Plain,
        {Plain({Number<&Record::BarCodeDefaultForm>("BarCodeDefaultForm", 0,
                                                    "1: the bar-coded form is the default attendance form")}),
         Plain(
             {Number<&Record::BarCodeDefaultFormCopy>("BarCodeDefaultFormCopy", 0, "second copy of the same choice")}),
         Quoted({Text<&Record::BarCodeFontName>("BarCodeFontName", "", "font of the bar-coded forms; may be empty")}),
         Plain({{"BarCodeLast", PairCountField{}, "highest index of the pairs that follow"}}),
         Quoted({Text<&Record::BarCodeDesc>("BarCodeDesc", "", "description of an attendance code"),
                 Number<&Record::BarCodeCode>("BarCodeCode", 0, "character code printed for it")},
                LineRepeat::BarCodePairs)}};
}

SettingsSection ImportSection() {
    return {
        "[Import Students]",
        nullptr,
        LineForm::Quoted,
        {Quoted({Text<&Record::ImportStudentsFile>("ImportStudentsFile", "", "path of the student data file")}),
         Quoted({Number<&Record::ImportFieldLast>("ImportFieldLast", 0, "highest index in use of the field names",
                                                  LastImportField)}),
         Quoted({Text<&Record::ImportFields>("ImportFields", "", "field names in column order; 0 is the date code")},
                LineRepeat::ImportFields)}};
}

SettingsSection RuleSection() {
    return {"[Course Code Rules]",
            nullptr,
            LineForm::Quoted,
            {Quoted({Number<&Record::RuleCourseStart>("RuleCourseStart", 1, "start of the course part, from 1"),
                     Number<&Record::RuleCourseLength>("RuleCourseLength", 6, "length of the course part"),
                     Number<&Record::RuleSectionStart>("RuleSectionStart", 7, "start of the section part"),
                     Number<&Record::RuleSectionLength>("RuleSectionLength", 1, "length of the section part"),
                     Number<&Record::RuleGradeStart>("RuleGradeStart", 4, "start of the grade part"),
                     Number<&Record::RuleGradeLength>("RuleGradeLength", 1, "length of the grade part"),
                     Number<&Record::RuleGradeConv>("RuleGradeConv", 0, "1: grades are converted through the table"),
                     Number<&Record::RuleUseSplitChar>("RuleUseSplitChar", 1,
                                                       "2: codes are split at a character; 1: at fixed positions")}),
             Quoted({Text<&Record::RuleGSymbol>("RuleGSymbol", "", "symbol found in the course code"),
                     Text<&Record::RuleGActual>("RuleGActual", "", "the grade that it stands for")},
                    LineRepeat::RulePairs)}};
}

SettingsSection HtmlSection() {
    return {"[HTML Student/Combined Reports]",
            nullptr,
            LineForm::Quoted,
            {Quoted({Text<&Record::HTMLSchool>("HTMLSchool", "", "school part of report file names"),
                     Text<&Record::HTMLFileSep1>("HTMLFileSep1", "_", "first separator in report file names"),
                     Text<&Record::HTMLFileSep2>("HTMLFileSep2", "_", "second separator"),
                     Number<&Record::HTMLFileNameOrder>("HTMLFileNameOrder", 0, "order of the file-name parts, 0 to 7"),
                     Number<&Record::HTMLReserved>("HTMLReserved", 0, "carried through unchanged")}),
             Quoted({Text<&Record::HTMLPath>("HTMLPath", "", "folder of HTML reports")})}};
}

SettingsSection OneValue(const char* title, LineForm titleForm, SettingsLine line, const char* frenchTitle = nullptr) {
    return {title, frenchTitle, titleForm, {std::move(line)}};
}

} // namespace

const std::vector<SettingsSection>& FixedSections() {
    static const std::vector<SettingsSection> sections = {
        OneValue("[Default Path (may be blank)]", LineForm::Plain,
                 Quoted({Text<&Record::DefaultPath>("DefaultPath", "", "folder where teachers save class data")})),
        OneValue("[School Year Start Month]", LineForm::Plain,
                 Plain({Number<&Record::SchoolYearStartMonth>("SchoolYearStartMonth", 1,
                                                              "month in which the school year starts; read as 1")})),
    };
    return sections;
}

const std::vector<SettingsSection>& CountedSections() {
    static const std::vector<SettingsSection> sections = {
        BarCodeSection(),
        OneValue(
            "[Path to Word Processor]", LineForm::Plain,
            Quoted({Text<&Record::PathToWordProcessor>("PathToWordProcessor", "", "program that edits documents")})),
        OneValue("[Path to Admin]", LineForm::Plain,
                 Quoted({Text<&Record::PathToAdmin>("PathToAdmin", "", "folder of Admin Edition files")}),
                 "[Path to Carnelle Admin]"),
        ImportSection(),
        OneValue("[Date Format]", LineForm::Plain,
                 Plain({Number<&Record::DateFormat>("DateFormat", 5, "code of the date format, 1 to 6")})),
        OneValue("[Printer Dialog Box]", LineForm::Plain,
                 Plain({Number<&Record::PrinterDialogBox>("PrinterDialogBox", 0, "1: shown before printing")})),
        OneValue("[Path to Net - NA - 2002 10 05]", LineForm::Quoted,
                 Quoted({{"PathToNet", ObsoleteField{}, "no version reads it any more"}})),
        OneValue("[Width of Thick Lines]", LineForm::Quoted,
                 Quoted({Number<&Record::WidthOfThickLines>("WidthOfThickLines", 5, "on printouts, 2 to 11")})),
        RuleSection(),
        OneValue("[Path to Student Photos]", LineForm::Quoted,
                 Quoted({Text<&Record::PathToStudentPhotos>("PathToStudentPhotos", "", "folder of the photo files"),
                         Text<&Record::StudentPhotoExtension>("StudentPhotoExtension", "", "with its dot")})),
        OneValue("[SMTP Host Name]", LineForm::Quoted,
                 Quoted({Text<&Record::SMTPHostName>("SMTPHostName", "", "mail server of the gradebook")})),
        HtmlSection(),
        OneValue("[Backup Destination Path]", LineForm::Quoted,
                 Quoted({Text<&Record::BackupDestinationPath>("BackupDestinationPath", "", "default backup folder")})),
        OneValue("[AE Course Code Split Character]", LineForm::Quoted,
                 Quoted({Text<&Record::AECourseCodeSplitCharacter>("AECourseCodeSplitCharacter", "-",
                                                                   "where course codes are split")})),
    };
    return sections;
}

std::int16_t HighestIndex(LineRepeat repeat) {
    switch (repeat) {
    case LineRepeat::BarCodePairs:
        return LastBarCodePair;
    case LineRepeat::ImportFields:
        return LastImportField;
    case LineRepeat::RulePairs:
        return LastRulePair;
    case LineRepeat::Once:
        break;
    }
    return 0;
}
