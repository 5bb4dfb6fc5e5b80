#include "transfer/InformationSystems.h"

#include <algorithm>
#include <array>

namespace {

// Index 0 is unused. Numbers 11 and 22 carry the same name.
constexpr std::array<const char*, HighestSystemNumber + 1> Names = {
    "",
    "Trillium",
    "SAS",
    "Trevlac",
    "Rainbow DSB",
    "Peel DSB",
    "Trillium - HWCDSB",
    "Trevlac - PEI",
    "Inkwell",
    "Trillium - WECDSB",
    "Windsor-Harts",
    "Trillium - WRDSB",
    "Trillium - BWDSB",
    "Trillium - OCDSB",
    "Maplewood - Ont.",
    "SASI - YCDSB",
    "eSIS - Ontario",
    "Maplewood",
    "MANAGELink",
    "eSIS - Durham DSB",
    "Taylor's College",
    "Trillium - KPRDSB",
    "Trillium - WRDSB",
};

constexpr std::array<std::int16_t, 17> DisplayOrder = {1, 12, 6, 21, 13, 22, 19, 16, 8, 18, 14, 17, 5, 20, 3, 15, 10};

} // namespace

QString SystemName(std::int16_t number) {
    return number >= 1 && number <= HighestSystemNumber ? QString::fromUtf8(Names[static_cast<std::size_t>(number)])
                                                        : QString();
}

QStringList OfferedSystems() {
    QStringList names;
    for (const std::int16_t number : DisplayOrder) {
        names.append(SystemName(number));
    }
    return names;
}

std::int16_t SystemNumberAt(int position) {
    return position >= 0 && position < static_cast<int>(DisplayOrder.size())
               ? DisplayOrder[static_cast<std::size_t>(position)]
               : std::int16_t(0);
}

int PositionOfSystem(std::int16_t number) {
    const auto found = std::find(DisplayOrder.begin(), DisplayOrder.end(), number);
    return found == DisplayOrder.end() ? -1 : static_cast<int>(found - DisplayOrder.begin());
}

QString StoredSystemName(std::int16_t number, const QString& system, const QString& separator, const QString& board) {
    return number == WindsorHarts ? system : system + separator + board;
}
