#include "tests/fuzz/Inputs.h"

#include "tests/reference/ReferenceConfig.h"
#include "tests/reference/ReferenceImport.h"
#include "tests/reference/ReferenceItems.h"

#include <iterator>

namespace {

const std::string Pieces[] = {"\"",
                              "\"",
                              "\"",
                              ",",
                              ",",
                              ",",
                              "\r\n",
                              "\r\n",
                              "\n",
                              "\r",
                              " ",
                              " ",
                              "\t",
                              "\t",
                              "a",
                              "Zy",
                              "\xE9",
                              "\xDF",
                              "\xFF",
                              "\x80",
                              "\x81",
                              "0",
                              "1",
                              "7",
                              "14",
                              "24",
                              "25",
                              "99",
                              "99.5",
                              "100",
                              "32767",
                              "32768",
                              "-32768",
                              "-1",
                              "+3",
                              "- 1",
                              "1e1",
                              "1e5",
                              ".5",
                              "5.",
                              "0x10",
                              "007",
                              "",
                              "\"\"",
                              "\"\"\r\n",
                              "\"a,b\"",
                              "ON",
                              "on",
                              "OFF",
                              "Lock=ON",
                              "=",
                              "==",
                              ";",
                              "[",
                              "]",
                              "#",
                              "/",
                              "c=/",
                              "D = /srv/x",
                              "g=",
                              "/srv//",
                              "\xEF\xBB\xBF",
                              "\xC3\xA9",
                              "\xC3",
                              "REPORT",
                              "ActiveFields=",
                              "activefields= 3",
                              "Field1=",
                              "Field24=",
                              "Field25=",
                              "field2=Last Name",
                              "First Name",
                              "gender",
                              "DOB (Year/Mth/Day)",
                              "dob (MMDDYear)",
                              "DOB (x)",
                              "Ignore this field",
                              "AddNames=1",
                              "SpecialUse=2.5",
                              "Phone1=-0.5",
                              "AddNames=1e9",
                              "abcdefghijkl",
                              "1,2,3,4,5,6,7,8",
                              "~",
                              "\x1A",
                              std::string(1, '\0'),
                              "\x0B"};

std::size_t Below(std::mt19937_64& random, std::size_t limit) {
    return random() % limit; // the same on every machine
}

const std::string& Piece(std::mt19937_64& random) {
    return Pieces[Below(random, std::size(Pieces))];
}

std::string Typed(std::mt19937_64& random) {
    std::string text;
    for (std::size_t count = Below(random, 4); count > 0; --count) {
        for (const char byte : Piece(random)) {
            text += byte == '"' || byte == '\r' || byte == '\n' ? 'q' : byte;
        }
    }
    return text;
}

std::int16_t SmallNumber(std::mt19937_64& random, int highest) {
    return static_cast<std::int16_t>(Below(random, static_cast<std::size_t>(highest) + 1));
}

std::string GoodConfig(std::mt19937_64& random) {
    ReferenceConfig config;
    config.Lock = SmallNumber(random, 1);
    config.StartMonth = 1;
    config.FieldLast = SmallNumber(random, 24);
    config.DateFormat = SmallNumber(random, 7);
    config.BarCodes[1] = static_cast<std::int16_t>(random());
    for (std::int16_t& rule : config.Rules) {
        rule = static_cast<std::int16_t>(random());
    }
    for (std::string* text : {&config.DefaultPath, &config.BarCodeFont, &config.BarCodeTexts[2], &config.Admin,
                              &config.ImportFile, config.Fields.data(), &config.Fields[3], &config.Symbols[15],
                              config.Actuals.data(), &config.Photos, &config.HtmlTexts[1], &config.SplitCharacter}) {
        *text = Typed(random);
    }
    return ReferenceWriteConfig(config, "[A title]");
}

std::string GoodScheme(std::mt19937_64& random) {
    std::string file = "\"" + Typed(random) + "\",\" <- Heading for General Analysis columns\"\r\n";
    const std::size_t pairs = 1 + Below(random, 25);
    for (std::size_t i = 0; i < pairs; ++i) {
        file += "\"" + Typed(random).substr(0, 3) + "\",\"" + std::to_string(Below(random, 102)) + "\"\r\n";
    }
    return file;
}

std::string GoodTransfer(std::mt19937_64& random) {
    const bool older = Below(random, 4) == 0;
    return std::string("[A title]\r\n[2016 CY]\r\nProgram Config Lock=") + (Below(random, 2) != 0 ? "ON" : "OFF") +
           "\r\n[Path to " + (older ? "Other" : "Report") + " Folder (may be blank)]\r\n\"" + Typed(random) +
           "\"\r\n\"\"\r\n[Type of Board]\r\n" + std::to_string(SmallNumber(random, 6) - 2) +
           "\r\n\"\"\r\n[SIS Code Number]\r\n" + std::to_string(SmallNumber(random, 25) - 1) +
           "\r\n\"\"\r\n[SIS Name]\r\n\"Trillium\"\r\n";
}

std::string GoodSetup(std::mt19937_64& random) {
    static const std::string names[] = {"Last Name",    "First Name",        "Program",   "Gender",
                                        "Home Form",    "Ignore this field", "Phone #1",  "DOB (YearMMDD)",
                                        "Import If #1", "Student e-mail",    "nonsense ", "DOB (Year/Mth/Day)"};
    ReferenceSetup setup;
    setup.ActiveFields = SmallNumber(random, 26);
    std::string file = "[Field Matches]\r\nActiveFields=" + std::to_string(setup.ActiveFields) + "\r\n";
    for (int k = 1; k <= setup.ActiveFields; ++k) {
        std::string name = names[Below(random, std::size(names))];
        file += "Field" + std::to_string(k) + "=" + (Below(random, 4) == 0 ? ReferenceUpper(name) : name) + "\r\n";
    }
    setup.ActiveFields = 0;
    const std::string options = ReferenceWriteSetup(setup);
    return file + options.substr(options.find("[Update Actions"));
}

std::string GoodRecord(std::mt19937_64& random) {
    const char separator = Below(random, 2) != 0 ? ',' : '\t';
    std::string record;
    for (std::size_t count = Below(random, 30); count > 0; --count) {
        record += Below(random, 3) == 0 ? '"' + Typed(random) + '"' : Typed(random);
        record += separator;
    }
    return record;
}

std::string GoodTexts(std::mt19937_64& random) {
    std::string texts;
    for (int i = 0; i < 8; ++i) {
        texts += static_cast<char>(1 + Below(random, 12));
    }
    for (int i = 0; i < 5; ++i) {
        texts += '\0' + Typed(random).substr(0, 1 + Below(random, 9));
    }
    return texts;
}

// The start of a line and the start of the next one.
std::pair<std::size_t, std::size_t> SomeLine(const std::string& bytes, std::mt19937_64& random) {
    const std::size_t place = Below(random, bytes.size());
    const std::size_t before = bytes.rfind('\n', place);
    const std::size_t after = bytes.find('\n', place);
    const std::size_t start = before == std::string::npos || before == place ? place : before + 1;
    return {start, after == std::string::npos ? bytes.size() : after + 1};
}

void Damage(std::string& bytes, std::mt19937_64& random) {
    if (bytes.empty()) {
        return;
    }
    const std::size_t place = Below(random, bytes.size());
    const auto [line, next] = SomeLine(bytes, random);
    const std::string copy = bytes.substr(line, next - line);
    switch (Below(random, 7)) {
    case 0:
        bytes.erase(place, 1 + Below(random, 3));
        break;
    case 1:
        bytes.insert(place, Piece(random));
        break;
    case 2:
        bytes.replace(place, 1, Piece(random));
        break;
    case 3:
        bytes.resize(place);
        break;
    case 4:
        bytes.erase(line, next - line);
        break;
    case 5:
        bytes.insert(line, copy);
        break;
    default:
        bytes.replace(line, next - line, Piece(random) + "\r\n");
    }
}

} // namespace

std::string SoupOf(std::mt19937_64& random) {
    std::string soup;
    for (std::size_t count = Below(random, 40); count > 0; --count) {
        soup += Piece(random);
    }
    return soup;
}

std::string DamagedGood(const std::string& target, std::mt19937_64& random) {
    std::string bytes;
    if (target == "config" || target == "quoted") {
        bytes = GoodConfig(random);
    } else if (target == "scheme") {
        bytes = GoodScheme(random);
    } else if (target == "transfer" || target == "lines") {
        bytes = GoodTransfer(random);
    } else if (target == "setup") {
        bytes = GoodSetup(random);
    } else if (target == "record") {
        bytes = GoodRecord(random);
    } else {
        bytes = GoodTexts(random);
    }
    for (std::size_t count = Below(random, 4); count > 0; --count) {
        Damage(bytes, random);
    }
    return bytes;
}
