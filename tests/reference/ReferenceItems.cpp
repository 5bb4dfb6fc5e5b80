#include "tests/reference/ReferenceItems.h"

#include <cstdlib>

std::vector<std::string> ReferenceLines(const std::string& bytes) {
    std::vector<std::string> lines;
    std::string line;
    bool open = false; // something of a line without an end has been seen
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char byte = bytes[i];
        if (byte == '\r' || byte == '\n') {
            if (byte == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') {
                ++i;
            }
            lines.push_back(line);
            line.clear();
            open = false;
        } else {
            line += byte;
            open = true;
        }
    }
    if (open) {
        lines.push_back(line);
    }
    return lines;
}

namespace {

// The item that starts at `place` of a line. Moves `place` behind the comma that follows it, or sets it to npos.
ReferenceItem ItemAt(const std::string& line, std::size_t& place) {
    ReferenceItem item;
    std::size_t behind = place;
    const std::size_t start = line.find_first_not_of(' ', place);
    if (start != std::string::npos && line[start] == '"') {
        const std::size_t end = line.find('"', start + 1);
        if (end == std::string::npos) {
            item.Broken = true;
            return item;
        }
        item.Text = line.substr(start + 1, end - start - 1);
        behind = end + 1;
    } else {
        item.Text = line.substr(place, line.find(',', place) - place);
    }
    const std::size_t comma = line.find(',', behind);
    place = comma == std::string::npos ? std::string::npos : comma + 1;
    return item;
}

bool IsDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

} // namespace

std::vector<ReferenceItem> ReferenceItems(const std::string& bytes) {
    std::vector<ReferenceItem> items;
    int number = 0;
    for (const std::string& line : ReferenceLines(bytes)) {
        ++number;
        for (std::size_t place = 0; place != std::string::npos;) {
            items.push_back(ItemAt(line, place));
            items.back().Line = number;
            if (items.back().Broken) {
                return items;
            }
        }
    }
    return items;
}

std::string ReferenceTrimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string ReferenceUpper(std::string text) {
    for (char& byte : text) {
        const int code = static_cast<unsigned char>(byte);
        int upper = code;
        if ((code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7)) {
            upper = code - 32;
        } else if (code == 0x9A || code == 0x9C || code == 0x9E) { // s with caron, oe, z with caron
            upper = code - 16;
        } else if (code == 0xFF) { // y with two dots
            upper = 0x9F;
        }
        byte = static_cast<char>(upper);
    }
    return text;
}

double ReferenceLeadingNumber(const std::string& text, const std::string& exponents) {
    std::size_t i = text.find_first_not_of(' ');
    std::string number;
    bool digits = false;
    const auto take = [&] {
        while (i < text.size() && IsDigit(text[i])) {
            number += text[i++];
            digits = true;
        }
    };
    if (i == std::string::npos) {
        return 0;
    }
    if (text[i] == '+' || text[i] == '-') {
        number += text[i++];
    }
    take();
    if (i < text.size() && text[i] == '.') {
        number += text[i++];
        take();
    }
    if (!digits) {
        return 0;
    }
    if (i < text.size() && exponents.find(text[i]) != std::string::npos) {
        std::string exponent = "e";
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
            exponent += text[i++];
        }
        if (i < text.size() && IsDigit(text[i])) {
            number += exponent;
            take();
        }
    }
    return std::strtod(number.c_str(), nullptr);
}

bool ReferenceTaker::Text(std::string& value) {
    if (ErrorNumber != 0) {
        return false;
    }
    if (next == items.size()) {
        ErrorNumber = 62;
        return false;
    }
    const ReferenceItem& item = items[next++];
    ErrorLine = item.Line;
    if (item.Broken) {
        ErrorNumber = 75;
        return false;
    }
    value = item.Text;
    return true;
}

bool ReferenceTaker::Number(std::int16_t& value) {
    std::string text;
    if (!Text(text)) {
        return false;
    }
    text = ReferenceTrimmed(text);
    const bool sign = !text.empty() && (text[0] == '+' || text[0] == '-');
    const std::string digits = text.substr(sign ? 1 : 0);
    if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos) {
        return Refuse(13);
    }
    const std::size_t first = digits.find_first_not_of('0');
    const std::string significant = first == std::string::npos ? "0" : digits.substr(first);
    if (significant.size() > 5) {
        return Refuse(6);
    }
    const int size = std::atoi(significant.c_str());
    const int result = text[0] == '-' ? -size : size;
    if (result < -32768 || result > 32767) {
        return Refuse(6);
    }
    value = static_cast<std::int16_t>(result);
    return true;
}

bool ReferenceTaker::Drop(int count) {
    std::string dropped;
    for (int i = 0; i < count; ++i) {
        if (!Text(dropped)) {
            return false;
        }
    }
    return true;
}

bool ReferenceTaker::Refuse(int number) {
    ErrorNumber = number;
    return false;
}
