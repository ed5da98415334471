#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/memory/MemoryPool.h"

namespace quorvane {

/// A text of the size of a pointer whose characters lie in the pool of its document. It does not
/// know the pool: its owner calls `clear` before it goes. Not for use by two threads at once.
class PooledText {
public:
    PooledText() = default;
    PooledText(const PooledText&) = delete;
    PooledText& operator=(const PooledText&) = delete;

    bool empty() const noexcept { return block_ == nullptr; }
    /// The characters, good until the text is changed.
    std::string_view view() const noexcept {
        return block_ ? std::string_view(block_->characters(), block_->length) : std::string_view();
    }
    std::string text() const { return std::string(view()); }

    /// Copies the characters; at most 4,294,967,295 bytes (error 6 beyond). A failure leaves the
    /// text as it was.
    void assign(std::string_view text, MemoryPool& pool);
    void clear(MemoryPool& pool) noexcept;

private:
    struct Block {
        std::uint32_t length;
        // The characters follow.
        char* characters() noexcept { return reinterpret_cast<char*>(this + 1); }
    };

    Block* block_ = nullptr;
};

}  // namespace quorvane
