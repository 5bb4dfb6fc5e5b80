#include "import/LineIndex.h"
#include "import/RecordSplitter.h"
#include "import/SetupFile.h"
#include "import/Utf8Suspicion.h"
#include "tests/fuzz/AllocationMeter.h"
#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/Targets.h"
#include "tests/reference/ReferenceImport.h"
#include "tests/reference/ReferenceItems.h"

namespace {

constexpr std::int16_t Kept = 9;

ReferenceSetup PlainSetup(const ImportSetup& setup) {
    ReferenceSetup plain;
    plain.ActiveFields = setup.ActiveFields;
    for (std::size_t i = 0; i < plain.Matches.size(); ++i) {
        plain.Matches[i] = Bytes(setup.Matches[i]);
    }
    plain.Actions = setup.Options.Actions;
    plain.Fields = setup.Options.Fields;
    return plain;
}

ImportSetup SetupToReadOver() {
    ImportSetup setup;
    setup.Options.Actions.fill(Kept);
    setup.Options.Fields.fill(Kept);
    return setup;
}

bool Agree(const ImportSetup& setup, const ReferenceSetup& plain) {
    return setup.ActiveFields == plain.ActiveFields && setup.Options.Actions == plain.Actions &&
           setup.Options.Fields == plain.Fields &&
           std::equal(setup.Matches.begin(), setup.Matches.end(), plain.Matches.begin(), plain.Matches.end(),
                      [](const QString& match, const std::string& other) { return Same(match, other); });
}

std::string CompareChecks(ImportSetup& setup, ReferenceSetup& expected) {
    static const FieldList fields = EnglishFieldList();
    const std::vector<SetupFault> faults = CheckMatches(setup, fields);
    const auto expectedFaults = ReferenceCheckMatches(expected);
    if (faults.size() != expectedFaults.size()) {
        return "another count of faults";
    }
    for (std::size_t i = 0; i < faults.size(); ++i) {
        if (!Same(faults[i].Title, expectedFaults[i].first) || !Same(faults[i].Text, expectedFaults[i].second)) {
            return "[" + Bytes(faults[i].Text) + "] for [" + expectedFaults[i].second + "]";
        }
    }
    return Agree(setup, expected) ? "" : "another value after the check";
}

} // namespace

std::string FuzzSetupFile(const std::string& bytes) {
    static const ImportSetup before = SetupToReadOver();
    static const ReferenceSetup plainBefore = PlainSetup(before);
    ImportSetup setup = before;
    ReferenceSetup expected = plainBefore;
    const QByteArray file = Array(bytes);
    const AllocationMeter meter;
    const bool complete = ReadSetup(file, setup);
    if (std::string complaint = meter.Judge(bytes.size(), 8); !complaint.empty()) {
        return complaint;
    }
    if (complete != ReferenceReadSetup(bytes, expected)) {
        return "read to its end or not";
    }
    if (!Agree(setup, expected)) {
        return "another value";
    }
    if (!complete) {
        return {};
    }
    if (std::string complaint = CompareChecks(setup, expected); !complaint.empty()) {
        return complaint;
    }
    const QByteArray written = WriteSetup(setup);
    if (!Same(written, ReferenceWriteSetup(expected))) {
        return "the bytes written differ";
    }
    ImportSetup again = before;
    again.Matches[0] = setup.Matches[0]; // not part of the file
    for (auto k = static_cast<std::size_t>(setup.ActiveFields) + 1; k < setup.Matches.size(); ++k) {
        setup.Matches[k].clear();
    }
    const bool readAgain = ReadSetup(written, again);
    return readAgain && again.ActiveFields == setup.ActiveFields && again.Matches == setup.Matches &&
                   again.Options == setup.Options
               ? ""
               : "another value after a write and a read";
}

std::string FuzzRecordSplitter(const std::string& bytes) {
    const QByteArray line = Array(bytes);
    const AllocationMeter meter;
    const ImportRecord record = SplitImportRecord(line);
    if (std::string complaint = meter.Judge(bytes.size(), 8); !complaint.empty()) {
        return complaint;
    }
    const ReferenceRecord expected = ReferenceSplit(bytes);
    if (record.Separator != expected.Separator) {
        return "another separator";
    }
    if (record.Fields.size() != static_cast<qsizetype>(expected.Fields.size())) {
        return "another count of fields";
    }
    for (std::size_t i = 0; i < expected.Fields.size(); ++i) {
        const QString& field = record.Fields[static_cast<qsizetype>(i)];
        if (!Same(field, std::string_view(expected.Fields[i]).substr(0, ShownCharacters))) {
            return "[" + Bytes(field) + "] for [" + expected.Fields[i] + "]";
        }
    }
    return {};
}

std::string FuzzLineFinder(const std::string& bytes) {
    const std::size_t pieceSize = bytes.empty() ? 1 : static_cast<unsigned char>(bytes[0]) % 7 + std::size_t{1};
    const std::vector<std::string> lines = ReferenceLines(bytes);
    const AllocationMeter meter;
    LineIndex index(3, 5); // marks close together, and too many of them soon
    Utf8Suspicion suspicion;
    for (std::size_t place = 0; place < bytes.size(); place += pieceSize) {
        const auto size = static_cast<std::int64_t>(std::min(pieceSize, bytes.size() - place));
        index.Add(bytes.data() + place, size);
        suspicion.Add(bytes.data() + place, size);
    }
    if (std::string complaint = meter.Judge(0, 0); !complaint.empty()) {
        return complaint;
    }
    if (index.LineCount() != static_cast<std::int64_t>(lines.size())) {
        return std::to_string(index.LineCount()) + " lines for " + std::to_string(lines.size());
    }
    Utf8Suspicion whole;
    whole.Add(bytes.data(), static_cast<std::int64_t>(bytes.size()));
    if (whole.Suspected() != suspicion.Suspected()) {
        return "another judgement by pieces";
    }
    LineIndex::Mark checked{0, 0};
    for (std::size_t number = 1; number <= lines.size(); ++number) {
        const LineIndex::Mark mark = index.MarkBefore(static_cast<std::int64_t>(number));
        if (mark.Line < 1 || mark.Line > static_cast<std::int64_t>(number) || mark.Place < 0 ||
            mark.Place > static_cast<std::int64_t>(bytes.size())) {
            return "a mark out of range";
        }
        if (mark.Line == checked.Line && mark.Place == checked.Place) {
            continue; // looked at with the line before
        }
        checked = mark;
        // From the mark's place on, the file has the lines from the mark's line on.
        const std::vector<std::string> rest = ReferenceLines(bytes.substr(static_cast<std::size_t>(mark.Place)));
        const auto first = static_cast<std::size_t>(mark.Line - 1);
        if (rest.size() != lines.size() - first ||
            !std::equal(rest.begin(), rest.end(), lines.begin() + mark.Line - 1)) {
            return "a mark that is no start of its line";
        }
    }
    return {};
}
