// Memory that a cell and its paragraph of the standard job take beyond the characters of the text.
// All heap memory is counted, and two pointers more for each block: what heaps take themselves.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <new>

#include "bench/standardJob.h"

namespace {

constexpr std::size_t costOfABlock = 2 * sizeof(void*);
constexpr std::size_t headerSize = alignof(std::max_align_t);

std::size_t bytesInUse = 0;

void* counted(std::size_t size) {
    auto* block = static_cast<char*>(std::malloc(headerSize + size));
    if (!block) {
        throw std::bad_alloc();
    }
    *reinterpret_cast<std::size_t*>(block) = size;
    bytesInUse += size + costOfABlock;
    return block + headerSize;
}

void release(void* memory) noexcept {
    if (memory) {
        char* block = static_cast<char*>(memory) - headerSize;
        bytesInUse -= *reinterpret_cast<std::size_t*>(block) + costOfABlock;
        std::free(block);
    }
}

}  // namespace

void* operator new(std::size_t size) {
    return counted(size);
}

void operator delete(void* memory) noexcept {
    release(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    release(memory);
}

int main() {
    using namespace quorvane::bench;
    constexpr std::int32_t rows = 100000;
    const std::size_t before = bytesInUse;
    const auto document = standardDocument(rows);
    const double perCell = static_cast<double>(bytesInUse - before) / (rows * cellsPerRow);
    std::printf("- Bytes per cell and its paragraph beyond the text, %d-bit build: %.1f\n",
                static_cast<int>(8 * sizeof(void*)), perCell - static_cast<double>(characterCount));
    return 0;
}
