#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "quorvane/base/text/TextEncoding.h"

namespace quorvane::data {

/// Reads the next bytes of a file into a block; returns how many, and 0 at the end.
using BlockReader = std::function<std::size_t(std::span<char> block)>;

/// The text of a file, in UTF-8, of which only a part is in memory.
///
/// A byte order mark of UTF-8 or UTF-16 decides the encoding. Otherwise the choice does; `Auto` is
/// UTF-8 or Windows-1252 by the first block that is not ASCII. Bytes that are not UTF-8 in a text
/// that is stay as they are.
class RecordsText {
public:
    RecordsText(BlockReader read, EncodingChoice choice);

    /// The part that is in memory. Its characters may be changed.
    char* data() noexcept { return text_.data(); }
    std::size_t size() const noexcept { return text_.size(); }
    std::string_view view() const noexcept { return text_; }

    /// Appends the next block; false at the end of the file. Throws what the reader throws,
    /// and a `RecordError` for a text in UTF-16 that ends in the middle of a character.
    bool readMore();
    /// Removes the beginning of the part.
    void discard(std::size_t length) { text_.erase(0, length); }
    /// Removes what comes before a position if that is much, and moves the position to the same
    /// character.
    void discardBefore(std::size_t& position);

private:
    enum class Form : std::uint8_t { Unknown, Utf8, Windows1252, Utf16Little, Utf16Big };

    void requireWholeUtf16() const;
    void readBlock();
    void findMark();
    void append(std::string_view block);
    void appendUndecided(std::string_view block);
    void appendUtf16(std::string_view block);

    BlockReader read_;
    Form form_;
    bool isAtStart_ = true;
    std::string block_;
    // What the last block ended with and the next one completes.
    std::string rest_;
    std::string text_;
};

}  // namespace quorvane::data
