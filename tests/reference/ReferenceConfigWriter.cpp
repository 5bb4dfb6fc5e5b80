#include "tests/reference/ReferenceConfig.h"

namespace {

std::string Plain(int number) {
    return (number < 0 ? "" : " ") + std::to_string(number) + " \r\n";
}

std::string InQuotes(const std::string& text) {
    return '"' + text + '"';
}

std::string Line(const std::string& text) {
    return text + "\r\n";
}

std::string QuotedLine(const std::string& text) {
    return Line(InQuotes(text));
}

const std::string Separator = "\"\"\r\n";

std::string FirstSections(const ReferenceConfig& config) {
    std::string file = Line("[Bar Code Attendance]") + Plain(config.BarCodeForms[0]) + Plain(config.BarCodeForms[1]) +
                       QuotedLine(config.BarCodeFont) + Plain(2);
    for (std::size_t i = 0; i < 3; ++i) {
        file += Line(InQuotes(config.BarCodeTexts[i]) + "," + std::to_string(config.BarCodes[i]));
    }
    file += Separator + Line("[Path to Word Processor]") + QuotedLine(config.WordProcessor);
    file += Separator + Line("[Path to Admin]") + QuotedLine(config.Admin);
    file += Separator + QuotedLine("[Import Students]") + QuotedLine(config.ImportFile);
    file += Line(std::to_string(config.FieldLast));
    for (int i = 0; i <= config.FieldLast; ++i) {
        file += QuotedLine(config.Fields[static_cast<std::size_t>(i)]);
    }
    file += Separator + Line("[Date Format]") + Plain(config.DateFormat);
    file += Separator + Line("[Printer Dialog Box]") + Plain(config.PrinterDialog);
    file += Separator + QuotedLine("[Path to Net - NA - 2002 10 05]") + Separator;
    return file;
}

std::string LastSections(const ReferenceConfig& config) {
    std::string file =
        Separator + QuotedLine("[Width of Thick Lines]") + Line(std::to_string(config.ThickLines)) + Separator;
    file += QuotedLine("[Course Code Rules]");
    for (std::size_t i = 0; i < 8; ++i) {
        file += std::to_string(config.Rules[i]) + (i < 7 ? "," : "\r\n");
    }
    for (std::size_t i = 0; i < 16; ++i) {
        file += Line(InQuotes(config.Symbols[i]) + "," + InQuotes(config.Actuals[i]));
    }
    file += Separator + QuotedLine("[Path to Student Photos]") +
            Line(InQuotes(config.Photos) + "," + InQuotes(config.PhotoExtension));
    file += Separator + QuotedLine("[SMTP Host Name]") + QuotedLine(config.MailServer);
    file += Separator + QuotedLine("[HTML Student/Combined Reports]");
    for (const std::string& text : config.HtmlTexts) {
        file += InQuotes(text) + ",";
    }
    file += Line(std::to_string(config.HtmlNumbers[0]) + "," + std::to_string(config.HtmlNumbers[1]));
    file += QuotedLine(config.HtmlPath);
    file += Separator + QuotedLine("[Backup Destination Path]") + QuotedLine(config.Backup);
    file += Separator + QuotedLine("[AE Course Code Split Character]") + QuotedLine(config.SplitCharacter);
    return file;
}

} // namespace

std::string ReferenceWriteConfig(const ReferenceConfig& config, const std::string& title) {
    return Line(title) + Separator + Line(config.Lock == 1 ? "Program Config Lock=ON" : "Program Config Lock=OFF") +
           Line("[Default Path (may be blank)]") + QuotedLine(config.DefaultPath) + Separator +
           Line("[School Year Start Month]") + Plain(config.StartMonth) + Separator + Plain(14) + Separator +
           FirstSections(config) + LastSections(config);
}
