#include "quorvane/support/CStringCompare.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(CStringCompareTest, ReturnsMinusOneZeroOrOne) {
    const CStringCompare comparer;
    EXPECT_EQ(comparer.comp("a", "b"), -1);
    EXPECT_EQ(comparer.comp("a", "a"), 0);
    EXPECT_EQ(comparer.comp("b", "a"), 1);
}

TEST(CStringCompareTest, DisregardsCase) {
    const CStringCompare comparer;
    EXPECT_EQ(comparer.comp("abc", "ABC"), 0);
    EXPECT_EQ(comparer.comp("B", "a"), 1);
}

}  // namespace
}  // namespace quorvane
