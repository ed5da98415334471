#include "quorvane/base/memory/MemoryPool.h"

#include <algorithm>
#include <new>

#include "quorvane/base/memory/largePages.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#endif

namespace quorvane {

namespace {

// So much is taken object by object: a small document has no slab that it does not fill.
constexpr std::size_t bytesWithoutSlabs = 1024;
constexpr std::size_t smallestSlab = 1024;
// A new slab is this part of all that there are, so that little of it can stay unused.
constexpr std::size_t slabShare = 8;
// So much stays reserved for what comes after all was given back.
constexpr std::size_t maxKept = std::size_t{64} * 1024;
// Large enough for large pages where addresses are not scarce; small where they are.
constexpr std::size_t largestSlab = std::size_t{sizeof(void*) > 4 ? 4096 : 256} * 1024;

// The address sanitizer learns which parts of a slab nobody may touch.
#if defined(__SANITIZE_ADDRESS__)
void forbidUse(void* start, std::size_t size) noexcept {
    __asan_poison_memory_region(start, size);
}
void allowUse(void* start, std::size_t size) noexcept {
    __asan_unpoison_memory_region(start, size);
}
#else
void forbidUse(void*, std::size_t) noexcept {}
void allowUse(void*, std::size_t) noexcept {}
#endif

}  // namespace

void* MemoryPool::allocate(std::size_t size) {
    if (size > largestBlock) {
        return ::operator new(size);
    }
    const std::size_t blockSize = roundedUp(size);
    FreeBlock*& free = free_[blockSize / granule];
    void* memory = free;
    if (memory) {
        allowUse(memory, blockSize);
        free = free->next;
    } else {
        memory = takeRoom(blockSize);
    }
    ++blocksInUse_;
    return memory;
}

void MemoryPool::deallocate(void* memory, std::size_t size) noexcept {
    if (size > largestBlock) {
        ::operator delete(memory);
        return;
    }
    if (--blocksInUse_ == 0) {
        beginAnew();
        return;
    }
    const std::size_t blockSize = roundedUp(size);
    FreeBlock*& free = free_[blockSize / granule];
    free = new (memory) FreeBlock{free};
    forbidUse(memory, blockSize);
}

void* MemoryPool::takeRoom(std::size_t size) {
    if (static_cast<std::size_t>(roomEnd_ - room_) < size) {
        addSlab(size);
    }
    void* memory = room_;
    allowUse(memory, size);
    room_ += size;
    return memory;
}

std::size_t MemoryPool::slabSizeFor(std::size_t size) const noexcept {
    if (!slabs_) {
        return std::max(size, expectedBytes_);
    }
    return slabBytes_ < bytesWithoutSlabs
               ? size
               : std::clamp(roundedUp(slabBytes_ / slabShare), smallestSlab, largestSlab);
}

void MemoryPool::addSlab(std::size_t size) {
    const std::size_t slabSize = slabSizeFor(size);
    void* memory = ::operator new(sizeof(Slab) + slabSize);
    preferLargePages(memory, sizeof(Slab) + slabSize);
    slabs_ = new (memory) Slab{slabs_};
    slabBytes_ += slabSize;
    roomEnd_ = reinterpret_cast<char*>(slabs_ + 1) + slabSize;
    useSlab();
}

/// Takes room from the beginning of the newest slab, which is empty.
void MemoryPool::useSlab() noexcept {
    room_ = reinterpret_cast<char*>(slabs_ + 1);
    forbidUse(room_, static_cast<std::size_t>(roomEnd_ - room_));
}

/// Nothing is in use any more.
void MemoryPool::beginAnew() noexcept {
    const std::size_t bytes = slabBytes_ <= maxKept ? slabBytes_ : 0;
    if (bytes > 0 && !slabs_->next) {
        free_ = {};
        useSlab();
        return;
    }
    releaseSlabs();
    expectedBytes_ = bytes;
}

void MemoryPool::releaseSlabs() noexcept {
    while (slabs_) {
        Slab* next = slabs_->next;
        ::operator delete(slabs_);
        slabs_ = next;
    }
    free_ = {};
    room_ = nullptr;
    roomEnd_ = nullptr;
    slabBytes_ = 0;
}

}  // namespace quorvane
