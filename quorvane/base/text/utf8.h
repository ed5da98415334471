#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvane {

/// One character of a UTF-8 text.
struct Utf8Character {
    /// The code point, or `strayByte` plus the byte for a byte that belongs to no character.
    char32_t code = 0;
    /// Bytes that the character takes, at least 1.
    std::size_t length = 1;
};

/// Where the codes of bytes begin that belong to no well-formed character: beyond all code points.
inline constexpr char32_t strayByte = 0x110000;

/// The character that begins at a position within the text. A surrogate in its three-byte form is a
/// character like any other; every byte that is part of nothing well-formed is one of its own.
Utf8Character utf8CharacterAt(std::string_view text, std::size_t position);

/// Appends a character, given by its code as `utf8CharacterAt` returns it.
void appendUtf8(char32_t code, std::string& text);

/// Number of characters, as `utf8CharacterAt` counts them.
std::size_t characterCount(std::string_view text);

/// End of the run of ASCII bytes that begins at the position; the position itself when none does.
std::size_t asciiRunEnd(std::string_view text, std::size_t position);

}  // namespace quorvane
