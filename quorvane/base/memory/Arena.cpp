#include "quorvane/base/memory/Arena.h"

#include <algorithm>
#include <cstdint>
#include <new>

namespace quorvane {

Arena::~Arena() {
    while (blocks_) {
        Block* const previous = blocks_->previous;
        ::operator delete(blocks_);
        blocks_ = previous;
    }
}

void* Arena::allocate(std::size_t size, std::size_t alignment) {
    std::size_t padding = paddingFor(alignment);
    if (roomLeft_ < size || roomLeft_ - size < padding) {
        addBlock(size);
        padding = 0;
    }
    char* const memory = room_ + padding;
    room_ = memory + size;
    roomLeft_ -= padding + size;
    return memory;
}

/// How many bytes are left out before an object.
std::size_t Arena::paddingFor(std::size_t alignment) const noexcept {
    return -reinterpret_cast<std::uintptr_t>(room_) & (alignment - 1);
}

/// Begins a block with room for an object of this size.
void Arena::addBlock(std::size_t size) {
    const std::size_t room = std::max(size, nextBlock_);
    void* const memory = ::operator new(sizeof(Block) + room);
    blocks_ = new (memory) Block{blocks_};
    room_ = static_cast<char*>(memory) + sizeof(Block);
    roomLeft_ = room;
    nextBlock_ = room + room / 2;
}

}  // namespace quorvane
