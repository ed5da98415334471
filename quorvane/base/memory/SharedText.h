#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace quorvane {

/// An unchangeable text of the size of a pointer: documents hold millions of short ones. Copies
/// share the characters. Not for use by two threads at once.
class SharedText {
public:
    SharedText() = default;
    /// Copies the characters; at most 4,294,967,295 bytes (error 6 beyond).
    explicit SharedText(std::string_view text);
    SharedText(const SharedText& other) noexcept;
    SharedText(SharedText&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
    SharedText& operator=(SharedText other) noexcept {
        std::swap(block_, other.block_);
        return *this;
    }
    ~SharedText();

    bool empty() const noexcept { return block_ == nullptr; }
    /// True when both are copies of one text, or empty.
    bool sharesWith(const SharedText& other) const noexcept { return block_ == other.block_; }
    /// The characters, good as long as this text or a copy of it lives.
    std::string_view view() const noexcept;
    std::string text() const { return std::string(view()); }

private:
    struct Block {
        std::uint32_t references;
        std::uint32_t length;
        // The characters follow.
        char* characters() noexcept { return reinterpret_cast<char*>(this + 1); }
    };

    Block* block_ = nullptr;
};

}  // namespace quorvane
