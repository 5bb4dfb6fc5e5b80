#include "platform/DrivesConf.h"
#include "tests/fuzz/AllocationMeter.h"
#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/Targets.h"
#include "tests/reference/ReferenceItems.h"

#include <map>
#include <vector>

namespace {

struct PlainConf {
    std::map<char, std::string> Folders;
    std::vector<int> BadLines;
};

std::string WithoutBlanks(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Takes over a line LETTER=FOLDER; false when it is none.
bool TakeLine(const std::string& line, std::map<char, std::string>& folders) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) {
        return false;
    }
    const std::string name = WithoutBlanks(line.substr(0, equals));
    std::string folder = WithoutBlanks(line.substr(equals + 1));
    while (folder.size() > 1 && folder.back() == '/') {
        folder.pop_back();
    }
    if (name.size() != 1 || folder.empty() || folder[0] != '/' || folder.find('\0') != std::string::npos) {
        return false;
    }
    const char letter = name[0] >= 'A' && name[0] <= 'Z' ? static_cast<char>(name[0] + 32) : name[0];
    return letter >= 'a' && letter <= 'z' && folders.emplace(letter, folder).second;
}

PlainConf ReadPlainly(const std::string& bytes) {
    PlainConf conf;
    int number = 0;
    for (const std::string& whole : ReferenceLines(bytes.substr(bytes.rfind("\xEF\xBB\xBF", 0) == 0 ? 3 : 0))) {
        ++number;
        const std::string line = WithoutBlanks(whole);
        if (!line.empty() && line[0] != '#' && !TakeLine(line, conf.Folders)) {
            conf.BadLines.push_back(number);
        }
    }
    conf.Folders.emplace('c', "/");
    return conf;
}

} // namespace

std::string FuzzDrivesConf(const std::string& bytes) {
    const QByteArray file = Array(bytes);
    const AllocationMeter meter;
    const DrivesConf conf = ReadDrivesConf(file);
    // A bad line is kept with a sentence about it; the shortest takes two bytes of the file.
    if (std::string complaint = meter.Judge(bytes.size(), 128); !complaint.empty()) {
        return complaint;
    }
    const PlainConf expected = ReadPlainly(bytes);
    if (conf.Drives.size() != static_cast<qsizetype>(expected.Folders.size()) ||
        conf.BadLines.size() != expected.BadLines.size() ||
        BadLineTexts(conf).size() != static_cast<qsizetype>(conf.BadLines.size())) {
        return "another count of drives or bad lines";
    }
    for (const auto& [letter, folder] : expected.Folders) {
        if (conf.Drives.value(QChar::fromLatin1(letter)).native() != NativePath(folder).native()) {
            return std::string("another folder for ") + letter;
        }
    }
    for (std::size_t i = 0; i < conf.BadLines.size(); ++i) {
        if (conf.BadLines[i].Number != expected.BadLines[i]) {
            return "another bad line";
        }
    }
    return {};
}
