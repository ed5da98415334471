#include "quorvane/docmodel/Borders.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace quorvane {
namespace {

constexpr BorderSide sides[] = {BorderSide::Bottom, BorderSide::Left, BorderSide::Right,
                                BorderSide::Top};

TEST(Borders, AreNoneAtFirst) {
    for (const BorderSide side : sides) {
        EXPECT_EQ(Borders()[side], eNone);
    }
}

TEST(Borders, AreSetOneByOne) {
    for (const BorderSide set : sides) {
        Borders borders;
        borders.set(set, eThick);
        for (const BorderSide side : sides) {
            EXPECT_EQ(borders[side], side == set ? eThick : eNone);
        }
    }
}

TEST(Borders, AreEqualWhenAllSidesAre) {
    for (const BorderSide side : sides) {
        Borders some;
        Borders others;
        EXPECT_EQ(some, others);
        some.set(side, eThin);
        EXPECT_NE(some, others);
        others.set(side, eThin);
        EXPECT_EQ(some, others);
    }
}

TEST(Borders, TakeEightBytes) {
    EXPECT_EQ(sizeof(Borders), 8U);
}

TEST(Borders, KeepEveryWidth) {
    for (const std::int32_t width :
         {INT32_MIN, -16385, -16384, -2, -1, 0, 1, 16383, 16384, INT32_MAX}) {
        for (const BorderSide side :
             {BorderSide::Bottom, BorderSide::Left, BorderSide::Right, BorderSide::Top}) {
            Borders borders;
            borders.set(BorderSide::Left, eThick);
            borders.set(side, static_cast<tBorderWidth>(width));
            EXPECT_EQ(borders[side], width);
            EXPECT_EQ(borders[BorderSide::Left], side == BorderSide::Left ? width : eThick);
            borders.set(side, eHair);
            EXPECT_EQ(borders[side], eHair);
        }
    }
}

TEST(Borders, OfUnusualWidthsAreCopied) {
    Borders borders;
    borders.set(BorderSide::Top, static_cast<tBorderWidth>(100'000));
    borders.set(BorderSide::Left, eThin);

    Borders copy = borders;
    borders.set(BorderSide::Top, eNone);
    Borders assigned;
    assigned.set(BorderSide::Top, static_cast<tBorderWidth>(-100'000));
    assigned = copy;
    copy = borders;

    EXPECT_EQ(assigned[BorderSide::Top], 100'000);
    EXPECT_EQ(assigned[BorderSide::Left], eThin);
    EXPECT_EQ(copy[BorderSide::Top], eNone);
}

TEST(Borders, OfUnusualWidthsAreEqualByTheirWidths) {
    Borders one;
    Borders other;
    one.set(BorderSide::Top, static_cast<tBorderWidth>(100'000));
    EXPECT_FALSE(one == other);
    other.set(BorderSide::Top, static_cast<tBorderWidth>(100'000));
    EXPECT_TRUE(one == other);
    other.set(BorderSide::Left, eThin);
    EXPECT_FALSE(one == other);
}

}  // namespace
}  // namespace quorvane
