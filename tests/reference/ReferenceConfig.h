#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// The program configuration file, the scheme files and the Transfer Program's file, read a second way
/// (ReferenceItems.h). Texts are the file's bytes.

/// The stored values in the order of the file.
struct ReferenceConfig {
    std::int16_t Lock = 0;
    std::int16_t StartMonth = 0;
    std::array<std::int16_t, 2> BarCodeForms{};
    std::array<std::int16_t, 3> BarCodes{};
    std::int16_t FieldLast = 0;
    std::int16_t DateFormat = 0;
    std::int16_t PrinterDialog = 0;
    std::int16_t ThickLines = 0;
    std::array<std::int16_t, 8> Rules{};
    std::array<std::int16_t, 2> HtmlNumbers{};

    std::string DefaultPath;
    std::string BarCodeFont;
    std::array<std::string, 3> BarCodeTexts;
    std::string WordProcessor;
    std::string Admin;
    std::string ImportFile;
    std::array<std::string, 25> Fields;
    std::array<std::string, 16> Symbols;
    std::array<std::string, 16> Actuals;
    std::string Photos;
    std::string PhotoExtension;
    std::string MailServer;
    std::array<std::string, 3> HtmlTexts;
    std::string HtmlPath;
    std::string Backup;
    std::string SplitCharacter;

    friend bool operator==(const ReferenceConfig&, const ReferenceConfig&) = default;
};

/// Reads over what `config` holds; returns the error's number, 0 for none.
int ReferenceReadConfig(const std::string& bytes, ReferenceConfig& config);

/// The bytes of the file.
std::string ReferenceWriteConfig(const ReferenceConfig& config, const std::string& title);

struct ReferenceScheme {
    std::string Heading;
    std::vector<std::pair<std::string, std::string>> Pairs;
    bool Invalid = false;
    int ErrorNumber = 0;
};

ReferenceScheme ReferenceReadScheme(const std::string& bytes);

struct ReferenceTransfer {
    std::int16_t Lock = 0;
    std::string ReportPath;
    std::int16_t Board = 0;
    std::int16_t System = 0;

    friend bool operator==(const ReferenceTransfer&, const ReferenceTransfer&) = default;
};

int ReferenceReadTransfer(const std::string& bytes, ReferenceTransfer& transfer);
