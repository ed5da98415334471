#include "quorvane/base/memory/PooledText.h"

#include <cstring>
#include <limits>
#include <new>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

void PooledText::assign(std::string_view text, MemoryPool& pool) {
    if (text.empty()) {
        clear(pool);
        return;
    }
    if (text.size() > std::numeric_limits<std::uint32_t>::max()) {
        raise(RunTimeError::Overflow);
    }
    void* memory = pool.allocate(sizeof(Block) + text.size());
    Block* fresh = new (memory) Block{static_cast<std::uint32_t>(text.size())};
    std::memcpy(fresh->characters(), text.data(), text.size());
    clear(pool);
    block_ = fresh;
}

void PooledText::clear(MemoryPool& pool) noexcept {
    if (block_) {
        pool.deallocate(block_, sizeof(Block) + block_->length);
    }
    block_ = nullptr;
}

}  // namespace quorvane
