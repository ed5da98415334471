#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quorvane {

/// A control word or symbol of a text.
struct RtfControl {
    /// Its letters; empty for a symbol.
    std::string_view word;
    /// The number behind the word, cut to 32 bits.
    std::optional<std::int32_t> number;
    /// The character behind the backslash of a symbol; NUL where the text ends there.
    char symbol = '\0';
    /// Bytes from the backslash on: with the number and the blank that end a word, with the digits
    /// of an escape `\'e9` where they are whole.
    std::size_t length = 1;
    /// Bytes of the word with its number, without that blank.
    std::size_t shownLength = 1;
};

/// The control at a backslash of the text.
RtfControl rtfControlAt(std::string_view text, std::size_t backslash);

/// True for a character that is not to be seen and takes up no room: the soft hyphen, those of zero
/// width, and those that set the direction of writing.
bool isInvisible(char32_t code);

/// The character that a control stands for, where it is one of ASCII; '?' for one that is none of
/// them, and nothing where the control is no character or one that is invisible.
std::optional<char> characterOf(const RtfControl& control, std::string_view text,
                                std::size_t backslash);

/// The names of the inline styles of a text, which stand in tokens such as `<strong=Total>`.
class InlineTokens {
public:
    explicit InlineTokens(std::string_view text) : text_(text), lastClose_(text.rfind('>')) {}

    /// The name in the token that begins at a "<"; nothing where none does.
    std::optional<std::string_view> nameAt(std::size_t open) const;

private:
    std::string_view text_;
    std::size_t lastClose_;
};

}  // namespace quorvane
