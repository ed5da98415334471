#include "quorvane/base/collections/quicksort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <random>
#include <vector>

namespace quorvane {
namespace {

int compareNumbers(int a, int b) {
    return a < b ? -1 : a > b ? 1 : 0;
}

std::ptrdiff_t pickFirst(std::ptrdiff_t) {
    return 0;
}
std::ptrdiff_t pickMiddle(std::ptrdiff_t count) {
    return count / 2;
}
std::ptrdiff_t pickLast(std::ptrdiff_t count) {
    return count - 1;
}

TEST(Quicksort, LeavesNothingAndOneElementAsTheyAre) {
    std::vector<int> list;
    quicksort(list.begin(), list.end(), compareNumbers, pickFirst);
    EXPECT_TRUE(list.empty());

    list = {1};
    quicksort(list.begin(), list.end(), compareNumbers, pickFirst);
    EXPECT_EQ(list, std::vector<int>{1});
}

TEST(Quicksort, SortsTwoElementsWithoutAPivot) {
    const auto pickNone = [](std::ptrdiff_t) -> std::ptrdiff_t {
        ADD_FAILURE() << "a pivot was picked";
        return 0;
    };
    std::vector<int> list{2, 1};
    quicksort(list.begin(), list.end(), compareNumbers, pickNone);
    EXPECT_EQ(list, (std::vector<int>{1, 2}));
    quicksort(list.begin(), list.end(), compareNumbers, pickNone);
    EXPECT_EQ(list, (std::vector<int>{1, 2}));
}

TEST(Quicksort, SortsAnyListWithAnyPivots) {
    std::mt19937 random(1);
    for (const auto pick : {pickFirst, pickMiddle, pickLast}) {
        for (std::size_t length = 3; length < 60; ++length) {
            for (const unsigned kinds : {1u, 2u, 5u, 1000u}) {
                std::vector<int> list(length);
                for (int& element : list) {
                    element = static_cast<int>(random() % kinds);
                }
                std::vector<int> sorted = list;
                std::sort(sorted.begin(), sorted.end());
                quicksort(list.begin(), list.end(), compareNumbers, pick);
                EXPECT_EQ(list, sorted);
            }
        }
    }
}

TEST(Quicksort, SortsPartOfAList) {
    std::vector<int> list{9, 3, 1, 2, 0};
    quicksort(list.begin() + 1, list.begin() + 4, compareNumbers, pickMiddle);
    EXPECT_EQ(list, (std::vector<int>{9, 1, 2, 3, 0}));
}

TEST(Quicksort, ComparesEqualElementsNoMoreThanOnceEach) {
    std::vector<int> list(100000, 7);
    std::size_t comparisons = 0;
    const auto compare = [&comparisons](int a, int b) {
        ++comparisons;
        return compareNumbers(a, b);
    };
    quicksort(list.begin(), list.end(), compare, pickMiddle);
    EXPECT_LE(comparisons, list.size());
}

TEST(Quicksort, DoesNotRecurseDeeplyWithTheWorstPivots) {
    std::vector<int> list(5000);
    std::iota(list.begin(), list.end(), 0);
    std::uintptr_t deepest = UINTPTR_MAX;
    std::uintptr_t highest = 0;
    std::size_t pivots = 0;
    quicksort(list.begin(), list.end(), compareNumbers, [&](std::ptrdiff_t count) {
        const auto stack = reinterpret_cast<std::uintptr_t>(&count);
        deepest = std::min(deepest, stack);
        highest = std::max(highest, stack);
        ++pivots;
        return count - 1;
    });
    EXPECT_TRUE(std::is_sorted(list.begin(), list.end()));
    EXPECT_GT(pivots, 4900u);
    EXPECT_LT(highest - deepest, 10000u);
}

TEST(Quicksort, EndsWithAComparisonThatContradictsItself) {
    for (const int result : {-1, 0, 1}) {
        std::vector<int> list{3, 1, 2, 5, 4};
        quicksort(
            list.begin(), list.end(), [result](int, int) { return result; }, pickMiddle);
        std::sort(list.begin(), list.end());
        EXPECT_EQ(list, (std::vector<int>{1, 2, 3, 4, 5}));
    }
}

}  // namespace
}  // namespace quorvane
