#include "quorvane/docmodel/Borders.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace quorvane
