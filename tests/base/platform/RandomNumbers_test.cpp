#include "quorvane/base/platform/RandomNumbers.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <limits>

namespace quorvane {
namespace {

TEST(RandomNumbersTest, GivesTheSameNumbersForTheSameSeed) {
    RandomNumbers one(7);
    RandomNumbers same(7);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(one.between(0, 1000000), same.between(0, 1000000));
    }
}

TEST(RandomNumbersTest, GivesOtherNumbersForAnotherSeed) {
    RandomNumbers one(7);
    RandomNumbers other(8);
    int equal = 0;
    for (int i = 0; i < 100; ++i) {
        equal += one.between(0, 1000000) == other.between(0, 1000000) ? 1 : 0;
    }
    EXPECT_LT(equal, 10);
}

TEST(RandomNumbersTest, ReachesEveryNumberOfTheRangeAndNoOther) {
    RandomNumbers random(1);
    std::array<int, 6> counts{};
    for (int i = 0; i < 6000; ++i) {
        const std::int32_t number = random.between(-2, 3);
        ASSERT_GE(number, -2);
        ASSERT_LE(number, 3);
        ++counts[static_cast<std::size_t>(number + 2)];
    }
    for (const int count : counts) {
        EXPECT_GT(count, 800);
        EXPECT_LT(count, 1200);
    }
}

TEST(RandomNumbersTest, HasOneNumberOfARangeOfOne) {
    RandomNumbers random;
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(random.between(5, 5), 5);
    }
}

TEST(RandomNumbersTest, SpansAll32Bits) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();
    RandomNumbers random(1);
    int negative = 0;
    for (int i = 0; i < 1000; ++i) {
        negative += random.between(least, greatest) < 0 ? 1 : 0;
    }
    EXPECT_GT(negative, 400);
    EXPECT_LT(negative, 600);
}

}  // namespace
}  // namespace quorvane
