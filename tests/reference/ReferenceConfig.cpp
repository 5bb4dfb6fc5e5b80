#include "tests/reference/ReferenceConfig.h"

#include "tests/reference/ReferenceItems.h"

namespace {

std::int16_t LockOf(const std::string& line) {
    if (line.size() < 2) {
        return 1;
    }
    return ReferenceUpper(line.substr(line.size() - 2)) == "ON" ? 1 : 0;
}

template <class Texts>
bool TakeTexts(ReferenceTaker& taker, Texts& texts) {
    for (std::string& text : texts) {
        if (!taker.Text(text)) {
            return false;
        }
    }
    return true;
}

template <class Numbers>
bool TakeNumbers(ReferenceTaker& taker, Numbers& numbers) {
    for (std::int16_t& number : numbers) {
        if (!taker.Number(number)) {
            return false;
        }
    }
    return true;
}

bool TakeBarCodes(ReferenceTaker& taker, ReferenceConfig& config) {
    std::int16_t last = 0;
    if (!TakeNumbers(taker, config.BarCodeForms) || !taker.Text(config.BarCodeFont) || !taker.Number(last)) {
        return false;
    }
    if (last > 2) {
        return taker.Refuse(9);
    }
    for (std::size_t i = 0; static_cast<int>(i) <= last; ++i) {
        if (!taker.Text(config.BarCodeTexts[i]) || !taker.Number(config.BarCodes[i])) {
            return false;
        }
    }
    return true;
}

bool TakeImport(ReferenceTaker& taker, ReferenceConfig& config) {
    std::int16_t last = 0;
    if (!taker.Text(config.ImportFile) || !taker.Number(last)) {
        return false;
    }
    if (last > 24) {
        return taker.Refuse(9);
    }
    config.FieldLast = last;
    for (std::size_t i = 0; static_cast<int>(i) <= last; ++i) {
        if (!taker.Text(config.Fields[i])) {
            return false;
        }
    }
    return true;
}

bool TakeRules(ReferenceTaker& taker, ReferenceConfig& config) {
    if (!TakeNumbers(taker, config.Rules)) {
        return false;
    }
    for (std::size_t i = 0; i < 16; ++i) {
        if (!taker.Text(config.Symbols[i]) || !taker.Text(config.Actuals[i])) {
            return false;
        }
    }
    return true;
}

bool TakeSection(ReferenceTaker& taker, int section, ReferenceConfig& config) {
    switch (section) {
    case 0:
        return TakeBarCodes(taker, config);
    case 1:
        return taker.Text(config.WordProcessor);
    case 2:
        return taker.Text(config.Admin);
    case 3:
        return TakeImport(taker, config);
    case 4:
        return taker.Number(config.DateFormat);
    case 5:
        return taker.Number(config.PrinterDialog);
    case 6:
        return taker.Drop(1);
    case 7:
        return taker.Number(config.ThickLines);
    case 8:
        return TakeRules(taker, config);
    case 9:
        return taker.Text(config.Photos) && taker.Text(config.PhotoExtension);
    case 10:
        return taker.Text(config.MailServer);
    case 11:
        return TakeTexts(taker, config.HtmlTexts) && TakeNumbers(taker, config.HtmlNumbers) &&
               taker.Text(config.HtmlPath);
    case 12:
        return taker.Text(config.Backup);
    default:
        return taker.Text(config.SplitCharacter);
    }
}

bool TakeConfig(ReferenceTaker& taker, ReferenceConfig& config) {
    std::string lockLine;
    std::int16_t month = 0;
    std::int16_t sections = 0;
    if (!taker.Drop(2) || !taker.Text(lockLine)) {
        return false;
    }
    config.Lock = LockOf(lockLine);
    if (!taker.Drop(1) || !taker.Text(config.DefaultPath) || !taker.Drop(2) || !taker.Number(month)) {
        return false;
    }
    config.StartMonth = 1;
    if (!taker.Drop(1) || !taker.Number(sections)) {
        return false;
    }
    for (int section = 0; section < 14 && section < sections; ++section) {
        if (!taker.Drop(2) || !TakeSection(taker, section, config)) {
            return false;
        }
    }
    return true;
}

bool TakeTransfer(ReferenceTaker& taker, ReferenceTransfer& transfer) {
    std::string text;
    if (!taker.Drop(2) || !taker.Text(text)) {
        return false;
    }
    transfer.Lock = LockOf(text);
    if (!taker.Text(text)) {
        return false;
    }
    if (ReferenceUpper(text).find("REPORT") != std::string::npos) {
        if (!taker.Text(transfer.ReportPath)) {
            return false;
        }
    } else {
        if (!taker.Drop(1)) {
            return false;
        }
        transfer.ReportPath.clear();
    }
    std::int16_t number = 0;
    if (!taker.Drop(2) || !taker.Number(number)) {
        return false;
    }
    transfer.Board = number > 3 ? std::int16_t{0} : number;
    if (!taker.Drop(2) || !taker.Number(number)) {
        return false;
    }
    transfer.System = number < 1 || number > 22 ? std::int16_t{1} : number;
    return taker.Drop(1);
}

} // namespace

int ReferenceReadConfig(const std::string& bytes, ReferenceConfig& config) {
    ReferenceTaker taker(bytes);
    if (!TakeConfig(taker, config)) {
        config.Lock = 1;
    }
    return taker.ErrorNumber;
}

int ReferenceReadTransfer(const std::string& bytes, ReferenceTransfer& transfer) {
    ReferenceTaker taker(bytes);
    if (!TakeTransfer(taker, transfer)) {
        transfer.Lock = 1;
    }
    return taker.ErrorNumber;
}

ReferenceScheme ReferenceReadScheme(const std::string& bytes) {
    ReferenceScheme scheme;
    ReferenceTaker taker(bytes);
    if (!taker.Text(scheme.Heading) || !taker.Drop(1)) {
        scheme.ErrorNumber = taker.ErrorNumber;
        return scheme;
    }
    do {
        std::string symbol;
        std::string value;
        if (!taker.Text(symbol) || !taker.Text(value)) {
            scheme.ErrorNumber = taker.ErrorNumber;
            return scheme;
        }
        // Blanks, tabs and line ends are passed over wherever they stand, and D begins an exponent, too.
        std::string dense = value;
        std::erase_if(dense, [](char byte) { return std::string(" \t\r\n").find(byte) != std::string::npos; });
        const double number = ReferenceLeadingNumber(dense, "eEdD");
        if (!(number >= 0 && number <= 99) || symbol.size() > 3) {
            scheme.Invalid = true;
            return scheme;
        }
        scheme.Pairs.emplace_back(symbol, value);
    } while (scheme.Pairs.size() < 19 && !taker.Empty());
    scheme.Invalid = scheme.Pairs.size() < 2; // the list of levels has no entry for one
    return scheme;
}
