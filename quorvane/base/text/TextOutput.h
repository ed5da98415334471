#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorvane {

/// A text that is written piece by piece. The pieces are gathered in a buffer, where a short one
/// costs little more than the copying of its characters. A derived class takes what is in the
/// buffer whenever it is full.
class TextOutput {
public:
    TextOutput(const TextOutput&) = delete;
    TextOutput& operator=(const TextOutput&) = delete;

    TextOutput& operator<<(std::string_view piece) {
        if (piece.size() > room()) {
            writeBeyondRoom(piece);
        } else {
            append(piece.data(), piece.size());
        }
        return *this;
    }

    /// A literal, whose length the compiler knows.
    template <std::size_t size>
    TextOutput& operator<<(const char (&literal)[size]) {
        if (size - 1 > room()) {
            writeBeyondRoom({literal, size - 1});
        } else {
            append(literal, size - 1);
        }
        return *this;
    }

    /// The number in decimal, without padding.
    TextOutput& operator<<(std::int32_t number) {
        constexpr std::size_t longestNumber = 11;
        if (longestNumber > room()) {
            flush();
        }
        next_ = std::to_chars(next_, next_ + longestNumber, number).ptr;
        return *this;
    }

    /// Hands on what was gathered. What is gathered at the end and not flushed is lost.
    void flush() {
        const std::string_view gathered = buffered();
        next_ = start_;
        if (!gathered.empty()) {
            take(gathered);
        }
    }

    /// States how many parts of equal size, such as rows, the text has, and how many of them are
    /// written. Whoever keeps the text can then make room for the rest.
    void setProgress(std::size_t written, std::size_t all) noexcept {
        partsWritten_ = written;
        parts_ = all;
    }

protected:
    TextOutput() = default;
    ~TextOutput() = default;

    /// Sets the buffer, before anything is written. It must have room for at least one number.
    void setBuffer(char* buffer, std::size_t size) noexcept {
        start_ = buffer;
        next_ = buffer;
        end_ = buffer + size;
    }

    /// Takes the next stretch of the text. It is as long as the buffer or shorter, except for a
    /// single piece that is longer. Between two stretches no character is cut that is not cut
    /// between two pieces.
    virtual void take(std::string_view text) = 0;

    void discardBuffered() noexcept { next_ = start_; }

    /// What was gathered and not taken yet.
    std::string_view buffered() const noexcept {
        return {start_, static_cast<std::size_t>(next_ - start_)};
    }

    std::size_t partsWritten() const noexcept { return partsWritten_; }
    std::size_t parts() const noexcept { return parts_; }

private:
    std::size_t room() const noexcept { return static_cast<std::size_t>(end_ - next_); }

    void append(const char* piece, std::size_t size) noexcept {
        next_ = std::copy_n(piece, size, next_);
    }

    void writeBeyondRoom(std::string_view piece) {
        flush();
        if (piece.size() > room()) {
            take(piece);
        } else {
            append(piece.data(), piece.size());
        }
    }

    char* start_ = nullptr;
    char* next_ = nullptr;
    char* end_ = nullptr;
    std::size_t partsWritten_ = 0;
    std::size_t parts_ = 0;
};

}  // namespace quorvane
