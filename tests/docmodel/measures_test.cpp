#include "quorvane/docmodel/measures.h"

#include <gtest/gtest.h>

#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

TEST(Measures, AddSubtractAndMultiply) {
    EXPECT_EQ(sum(12242, -1701), 10541);
    EXPECT_EQ(difference(12242, 1701), 10541);
    EXPECT_EQ(product(8840, 25), 221000);
}

TEST(Measures, ReachTheLimitsOf32Bits) {
    EXPECT_EQ(sum(INT32_MAX - 1, 1), INT32_MAX);
    EXPECT_EQ(difference(INT32_MIN + 1, 1), INT32_MIN);
    EXPECT_EQ(product(INT32_MIN, 1), INT32_MIN);
    EXPECT_EQ(product(46340, 46340), 2147395600);
}

TEST(Measures, OverflowBeyond32Bits) {
    EXPECT_EQ(errorNumberOf([] { sum(INT32_MAX, 1); }), 6);
    EXPECT_EQ(errorNumberOf([] { sum(INT32_MIN, -1); }), 6);
    EXPECT_EQ(errorNumberOf([] { difference(INT32_MIN, 1); }), 6);
    EXPECT_EQ(errorNumberOf([] { difference(0, INT32_MIN); }), 6);
    EXPECT_EQ(errorNumberOf([] { product(46341, 46341); }), 6);
    EXPECT_EQ(errorNumberOf([] { product(INT32_MIN, -1); }), 6);
    EXPECT_EQ(errorNumberOf([] { product(INT32_MIN, INT32_MIN); }), 6);
}

TEST(Measures, DivideToTheNearestWholeNumberHalvesToEven) {
    EXPECT_EQ(quotient(9000, 3), 3000);
    EXPECT_EQ(quotient(10, 4), 2);
    EXPECT_EQ(quotient(14, 4), 4);
    EXPECT_EQ(quotient(-10, 4), -2);
    EXPECT_EQ(quotient(-14, 4), -4);
    EXPECT_EQ(quotient(11, 4), 3);
    EXPECT_EQ(quotient(9, 4), 2);
    EXPECT_EQ(quotient(7, -2), -4);
    EXPECT_EQ(quotient(0, 5), 0);
    EXPECT_EQ(quotient(INT32_MAX, 2), 1073741824);
    EXPECT_EQ(quotient(INT32_MIN, INT32_MAX), -1);
}

TEST(Measures, CannotBeDividedByZero) {
    EXPECT_EQ(errorNumberOf([] { quotient(9000, 0); }), 11);
    EXPECT_EQ(errorNumberOf([] { quotient(0, 0); }), 11);
}

TEST(Measures, OverflowInTheOneQuotientBeyond32Bits) {
    EXPECT_EQ(errorNumberOf([] { quotient(INT32_MIN, -1); }), 6);
}

}  // namespace
}  // namespace quorvane
