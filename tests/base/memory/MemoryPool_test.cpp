#include "quorvane/base/memory/MemoryPool.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

namespace quorvane {
namespace {

TEST(MemoryPool, ReturnsMemoryThatCanBeFilled) {
    MemoryPool pool;
    std::vector<unsigned char*> blocks;
    for (unsigned char size = 1; size < 255; ++size) {
        blocks.push_back(static_cast<unsigned char*>(pool.allocate(size)));
        std::memset(blocks.back(), size, size);
    }

    for (unsigned char size = 1; size < 255; ++size) {
        EXPECT_EQ(blocks[size - 1U][0], size);
        EXPECT_EQ(blocks[size - 1U][size - 1], size);
        pool.deallocate(blocks[size - 1U], size);
    }
}

TEST(MemoryPool, AlignsForPointers) {
    MemoryPool pool;
    std::vector<void*> blocks;
    for (std::size_t size = 1; size <= 1000; ++size) {
        blocks.push_back(pool.allocate(size));
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(blocks.back()) % alignof(void*), 0U);
    }

    for (std::size_t size = 1; size <= 1000; ++size) {
        pool.deallocate(blocks[size - 1], size);
    }
}

TEST(MemoryPool, GivesReturnedMemoryToTheNextOfItsSize) {
    MemoryPool pool;
    void* const kept = pool.allocate(40);
    void* const returned = pool.allocate(40);

    pool.deallocate(returned, 40);

    EXPECT_EQ(pool.allocate(40), returned);
    pool.deallocate(returned, 40);
    pool.deallocate(kept, 40);
}

TEST(MemoryPool, KeepsSizesApart) {
    MemoryPool pool;
    void* const kept = pool.allocate(40);
    void* const returned = pool.allocate(40);
    pool.deallocate(returned, 40);

    void* const other = pool.allocate(48);

    EXPECT_NE(other, returned);
    pool.deallocate(other, 48);
    pool.deallocate(kept, 40);
}

TEST(MemoryPool, PutsManySmallObjectsSideBySide) {
    constexpr std::size_t size = 48;
    constexpr int count = 100'000;
    MemoryPool pool;
    std::vector<char*> blocks;
    int neighbors = 0;
    for (int i = 0; i < count; ++i) {
        blocks.push_back(static_cast<char*>(pool.allocate(size)));
        if (i > 0 && blocks[static_cast<std::size_t>(i) - 1] + size == blocks.back()) {
            ++neighbors;
        }
    }

    EXPECT_GT(neighbors, count * 99 / 100);
    for (char* block : blocks) {
        pool.deallocate(block, size);
    }
}

TEST(MemoryPool, CanBeUsedAgainWhenAllWasReturned) {
    MemoryPool pool;
    for (int round = 0; round < 3; ++round) {
        std::vector<void*> blocks;
        for (int i = 0; i < 1000; ++i) {
            blocks.push_back(pool.allocate(64));
            std::memset(blocks.back(), round, 64);
        }
        for (void* block : blocks) {
            pool.deallocate(block, 64);
        }
    }
}

/// Where so many objects of 64 bytes are that are in the pool one after the other.
std::vector<char*> placesOf(MemoryPool& pool, int count) {
    std::vector<char*> places;
    for (int i = 0; i < count; ++i) {
        places.push_back(static_cast<char*>(pool.allocate(64)));
    }
    for (char* place : places) {
        pool.deallocate(place, 64);
    }
    return places;
}

TEST(MemoryPool, GivesAsMuchAsItGaveBeforeFromOneSlabThatItKeeps) {
    MemoryPool pool;
    placesOf(pool, 500);
    const std::vector<char*> places = placesOf(pool, 500);
    for (std::size_t i = 1; i < places.size(); ++i) {
        EXPECT_EQ(places[i - 1] + 64, places[i]);
    }
    EXPECT_EQ(placesOf(pool, 500), places);
    EXPECT_EQ(placesOf(pool, 3), std::vector<char*>(places.begin(), places.begin() + 3));
}

TEST(MemoryPool, TakesMemoryBackInAnyOrder) {
    struct Block {
        unsigned char* memory;
        std::size_t size;
        unsigned char mark;
    };
    MemoryPool pool;
    std::mt19937 random(20260101);
    std::vector<Block> blocks;
    for (int step = 0; step < 20'000; ++step) {
        if (blocks.empty() || random() % 5 < 3) {
            const std::size_t size = 1 + random() % 300;
            auto* memory = static_cast<unsigned char*>(pool.allocate(size));
            const auto mark = static_cast<unsigned char>(random());
            std::memset(memory, mark, size);
            blocks.push_back({memory, size, mark});
        } else {
            std::swap(blocks[random() % blocks.size()], blocks.back());
            const Block block = blocks.back();
            blocks.pop_back();
            for (std::size_t i = 0; i < block.size; ++i) {
                ASSERT_EQ(block.memory[i], block.mark);
            }
            pool.deallocate(block.memory, block.size);
        }
    }
    for (const Block& block : blocks) {
        pool.deallocate(block.memory, block.size);
    }
}

}  // namespace
}  // namespace quorvane
