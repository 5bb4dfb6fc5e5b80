#pragma once

#include "transfer/TransferFile.h"

/// How the list of information systems and the list of board types act on each other. Plain values, no window.

/// What the two lists and the frames below them show. Positions and types count from 0; -1 stands for no selection.
struct SystemAndBoard {
    int SystemPosition = -1;
    int BoardType = -1;
    bool SystemListEnabled = true;
    bool BoardFrameShown = false;
    bool WorkHabitsFrameShown = false;

    friend bool operator==(const SystemAndBoard&, const SystemAndBoard&) = default;
};

/// A system was selected, by the user or in code: Windsor-Harts forces the public secondary board and shows the work
/// habits frame, every other system shows the board frame. No selection (-1) changes the selection only.
SystemAndBoard WithSystem(SystemAndBoard shown, int position);

/// A board type was selected, by the user or in code: an elementary one forces the first system and disables its list,
/// a secondary one enables it. No selection (a negative type) changes the selection only.
SystemAndBoard WithBoard(SystemAndBoard shown, int boardType);

/// What a window opens with: the stored system, then the stored board, each acting like a click. Where no system number
/// was read (0, a missing or damaged file) nothing acts: no system is selected, the board is, and the user can go on.
SystemAndBoard OpenedWith(const TransferSettings& settings);
