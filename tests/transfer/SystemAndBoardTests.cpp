#include "transfer/InformationSystems.h"
#include "transfer/SystemAndBoard.h"

#include <gtest/gtest.h>

namespace {

std::string Described(const SystemAndBoard& shown) {
    return "system " + std::to_string(shown.SystemPosition) + ", board " + std::to_string(shown.BoardType) +
           (shown.SystemListEnabled ? ", list on" : ", list off") + (shown.BoardFrameShown ? ", board frame" : "") +
           (shown.WorkHabitsFrameShown ? ", work habits frame" : "");
}

// What stands at the end when a file with this pair is opened, written down pair by pair: the position of each number.
struct NumberCase {
    int Number;
    const char* WithPublicSecondary;
    const char* WithCatholicSecondary;
};

const NumberCase Numbers[] = {
    {1, "system 0, board 2, list on, board frame", "system 0, board 3, list on, board frame"},
    {2, "system -1, board 2, list on", "system -1, board 3, list on"},
    {3, "system 14, board 2, list on, board frame", "system 14, board 3, list on, board frame"},
    {4, "system -1, board 2, list on", "system -1, board 3, list on"},
    {5, "system 12, board 2, list on, board frame", "system 12, board 3, list on, board frame"},
    {6, "system 2, board 2, list on, board frame", "system 2, board 3, list on, board frame"},
    {7, "system -1, board 2, list on", "system -1, board 3, list on"},
    {8, "system 8, board 2, list on, board frame", "system 8, board 3, list on, board frame"},
    {9, "system -1, board 2, list on", "system -1, board 3, list on"},
    {10, "system 16, board 2, list on, work habits frame", "system 16, board 3, list on, work habits frame"},
    {11, "system -1, board 2, list on", "system -1, board 3, list on"},
    {12, "system 1, board 2, list on, board frame", "system 1, board 3, list on, board frame"},
    {13, "system 4, board 2, list on, board frame", "system 4, board 3, list on, board frame"},
    {14, "system 10, board 2, list on, board frame", "system 10, board 3, list on, board frame"},
    {15, "system 15, board 2, list on, board frame", "system 15, board 3, list on, board frame"},
    {16, "system 7, board 2, list on, board frame", "system 7, board 3, list on, board frame"},
    {17, "system 11, board 2, list on, board frame", "system 11, board 3, list on, board frame"},
    {18, "system 9, board 2, list on, board frame", "system 9, board 3, list on, board frame"},
    {19, "system 6, board 2, list on, board frame", "system 6, board 3, list on, board frame"},
    {20, "system 13, board 2, list on, board frame", "system 13, board 3, list on, board frame"},
    {21, "system 3, board 2, list on, board frame", "system 3, board 3, list on, board frame"},
    {22, "system 5, board 2, list on, board frame", "system 5, board 3, list on, board frame"},
};

TEST(SystemAndBoard, EveryStoredPair) {
    int number = 0;
    for (const NumberCase& row : Numbers) {
        EXPECT_EQ(row.Number, ++number);
        const auto opened = [&row](std::int16_t board) {
            return Described(OpenedWith({0, {}, board, static_cast<std::int16_t>(row.Number)}));
        };
        // An elementary board forces the first system, whatever is stored.
        EXPECT_EQ(opened(0), "system 0, board 0, list off, board frame") << row.Number;
        EXPECT_EQ(opened(1), "system 0, board 1, list off, board frame") << row.Number;
        EXPECT_EQ(opened(2), row.WithPublicSecondary) << row.Number;
        EXPECT_EQ(opened(3), row.WithCatholicSecondary) << row.Number;
    }
    EXPECT_EQ(number, 22);
}

TEST(SystemAndBoard, NoSystemNumberLetsTheUserGoOn) {
    const char* const expected[] = {
        "system -1, board 0, list on, board frame", "system -1, board 1, list on, board frame",
        "system -1, board 2, list on, board frame", "system -1, board 3, list on, board frame"};
    for (int board = 0; board <= 3; ++board) {
        EXPECT_EQ(Described(OpenedWith({1, {}, static_cast<std::int16_t>(board), 0})), expected[board]);
    }
}

TEST(SystemAndBoard, ANegativeBoardTypeSelectsNoBoard) {
    for (const std::int16_t board : {std::int16_t(-1), std::int16_t(-7), std::int16_t(-32768)}) {
        EXPECT_EQ(Described(OpenedWith({0, {}, board, 16})), "system 7, board -1, list on, board frame");
        EXPECT_EQ(Described(OpenedWith({0, {}, board, 10})), "system 16, board -1, list on, work habits frame");
        EXPECT_EQ(Described(OpenedWith({1, {}, board, 0})), "system -1, board -1, list on, board frame");
        EXPECT_EQ(Described(OpenedWith({0, {}, board, 2})), "system -1, board -1, list on");
    }
}

TEST(SystemAndBoard, ChoosingOneAfterTheOther) {
    const int windsor = PositionOfSystem(WindsorHarts);
    SystemAndBoard shown = OpenedWith({0, {}, 3, 16});
    shown = WithSystem(shown, windsor);
    EXPECT_EQ(Described(shown), "system 16, board 2, list on, work habits frame");
    shown = WithSystem(shown, 5);
    EXPECT_EQ(Described(shown), "system 5, board 2, list on, board frame");
    shown = WithBoard(shown, 1);
    EXPECT_EQ(Described(shown), "system 0, board 1, list off, board frame");
    shown = WithBoard(shown, 3);
    EXPECT_EQ(Described(shown), "system 0, board 3, list on, board frame");
    shown = WithSystem(WithBoard(shown, 0), windsor); // only possible in code: the list is disabled
    EXPECT_EQ(Described(shown), "system 16, board 2, list on, work habits frame");
    shown = WithBoard(shown, 0);
    EXPECT_EQ(Described(shown), "system 0, board 0, list off, board frame");
}

} // namespace
