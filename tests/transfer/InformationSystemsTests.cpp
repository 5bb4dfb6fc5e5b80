#include "transfer/InformationSystems.h"

#include <gtest/gtest.h>

namespace {

TEST(InformationSystems, Names) {
    const char* const names[] = {"Trillium",          "SAS",
                                 "Trevlac",           "Rainbow DSB",
                                 "Peel DSB",          "Trillium - HWCDSB",
                                 "Trevlac - PEI",     "Inkwell",
                                 "Trillium - WECDSB", "Windsor-Harts",
                                 "Trillium - WRDSB",  "Trillium - BWDSB",
                                 "Trillium - OCDSB",  "Maplewood - Ont.",
                                 "SASI - YCDSB",      "eSIS - Ontario",
                                 "Maplewood",         "MANAGELink",
                                 "eSIS - Durham DSB", "Taylor's College",
                                 "Trillium - KPRDSB", "Trillium - WRDSB"};
    std::int16_t number = 0;
    for (const char* name : names) {
        EXPECT_EQ(SystemName(++number).toStdString(), name) << number;
    }
    EXPECT_EQ(number, 22);
    for (const int other : {-32768, -1, 0, 23, 32767}) {
        EXPECT_TRUE(SystemName(static_cast<std::int16_t>(other)).isEmpty()) << other;
    }
}

TEST(InformationSystems, ListReadsInDisplayOrder) {
    const QStringList expected = {
        QStringLiteral("Trillium"),          QStringLiteral("Trillium - BWDSB"), QStringLiteral("Trillium - HWCDSB"),
        QStringLiteral("Trillium - KPRDSB"), QStringLiteral("Trillium - OCDSB"), QStringLiteral("Trillium - WRDSB"),
        QStringLiteral("eSIS - Durham DSB"), QStringLiteral("eSIS - Ontario"),   QStringLiteral("Inkwell"),
        QStringLiteral("MANAGELink"),        QStringLiteral("Maplewood - Ont."), QStringLiteral("Maplewood"),
        QStringLiteral("Peel DSB"),          QStringLiteral("Taylor's College"), QStringLiteral("Trevlac"),
        QStringLiteral("SASI - YCDSB"),      QStringLiteral("Windsor-Harts")};
    EXPECT_EQ(OfferedSystems(), expected);
}

TEST(InformationSystems, PositionsAndNumbers) {
    const int order[] = {1, 12, 6, 21, 13, 22, 19, 16, 8, 18, 14, 17, 5, 20, 3, 15, 10};
    int position = 0;
    for (const int number : order) {
        EXPECT_EQ(SystemNumberAt(position), number) << position;
        EXPECT_EQ(PositionOfSystem(static_cast<std::int16_t>(number)), position) << number;
        ++position;
    }
    EXPECT_EQ(SystemNumberAt(-1), 0);
    EXPECT_EQ(SystemNumberAt(17), 0);
    for (const int number : {0, 2, 4, 7, 9, 11, 23, -1}) {
        EXPECT_EQ(PositionOfSystem(static_cast<std::int16_t>(number)), -1) << number;
    }
}

TEST(InformationSystems, StoredName) {
    const QString board = QStringLiteral("Secondary - Public");
    EXPECT_EQ(StoredSystemName(1, QStringLiteral("Trillium"), QStringLiteral(": "), board),
              QStringLiteral("Trillium: Secondary - Public"));
    EXPECT_EQ(StoredSystemName(1, QStringLiteral("Trillium"), QStringLiteral(" : "), board),
              QStringLiteral("Trillium : Secondary - Public"));
    EXPECT_EQ(StoredSystemName(10, QStringLiteral("Windsor-Harts"), QStringLiteral(": "), board),
              QStringLiteral("Windsor-Harts"));
    EXPECT_EQ(StoredSystemName(0, QString(), QStringLiteral(": "), board), QStringLiteral(": Secondary - Public"));
}

} // namespace
