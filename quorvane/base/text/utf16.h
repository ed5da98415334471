#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "quorvane/base/text/utf8.h"

namespace quorvane {

// UTF-16 for systems and hosts that speak it, in units of two bytes of any type. A surrogate
// without its partner is kept in both directions, so that no text changes on its way through the
// library.

/// Number of UTF-16 units of a text.
inline std::size_t utf16Length(std::string_view text) {
    std::size_t length = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t runEnd = asciiRunEnd(text, at);
        length += runEnd - at;
        at = runEnd;
        if (at < text.size()) {
            const Utf8Character character = utf8CharacterAt(text, at);
            length += character.length == 4 ? 2 : 1;
            at += character.length;
        }
    }
    return length;
}

/// Writes the text as UTF-16 to where there is room for `utf16Length` units. A byte that is part of
/// no character becomes the character of its number.
template <class Unit>
void writeUtf16(std::string_view text, Unit* units) {
    const auto put = [&units](char32_t unit) { *units++ = static_cast<Unit>(unit); };
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t runEnd = asciiRunEnd(text, at);
        for (; at < runEnd; ++at) {
            put(static_cast<unsigned char>(text[at]));
        }
        if (at == text.size()) {
            break;
        }
        const Utf8Character character = utf8CharacterAt(text, at);
        at += character.length;
        if (character.code >= strayByte) {
            put(character.code - strayByte);
        } else if (character.code >= 0x10000) {
            put(0xD800 + ((character.code - 0x10000) >> 10));
            put(0xDC00 + ((character.code - 0x10000) & 0x3FF));
        } else {
            put(character.code);
        }
    }
}

/// The text as a UTF-16 string of that unit type.
template <class Unit>
std::basic_string<Unit> utf16FromUtf8(std::string_view text) {
    std::basic_string<Unit> units(utf16Length(text), Unit());
    writeUtf16(text, units.data());
    return units;
}

/// The text that UTF-16 units stand for.
template <class Unit>
std::string utf8FromUtf16(std::basic_string_view<Unit> units) {
    const auto isSurrogate = [&units](std::size_t at, char32_t first) {
        return at < units.size() && (static_cast<char32_t>(units[at]) & 0xFC00) == first;
    };
    std::string text;
    text.reserve(units.size());
    for (std::size_t at = 0; at < units.size(); ++at) {
        const auto unit = static_cast<char32_t>(units[at]);
        if (unit < 0x80) {
            text.push_back(static_cast<char>(unit));
        } else if (isSurrogate(at, 0xD800) && isSurrogate(at + 1, 0xDC00)) {
            ++at;
            appendUtf8(
                0x10000 + ((unit & 0x3FF) << 10) + (static_cast<char32_t>(units[at]) & 0x3FF),
                text);
        } else {
            appendUtf8(unit, text);
        }
    }
    return text;
}

}  // namespace quorvane
