#pragma once

#include <cstddef>

namespace quorvane {

/// Memory for objects that are released together. They lie beside each other in few blocks, each of
/// which is half as large again as the one before.
///
/// Not for use by two threads at once.
class Arena {
public:
    /// `firstBlock` is the size of the first block, which is taken with the first object.
    explicit Arena(std::size_t firstBlock) noexcept : nextBlock_(firstBlock) {}
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;
    /// Releases the memory, and calls no destructor.
    ~Arena();

    /// Memory of at least one byte. The alignment is at most that of `std::max_align_t`.
    void* allocate(std::size_t size, std::size_t alignment);

private:
    struct alignas(std::max_align_t) Block {
        Block* previous;
    };

    std::size_t paddingFor(std::size_t alignment) const noexcept;
    void addBlock(std::size_t size);

    std::size_t nextBlock_;
    std::size_t roomLeft_ = 0;
    char* room_ = nullptr;
    Block* blocks_ = nullptr;
};

/// Lets a container of the standard library have its elements in an arena, which must outlive it.
template <class Element>
class ArenaAllocator {
public:
    using value_type = Element;

    // Containers convert between the allocators of their elements and of their own parts.
    ArenaAllocator(Arena& arena) noexcept : arena_(&arena) {}
    template <class Other>
    ArenaAllocator(const ArenaAllocator<Other>& other) noexcept : arena_(&other.arena()) {}

    Element* allocate(std::size_t count) {
        // An element can be a pointer: NOLINTNEXTLINE(bugprone-sizeof-expression)
        return static_cast<Element*>(arena_->allocate(count * sizeof(Element), alignof(Element)));
    }
    void deallocate(Element*, std::size_t) noexcept {}

    Arena& arena() const noexcept { return *arena_; }
    template <class Other>
    bool operator==(const ArenaAllocator<Other>& other) const noexcept {
        return arena_ == &other.arena();
    }

private:
    Arena* arena_;
};

}  // namespace quorvane
