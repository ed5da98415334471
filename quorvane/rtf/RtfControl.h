#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

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

/// The control at a backslash of the text.
RtfControl rtfControlAt(std::string_view text, std::size_t backslash);

/// How many bytes after the control are binary data and no RTF: the number of `\bin`.
std::size_t binaryLengthAfter(const RtfControl& control);

/// True for the character of a control symbol that RTF has. After any other one readers drop the
/// backslash, the character, or both.
bool isRtfSymbol(char symbol);

/// True for a character that is not to be seen and takes up no room: the soft hyphen, those of zero
/// width, and those that set the direction of writing.
bool isInvisible(char32_t code);

/// The character that a control stands for, where it is one of ASCII; '?' for one that is not, and
/// nothing where the control is no character or one that is invisible.
std::optional<char> characterOf(const RtfControl& control, std::string_view text,
                                std::size_t backslash);

}  // namespace quorvane
