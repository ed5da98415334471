#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "quorvane/base/text/asciiCharacters.h"

namespace quorvane {

/// A control word or symbol of a text.
struct RtfControl {
    /// Its letters, `maxWordLength` at most; empty for a symbol.
    std::string_view word;
    /// The number after the word, cut to 32 bits.
    std::optional<std::int32_t> number;
    /// The character after the backslash of a symbol; NUL where the text ends there.
    char symbol = '\0';
    /// Bytes from the backslash on: with the number and the blank that end a word, with both digits
    /// of an escape `\'e9` or with none.
    std::size_t length = 1;
    /// Bytes of the word with its number, without that blank; with the one digit that an escape has
    /// where the other one is missing.
    std::size_t shownLength = 1;
    /// True where the text ends before the control does for certain.
    bool isOpen = false;

    static constexpr std::size_t maxWordLength = 255;
    static constexpr std::size_t maxNumberLength = 255;
    /// No control is longer.
    static constexpr std::size_t maxLength = maxWordLength + maxNumberLength + 3;

    /// True for an escape `\'` that two hexadecimal digits do not follow.
    bool isBadEscape() const { return symbol == '\'' && length < 4; }
};

/// Reads the symbol at a backslash that no letter follows.
void readRtfSymbol(std::string_view text, std::size_t backslash, RtfControl& control);

/// Reads the control at a backslash of the text.
inline void readRtfControl(std::string_view text, std::size_t backslash, RtfControl& control) {
    const char* const begin = text.data() + backslash;
    const char* const textEnd = text.data() + text.size();
    const auto limit = [textEnd](const char* from, std::size_t length) {
        return from + std::min(length, static_cast<std::size_t>(textEnd - from));
    };
    const char* const wordBegin = begin + 1;
    const char* const wordLimit = limit(wordBegin, RtfControl::maxWordLength);
    const char* at = wordBegin;
    while (at != wordLimit && isAsciiLetter(*at)) {
        ++at;
    }
    if (at == wordBegin) {
        readRtfSymbol(text, backslash, control);
        return;
    }
    control.word = {wordBegin, static_cast<std::size_t>(at - wordBegin)};
    control.symbol = '\0';
    const bool isNegative = at != textEnd && *at == '-';
    const char* const digits = isNegative ? at + 1 : at;
    const char* const numberLimit = limit(digits, RtfControl::maxNumberLength);
    const char* numberEnd = digits;
    // Far over 32 bits it stays as it is.
    std::int64_t number = 0;
    while (numberEnd != numberLimit && isAsciiDigit(*numberEnd)) {
        number = number < 10'000'000'000 ? number * 10 + (*numberEnd - '0') : number;
        ++numberEnd;
    }
    control.isOpen = numberEnd == textEnd;
    if (numberEnd != digits) {
        control.number = static_cast<std::int32_t>(
            std::clamp<std::int64_t>(isNegative ? -number : number, INT32_MIN, INT32_MAX));
        at = numberEnd;
    } else {
        control.number.reset();
    }
    control.shownLength = static_cast<std::size_t>(at - begin);
    control.length = control.shownLength + (at != textEnd && *at == ' ' ? 1 : 0);
}

/// The control at a backslash of the text.
inline RtfControl rtfControlAt(std::string_view text, std::size_t backslash) {
    RtfControl control;
    readRtfControl(text, backslash, control);
    return control;
}

/// How many bytes after the control are binary data, not RTF: the number of `\bin`.
std::size_t binaryLengthAfter(const RtfControl& control);

/// True for the character of a control symbol that RTF has. After any other one readers drop the
/// backslash, the character, or both.
bool isRtfSymbol(char symbol);

/// True for a character that is invisible and takes up no room: the soft hyphen, those of zero
/// width, and those that set the direction of writing.
bool isInvisible(char32_t code);

/// The code of the character that a control means, where it is the same in every document; nothing
/// for `\u`, for controls that are not characters, and for fields such as the number of the page.
/// `\tab` is U+0009 and `\line` is U+000A.
std::optional<char32_t> codeOf(const RtfControl& control, std::string_view text,
                               std::size_t backslash);

/// The character that a control means, if it is in ASCII; '?' for any other character; nothing when
/// the control is not a character or its character is invisible.
std::optional<char> characterOf(const RtfControl& control, std::string_view text,
                                std::size_t backslash);

}  // namespace quorvane
