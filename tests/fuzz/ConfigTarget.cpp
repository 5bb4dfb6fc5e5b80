#include "app/ConfigFile.h"
#include "tests/fuzz/AllocationMeter.h"
#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/Targets.h"
#include "tests/reference/ReferenceConfig.h"

namespace {

constexpr char Title[] = "[A title]";

// The values that both records hold, given side by side to `visit`.
template <class Visit>
void VisitNumbers(ProgramConfigRecord& ours, ReferenceConfig& other, Visit visit) {
    visit(ours.ConfigLock, other.Lock);
    visit(ours.SchoolYearStartMonth, other.StartMonth);
    visit(ours.BarCodeDefaultForm, other.BarCodeForms[0]);
    visit(ours.BarCodeDefaultFormCopy, other.BarCodeForms[1]);
    for (std::size_t i = 0; i < 3; ++i) {
        visit(ours.BarCodeCode[i], other.BarCodes[i]);
    }
    visit(ours.ImportFieldLast, other.FieldLast);
    visit(ours.DateFormat, other.DateFormat);
    visit(ours.PrinterDialogBox, other.PrinterDialog);
    visit(ours.WidthOfThickLines, other.ThickLines);
    visit(ours.RuleCourseStart, other.Rules[0]);
    visit(ours.RuleCourseLength, other.Rules[1]);
    visit(ours.RuleSectionStart, other.Rules[2]);
    visit(ours.RuleSectionLength, other.Rules[3]);
    visit(ours.RuleGradeStart, other.Rules[4]);
    visit(ours.RuleGradeLength, other.Rules[5]);
    visit(ours.RuleGradeConv, other.Rules[6]);
    visit(ours.RuleUseSplitChar, other.Rules[7]);
    visit(ours.HTMLFileNameOrder, other.HtmlNumbers[0]);
    visit(ours.HTMLReserved, other.HtmlNumbers[1]);
}

template <class Visit>
void VisitTexts(ProgramConfigRecord& ours, ReferenceConfig& other, Visit visit) {
    visit(ours.DefaultPath, other.DefaultPath);
    visit(ours.BarCodeFontName, other.BarCodeFont);
    for (std::size_t i = 0; i < 3; ++i) {
        visit(ours.BarCodeDesc[i], other.BarCodeTexts[i]);
    }
    visit(ours.PathToWordProcessor, other.WordProcessor);
    visit(ours.PathToAdmin, other.Admin);
    visit(ours.ImportStudentsFile, other.ImportFile);
    for (std::size_t i = 0; i < 25; ++i) {
        visit(ours.ImportFields[i], other.Fields[i]);
    }
    for (std::size_t i = 0; i < 16; ++i) {
        visit(ours.RuleGSymbol[i], other.Symbols[i]);
        visit(ours.RuleGActual[i], other.Actuals[i]);
    }
    visit(ours.PathToStudentPhotos, other.Photos);
    visit(ours.StudentPhotoExtension, other.PhotoExtension);
    visit(ours.SMTPHostName, other.MailServer);
    visit(ours.HTMLSchool, other.HtmlTexts[0]);
    visit(ours.HTMLFileSep1, other.HtmlTexts[1]);
    visit(ours.HTMLFileSep2, other.HtmlTexts[2]);
    visit(ours.HTMLPath, other.HtmlPath);
    visit(ours.BackupDestinationPath, other.Backup);
    visit(ours.AECourseCodeSplitCharacter, other.SplitCharacter);
}

// A value of its own in every place, so that one which a reader should leave alone is missed when it goes.
void FillBoth(ProgramConfigRecord& ours, ReferenceConfig& other) {
    std::int16_t count = 1000;
    VisitNumbers(ours, other, [&count](std::int16_t& our, std::int16_t& their) { our = their = ++count; });
    ours.ImportFieldLast = other.FieldLast = 3;
    ours.SchoolYearStartMonth = other.StartMonth = 1; // its default, and what every read makes of it
    VisitTexts(ours, other, [&count](QString& our, std::string& their) {
        their = "kept" + std::to_string(++count);
        our = Text(their);
    });
}

struct Filled {
    ProgramConfigRecord Ours;
    ReferenceConfig Other;

    Filled() { FillBoth(Ours, Other); }
};

std::string Differences(ProgramConfigRecord& ours, ReferenceConfig& other) {
    std::string all;
    VisitNumbers(ours, other, [&all](std::int16_t our, std::int16_t their) {
        if (our != their) {
            all += " " + std::to_string(our) + " for " + std::to_string(their);
        }
    });
    VisitTexts(ours, other, [&all](const QString& our, const std::string& their) {
        if (!Same(our, their)) {
            all += " [" + our.toStdString() + "] for [" + their + "]";
        }
    });
    return all;
}

bool HoldsQuotes(ProgramConfigRecord& record) {
    static ReferenceConfig other;
    bool quotes = false;
    VisitTexts(record, other, [&quotes](const QString& our, const std::string& /*their*/) {
        quotes = quotes || our.contains(QLatin1Char('"'));
    });
    return quotes;
}

} // namespace

std::string FuzzConfigFile(const std::string& bytes) {
    static const Filled filled;
    const ProgramConfigRecord& before = filled.Ours;
    ReferenceConfig expected = filled.Other;
    const QByteArray file = Array(bytes);
    ProgramConfigRecord read = before;
    const AllocationMeter meter;
    const ItemError error = ReadConfigText(file, read);
    if (std::string complaint = meter.Judge(bytes.size(), 8); !complaint.empty()) {
        return complaint;
    }
    const int expectedError = ReferenceReadConfig(bytes, expected);
    if (error.Error.Number != expectedError) {
        return "error " + std::to_string(error.Error.Number) + " for " + std::to_string(expectedError);
    }
    if (std::string differences = Differences(read, expected); !differences.empty()) {
        return "read" + differences;
    }
    static_cast<void>(HasLaterSections(file));
    const QByteArray written = WriteConfigText(read, QString::fromLatin1(Title));
    if (!Same(written, ReferenceWriteConfig(expected, Title))) {
        return "the bytes written differ";
    }
    if (HoldsQuotes(read)) {
        return {}; // no file can hold such a text
    }
    ProgramConfigRecord again = before;
    const ItemError secondError = ReadConfigText(written, again);
    read.SchoolYearStartMonth = 1; // a stored month never survives
    if (read.ImportFieldLast > 24 || read.ConfigLock != 1) {
        read.ConfigLock = again.ConfigLock;
    }
    if (secondError) {
        return "what was written cannot be read: error " + std::to_string(secondError.Error.Number);
    }
    return again == read ? std::string() : "another value after a write and a read";
}
