#include "quorvane/base/collections/listPosition.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quorvane {
namespace {

TEST(ListPosition, IsAWholeNumberFromOneToTheCount) {
    EXPECT_EQ(listPosition(1, 3), 1U);
    EXPECT_EQ(listPosition(2, 3), 2U);
    EXPECT_EQ(listPosition(3, 3), 3U);
}

TEST(ListPosition, DoesNotExistOutsideTheList) {
    EXPECT_EQ(listPosition(0, 3), 0U);
    EXPECT_EQ(listPosition(4, 3), 0U);
    EXPECT_EQ(listPosition(-1, 3), 0U);
    EXPECT_EQ(listPosition(1, 0), 0U);
}

TEST(ListPosition, IsTheNearestToAFraction) {
    EXPECT_EQ(listPosition(0.51, 3), 1U);
    EXPECT_EQ(listPosition(1.49, 3), 1U);
    EXPECT_EQ(listPosition(1.51, 3), 2U);
    EXPECT_EQ(listPosition(3.49, 3), 3U);
    EXPECT_EQ(listPosition(3.51, 3), 0U);
}

TEST(ListPosition, TakesHalvesToEven) {
    EXPECT_EQ(listPosition(0.5, 3), 0U);
    EXPECT_EQ(listPosition(1.5, 3), 2U);
    EXPECT_EQ(listPosition(2.5, 3), 2U);
    EXPECT_EQ(listPosition(3.5, 3), 0U);
    EXPECT_EQ(listPosition(3.5, 4), 4U);
    EXPECT_EQ(listPosition(4.5, 4), 4U);
}

TEST(ListPosition, DoesNotExistForNumbersBeyondAllLists) {
    EXPECT_EQ(listPosition(1e300, 3), 0U);
    EXPECT_EQ(listPosition(-1e300, 3), 0U);
    EXPECT_EQ(listPosition(std::numeric_limits<double>::infinity(), 3), 0U);
    EXPECT_EQ(listPosition(-std::numeric_limits<double>::infinity(), 3), 0U);
    EXPECT_EQ(listPosition(std::nan(""), 3), 0U);
}

TEST(ListPosition, ReachesTheEndOfVeryLongLists) {
    EXPECT_EQ(listPosition(2147483647.0, 2147483647U), 2147483647U);
    EXPECT_EQ(listPosition(2147483648.0, 2147483647U), 0U);
}

}  // namespace
}  // namespace quorvane
