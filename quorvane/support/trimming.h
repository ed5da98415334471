#pragma once

#include <cstddef>
#include <string_view>

namespace quorvane {

/// The text without any of the given one-byte characters at its ends.
inline std::string_view trimCharacters(std::string_view text, std::string_view characters) {
    const std::size_t first = text.find_first_not_of(characters);
    if (first == std::string_view::npos) {
        return text.substr(0, 0);
    }
    return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

/// The text without the blanks (0x20, nothing else) at its ends.
inline std::string_view TrimEx(std::string_view text) {
    return trimCharacters(text, " ");
}

/// The text without the blanks, tabs, carriage returns and line feeds at its ends.
inline std::string_view trimWhitespace(std::string_view text) {
    return trimCharacters(text, " \t\r\n");
}

}  // namespace quorvane
