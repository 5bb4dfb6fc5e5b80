#include "options/SchemeFile.h"
#include "platform/ItemText.h"
#include "tests/fuzz/AllocationMeter.h"
#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/Targets.h"
#include "tests/reference/ReferenceConfig.h"
#include "tests/reference/ReferenceItems.h"
#include "transfer/TransferFile.h"

namespace {

std::string Shown(int our, int their) {
    return std::to_string(our) + " for " + std::to_string(their);
}

// Every item as a text and, where it is one, as a number.
std::string CompareItems(const std::string& bytes, const std::vector<ReferenceItem>& items) {
    ItemReader texts(Array(bytes));
    for (const ReferenceItem& item : items) {
        if (texts.AtEnd()) {
            return "at its end too early, in line " + std::to_string(item.Line);
        }
        QString text = QStringLiteral("kept");
        if (texts.ReadText(text) == item.Broken) {
            return "item taken or refused otherwise in line " + std::to_string(item.Line);
        }
        if (item.Broken) {
            return texts.Error().Error.Number == 75 && texts.Error().Line == item.Line ? "" : "another error";
        }
        if (!Same(text, item.Text)) {
            return "[" + Bytes(text) + "] for [" + item.Text + "]";
        }
    }
    QString text;
    if (!texts.AtEnd() || texts.ReadText(text) || texts.Error().Error.Number != 62) {
        return "not at its end";
    }
    return {};
}

std::string CompareNumbers(const std::string& bytes, const std::vector<ReferenceItem>& items) {
    ItemReader numbers(Array(bytes));
    ReferenceTaker taker(items);
    while (true) {
        std::int16_t our = 77;
        std::int16_t their = 77;
        const bool taken = numbers.ReadNumber(our);
        if (taken != taker.Number(their) || our != their) {
            return "number " + Shown(our, their);
        }
        if (!taken) {
            break;
        }
    }
    return numbers.Error().Error.Number == taker.ErrorNumber
               ? ""
               : "error " + Shown(numbers.Error().Error.Number, taker.ErrorNumber);
}

// All items that a quoted line can hold, written and read again.
std::string WriteItemsAgain(const std::string& /*bytes*/, const std::vector<ReferenceItem>& read) {
    std::vector<Item> items;
    items.reserve(read.size());
    for (const ReferenceItem& item : read) {
        if (item.Text.find('"') == std::string::npos && !item.Broken) {
            items.emplace_back(Text(item.Text));
        }
    }
    ItemWriter writer;
    writer.QuotedLine(items);
    ItemReader reader(writer.Bytes());
    for (const Item& item : items) {
        QString text;
        if (!reader.ReadText(text) || text != std::get<QString>(item)) {
            return "another item after a write and a read";
        }
    }
    return items.empty() || reader.AtEnd() ? "" : "more items after a write and a read";
}

} // namespace

std::string FuzzQuotedLines(const std::string& bytes) {
    {
        const QByteArray file = Array(bytes);
        const AllocationMeter meter;
        ItemReader reader(file);
        QString text;
        while (reader.ReadText(text)) {
        }
        if (std::string complaint = meter.Judge(bytes.size(), 8); !complaint.empty()) {
            return complaint;
        }
    }
    const std::vector<ReferenceItem> items = ReferenceItems(bytes);
    for (const auto check : {CompareItems, CompareNumbers, WriteItemsAgain}) {
        if (std::string complaint = check(bytes, items); !complaint.empty()) {
            return complaint;
        }
    }
    return {};
}

std::string FuzzSchemeFile(const std::string& bytes) {
    const QByteArray file = Array(bytes);
    const AllocationMeter meter;
    const SchemeReading reading = ReadSchemeText(file);
    if (std::string complaint = meter.Judge(bytes.size(), 8); !complaint.empty()) {
        return complaint;
    }
    const ReferenceScheme expected = ReferenceReadScheme(bytes);
    if (reading.Error.Error.Number != expected.ErrorNumber || reading.InvalidData != expected.Invalid) {
        return "error " + Shown(reading.Error.Error.Number, expected.ErrorNumber) + ", invalid " +
               Shown(int{reading.InvalidData}, int{expected.Invalid});
    }
    if (!reading.IsGood()) {
        return {};
    }
    bool quotes = reading.Read.Heading.contains(QLatin1Char('"'));
    if (Bytes(reading.Read.Heading) != expected.Heading || reading.Read.Pairs.size() != expected.Pairs.size()) {
        return "another heading or count of pairs";
    }
    for (std::size_t i = 0; i < expected.Pairs.size(); ++i) {
        const SchemePair& pair = reading.Read.Pairs[i];
        if (Bytes(pair.Symbol) != expected.Pairs[i].first || Bytes(pair.Value) != expected.Pairs[i].second) {
            return "another pair";
        }
        quotes = quotes || (pair.Symbol + pair.Value).contains(QLatin1Char('"'));
    }
    const SchemeReading again = ReadSchemeText(WriteSchemeText(reading.Read));
    return quotes || (again.IsGood() && again.Read == reading.Read) ? "" : "another scheme after a write and a read";
}

std::string FuzzTransferFile(const std::string& bytes) {
    const TransferSettings before{7, QStringLiteral("kept"), 7, 77};
    const QByteArray file = Array(bytes);
    TransferSettings read = before;
    const AllocationMeter meter;
    const ItemError error = ReadTransferText(file, read);
    if (std::string complaint = meter.Judge(bytes.size(), 8); !complaint.empty()) {
        return complaint;
    }
    ReferenceTransfer expected{7, "kept", 7, 77};
    const int expectedError = ReferenceReadTransfer(bytes, expected);
    if (error.Error.Number != expectedError) {
        return "error " + Shown(error.Error.Number, expectedError);
    }
    if (read.TransferLock != expected.Lock || Bytes(read.ReportPath) != expected.ReportPath ||
        read.BoardType != expected.Board || read.SystemNumber != expected.System) {
        return "another value";
    }
    if (error || read.ReportPath.contains(QLatin1Char('"'))) {
        return {};
    }
    TransferSettings again = before;
    const QByteArray written =
        WriteTransferText(read, QStringLiteral("[A title]"), QStringLiteral("2016 CY"), QStringLiteral("A name"));
    return !ReadTransferText(written, again) && again == read ? "" : "another value after a write and a read";
}
