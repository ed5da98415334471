#pragma once

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quorvane {

/// Appends many short pieces to a long text. They are gathered in a small buffer first, where a
/// piece costs little more than the copying of its characters.
class TextOutput {
public:
    /// The text must outlive the output and be left alone until `flush`.
    explicit TextOutput(std::string& text) : text_(text) {}
    TextOutput(const TextOutput&) = delete;
    TextOutput& operator=(const TextOutput&) = delete;

    TextOutput& operator<<(std::string_view piece) {
        if (piece.size() > buffer_.size() - used_) {
            flush();
            if (piece.size() > buffer_.size()) {
                text_ += piece;
                return *this;
            }
        }
        used_ += piece.copy(buffer_.data() + used_, piece.size());
        return *this;
    }

    /// A literal, whose length the compiler knows.
    template <std::size_t size>
    TextOutput& operator<<(const char (&literal)[size]) {
        return *this << std::string_view(literal, size - 1);
    }

    /// The number in decimal, without padding.
    TextOutput& operator<<(std::int32_t number) {
        constexpr std::size_t longestNumber = 11;
        if (longestNumber > buffer_.size() - used_) {
            flush();
        }
        char* start = buffer_.data() + used_;
        used_ = static_cast<std::size_t>(std::to_chars(start, start + longestNumber, number).ptr -
                                         buffer_.data());
        return *this;
    }

    /// Hands on what was gathered. What is gathered at the end and not flushed is lost.
    void flush() {
        text_.append(buffer_.data(), used_);
        used_ = 0;
    }

private:
    std::string& text_;
    std::size_t used_ = 0;
    std::array<char, 8192> buffer_;
};

}  // namespace quorvane
