#include "quorvane/support/appendNumber.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

std::string appended(std::int32_t number) {
    std::string text = "\\cellx";
    appendNumber(number, text);
    return text;
}

TEST(AppendNumber, WritesDecimalWithoutPadding) {
    EXPECT_EQ(appended(0), "\\cellx0");
    EXPECT_EQ(appended(7), "\\cellx7");
    EXPECT_EQ(appended(12242), "\\cellx12242");
}

TEST(AppendNumber, WritesAMinusSignForNegativeNumbers) {
    EXPECT_EQ(appended(-1), "\\cellx-1");
}

TEST(AppendNumber, WritesTheLimitsOf32Bits) {
    EXPECT_EQ(appended(INT32_MAX), "\\cellx2147483647");
    EXPECT_EQ(appended(INT32_MIN), "\\cellx-2147483648");
}

}  // namespace
}  // namespace quorvane
