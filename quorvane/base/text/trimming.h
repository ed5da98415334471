#pragma once

#include <cstddef>
#include <string_view>

namespace quorvane {

/// The text without the one-byte characters at its ends that `isTrimmed` is true for.
template <class IsTrimmed>
std::string_view trimWhile(std::string_view text, IsTrimmed isTrimmed) {
    std::size_t first = 0;
    while (first < text.size() && isTrimmed(text[first])) {
        ++first;
    }
    std::size_t end = text.size();
    while (end > first && isTrimmed(text[end - 1])) {
        --end;
    }
    return {text.data() + first, end - first};
}

/// The text without any of the given one-byte characters at its ends.
inline std::string_view trimCharacters(std::string_view text, std::string_view characters) {
    return trimWhile(text, [characters](char character) {
        return characters.find(character) != std::string_view::npos;
    });
}

/// True for a blank, a tab, a carriage return and a line feed.
constexpr bool isWhitespace(char character) {
    // Most characters are greater than the blank.
    return character <= ' ' &&
           (character == ' ' || character == '\t' || character == '\r' || character == '\n');
}

/// The text without the blanks (0x20, nothing else) at its ends.
inline std::string_view trimBlanks(std::string_view text) {
    return trimWhile(text, [](char character) { return character == ' '; });
}

/// The text without the blanks, tabs, carriage returns and line feeds at its ends.
inline std::string_view trimWhitespace(std::string_view text) {
    return trimWhile(text, isWhitespace);
}

}  // namespace quorvane
