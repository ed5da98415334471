#pragma once

#include <array>
#include <cstddef>

namespace quorvane {

/// Memory for the many small objects of one document. They lie beside each other in slabs, without
/// room lost between them and in the order in which they were made, which is that in which they are
/// mostly visited. What is given back serves the next object of its size. When everything is given
/// back, the slabs go, but the next objects get room for as many in one slab, and a slab that was
/// all the room there was stays for them, if that is little.
///
/// Not for use by two threads at once.
class MemoryPool {
public:
    MemoryPool() = default;
    MemoryPool(const MemoryPool&) = delete;
    MemoryPool& operator=(const MemoryPool&) = delete;
    /// All memory must have been given back.
    ~MemoryPool() { releaseSlabs(); }

    /// Memory of at least one byte, aligned for pointers.
    void* allocate(std::size_t size);
    /// Takes back memory that `allocate` returned for this size.
    void deallocate(void* memory, std::size_t size) noexcept;

private:
    struct Slab {
        Slab* next;
    };
    struct FreeBlock {
        FreeBlock* next;
    };

    static constexpr std::size_t granule = alignof(void*);
    static constexpr std::size_t largestBlock = 256;

    static std::size_t roundedUp(std::size_t size) noexcept {
        return (size + granule - 1) / granule * granule;
    }
    void* takeRoom(std::size_t size);
    void addSlab(std::size_t size);
    std::size_t slabSizeFor(std::size_t size) const noexcept;
    void useSlab() noexcept;
    void beginAnew() noexcept;
    void releaseSlabs() noexcept;

    // Blocks that were given back, by their size.
    std::array<FreeBlock*, largestBlock / granule + 1> free_{};
    char* room_ = nullptr;
    char* roomEnd_ = nullptr;
    Slab* slabs_ = nullptr;
    std::size_t slabBytes_ = 0;
    // The size of the first slab, after much the same was needed before; otherwise 0.
    std::size_t expectedBytes_ = 0;
    std::size_t blocksInUse_ = 0;
};

}  // namespace quorvane
