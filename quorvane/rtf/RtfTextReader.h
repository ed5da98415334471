#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "quorvane/rtf/RtfLexer.h"

namespace quorvane {

/// A part of the RTF of a text.
struct RtfTextPart {
    enum class Kind : std::uint8_t {
        /// A character, written as it is, as an escape, as a word or as `\u`.
        Character,
        /// Any other control word or symbol.
        Control,
        Open,
        Close,
    };

    Kind kind = Kind::Character;
    /// Of a character.
    char32_t code = 0;
    /// What is written, with the blank that ends a word; of `\u` without the characters for readers
    /// that do not know it.
    std::size_t begin = 0;
    std::size_t end = 0;
    RtfControl control = {};

    /// True for a character that is written as it is.
    bool isPlain() const { return kind == Kind::Character && control.length == 0; }
};

/// Reads the RTF of a text, such as that of a paragraph, with its characters as Unicode. The text
/// begins as in the library's documents, where nothing stands after a `\u` for other readers. Bytes
/// that are not UTF-8 are characters as `utf8CharacterAt` has them.
class RtfTextReader {
public:
    /// The text must outlive the reader and its parts.
    explicit RtfTextReader(std::string_view rtf);

    /// The next part; nothing after the last one. `\uc` and what readers of `\u` pass over are left
    /// out.
    std::optional<RtfTextPart> next();

private:
    std::optional<RtfTextPart> nextWritten();
    RtfTextPart plainCharacter();
    RtfTextPart partOfControl(std::size_t begin) const;
    bool passesOver(const RtfTextPart& part);
    std::optional<RtfTextPart> joined(const RtfTextPart& part);

    std::string_view rtf_;
    RtfLexer lexer_;
    // The end of the run of plain characters that is being read, and where it goes on.
    std::size_t plainAt_ = 0;
    std::size_t plainEnd_ = 0;
    // How many characters follow a \u for other readers, in the group and those around it.
    std::vector<std::int64_t> lengths_{0};
    std::int64_t toPassOver_ = 0;
    // The first half of a pair of \u, and the part after one that stands alone.
    std::optional<RtfTextPart> high_;
    std::optional<RtfTextPart> waiting_;
};

}  // namespace quorvane
