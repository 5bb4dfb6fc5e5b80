#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A second reading of the files' rules, written apart from the program's own: plain C++ on the bytes of the file, the
/// simplest code that can be right, however slow. The program's readers are compared with it.

/// The lines of a file, each ended by CR LF, LF or CR; the last one may lack its end.
std::vector<std::string> ReferenceLines(const std::string& bytes);

/// One item of a configuration file. A broken one has a quote that its line never closes.
struct ReferenceItem {
    std::string Text;
    int Line = 0; ///< counted from 1
    bool Broken = false;
};

/// All items of a file. Nothing stands behind a broken one.
std::vector<ReferenceItem> ReferenceItems(const std::string& bytes);

/// The text without the space characters at its ends.
std::string ReferenceTrimmed(const std::string& text);

/// Windows-1252 capitals, byte for byte.
std::string ReferenceUpper(std::string text);

/// The number that a text begins with after its leading blanks; 0 when it begins with none. Each character of
/// `exponents` begins an exponent.
double ReferenceLeadingNumber(const std::string& text, const std::string& exponents = "eE");

/// Takes the items one after another; after the first error nothing more is taken.
class ReferenceTaker {
public:
    explicit ReferenceTaker(const std::string& bytes) : items(ReferenceItems(bytes)) {}
    explicit ReferenceTaker(std::vector<ReferenceItem> itemsToTake) : items(std::move(itemsToTake)) {}

    int ErrorNumber = 0; ///< 0: none
    int ErrorLine = 0;   ///< of the broken or wrong item

    bool Text(std::string& value);
    bool Number(std::int16_t& value);
    bool Drop(int count);
    bool Refuse(int number);
    bool Empty() const { return next == items.size(); }

private:
    std::vector<ReferenceItem> items;
    std::size_t next = 0;
};
