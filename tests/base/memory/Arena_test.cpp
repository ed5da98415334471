#include "quorvane/base/memory/Arena.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <unordered_map>
#include <vector>

namespace quorvane {
namespace {

bool isAligned(const void* memory, std::size_t alignment) {
    return reinterpret_cast<std::uintptr_t>(memory) % alignment == 0;
}

TEST(Arena, PutsObjectsBesideEachOther) {
    Arena arena(64);
    char* const first = static_cast<char*>(arena.allocate(8, 8));
    EXPECT_EQ(arena.allocate(16, 8), first + 8);
    EXPECT_EQ(arena.allocate(1, 1), first + 24);
}

TEST(Arena, AlignsAnObjectAfterASmallerOne) {
    Arena arena(64);
    char* const first = static_cast<char*>(arena.allocate(1, 1));
    EXPECT_TRUE(isAligned(first, alignof(std::max_align_t)));
    EXPECT_EQ(arena.allocate(8, 8), first + 8);
}

TEST(Arena, HoldsAnObjectThatIsLargerThanABlock) {
    Arena arena(16);
    std::memset(arena.allocate(100000, 8), 1, 100000);
    EXPECT_TRUE(isAligned(arena.allocate(8, 8), 8));
}

TEST(Arena, KeepsWhatIsInEarlierBlocks) {
    Arena arena(16);
    std::vector<const std::uint64_t*> numbers;
    for (std::uint64_t i = 0; i < 1000; ++i) {
        numbers.push_back(new (arena.allocate(sizeof i, alignof(std::uint64_t))) std::uint64_t(i));
    }
    for (std::uint64_t i = 0; i < 1000; ++i) {
        EXPECT_EQ(*numbers[i], i);
    }
}

TEST(Arena, BeginsABlockWhenOnlyThePaddingDoesNotFit) {
    Arena arena(24);
    arena.allocate(17, 1);
    void* const last = arena.allocate(7, 8);
    std::memset(last, 1, 7);
    EXPECT_TRUE(isAligned(last, 8));
}

TEST(ArenaAllocator, HoldsTheElementsOfAMap) {
    Arena arena(64);
    using Numbers = std::unordered_map<int, int, std::hash<int>, std::equal_to<>,
                                       ArenaAllocator<std::pair<const int, int>>>;
    Numbers numbers(arena);
    for (int i = 0; i < 1000; ++i) {
        numbers[i] = -i;
    }
    EXPECT_EQ(numbers.size(), 1000U);
    EXPECT_EQ(numbers.at(999), -999);
}

}  // namespace
}  // namespace quorvane
