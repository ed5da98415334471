#include "quorvane/base/text/rounding.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <limits>

#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

TEST(RoundToLong, RoundsToTheNearestWholeNumber) {
    EXPECT_EQ(roundToLong(0), 0);
    EXPECT_EQ(roundToLong(2.4), 2);
    EXPECT_EQ(roundToLong(2.6), 3);
    EXPECT_EQ(roundToLong(-2.4), -2);
    EXPECT_EQ(roundToLong(-2.6), -3);
}

TEST(RoundToLong, RoundsHalvesToTheEvenNeighbor) {
    EXPECT_EQ(roundToLong(0.5), 0);
    EXPECT_EQ(roundToLong(1.5), 2);
    EXPECT_EQ(roundToLong(2.5), 2);
    EXPECT_EQ(roundToLong(-0.5), 0);
    EXPECT_EQ(roundToLong(-1.5), -2);
    EXPECT_EQ(roundToLong(-2.5), -2);
}

TEST(RoundToLong, KnowsWhatLiesNextToAHalf) {
    EXPECT_EQ(roundToLong(std::nextafter(0.5, 0)), 0);
    EXPECT_EQ(roundToLong(std::nextafter(0.5, 1)), 1);
    EXPECT_EQ(roundToLong(std::nextafter(-0.5, 0)), 0);
    EXPECT_EQ(roundToLong(std::nextafter(-0.5, -1)), -1);
    EXPECT_EQ(roundToLong(std::numeric_limits<double>::denorm_min()), 0);
    EXPECT_EQ(roundToLong(-std::numeric_limits<double>::denorm_min()), 0);
}

TEST(RoundToLong, ReachesTheEndsOf32Bits) {
    EXPECT_EQ(roundToLong(2147483647), 2147483647);
    EXPECT_EQ(roundToLong(2147483647.4), 2147483647);
    EXPECT_EQ(roundToLong(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(roundToLong(-2147483648.5), std::numeric_limits<std::int32_t>::min());
}

TEST(RoundToLong, RaisesOverflowBeyond32Bits) {
    for (const double value :
         {2147483647.5, 2147483648.0, -2147483648.6, -2147483649.0, 1e300, -1e300,
          std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(errorNumberOf([value] { roundToLong(value); }), 6) << value;
    }
}

TEST(RoundToLong, RaisesOverflowForWhatIsNotANumber) {
    EXPECT_EQ(errorNumberOf([] { roundToLong(std::nan("")); }), 6);
}

TEST(RoundToLong, DoesNotDependOnTheRoundingMode) {
    for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        std::fesetround(mode);
        const std::int32_t below = roundToLong(2.4);
        const std::int32_t above = roundToLong(-2.6);
        const std::int32_t half = roundToLong(2.5);
        const std::int32_t nearHalf = roundToLong(-0.49999999999999994);
        std::fesetround(FE_TONEAREST);
        EXPECT_EQ(below, 2);
        EXPECT_EQ(above, -3);
        EXPECT_EQ(half, 2);
        EXPECT_EQ(nearHalf, 0);
    }
}

}  // namespace
}  // namespace quorvane
