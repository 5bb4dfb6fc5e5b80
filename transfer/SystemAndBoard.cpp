#include "transfer/SystemAndBoard.h"

#include "transfer/InformationSystems.h"

#include <algorithm>

namespace {

constexpr int FirstSecondaryBoard = 2;
constexpr int FirstSystem = 0;

} // namespace

SystemAndBoard WithSystem(SystemAndBoard shown, int position) {
    shown.SystemPosition = position;
    if (position < 0) {
        return shown;
    }
    const bool windsor = SystemNumberAt(position) == WindsorHarts;
    if (windsor) {
        shown = WithBoard(shown, FirstSecondaryBoard);
    }
    shown.WorkHabitsFrameShown = windsor;
    shown.BoardFrameShown = !windsor;
    return shown;
}

SystemAndBoard WithBoard(SystemAndBoard shown, int boardType) {
    shown.BoardType = std::max(boardType, -1);
    if (boardType < 0) {
        return shown;
    }
    const bool elementary = boardType < FirstSecondaryBoard;
    if (elementary) {
        shown = WithSystem(shown, FirstSystem);
    }
    shown.SystemListEnabled = !elementary;
    return shown;
}

SystemAndBoard OpenedWith(const TransferSettings& settings) {
    SystemAndBoard shown;
    if (settings.SystemNumber == 0) {
        shown.BoardType = std::max<int>(settings.BoardType, -1);
        shown.BoardFrameShown = true;
        return shown;
    }
    return WithBoard(WithSystem(shown, PositionOfSystem(settings.SystemNumber)), settings.BoardType);
}
