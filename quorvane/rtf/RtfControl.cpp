#include "quorvane/rtf/RtfControl.h"

#include <algorithm>
#include <string>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/rtf/RtfWord.h"

namespace quorvane {

namespace {

std::optional<int> hexDigit(char character) {
    if (isAsciiDigit(character)) {
        return character - '0';
    }
    const char lower = static_cast<char>(character | 0x20);
    return lower >= 'a' && lower <= 'f' ? std::optional<int>(lower - 'a' + 10) : std::nullopt;
}

/// The code of the character that a byte of Windows-1252 stands for.
char32_t codeOfByte(int byte) {
    return utf8CharacterAt(utf8FromCodePage1252(std::string(1, static_cast<char>(byte))), 0).code;
}

}  // namespace

bool isInvisible(char32_t code) {
    return code == 0xAD || (code >= 0x200B && code <= 0x200F) ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2060 && code <= 0x2064) ||
           code == 0xFEFF;
}

std::size_t binaryLengthAfter(const RtfControl& control) {
    const RtfWord* const word = findRtfWord(control.word);
    return word && word->role == RtfRole::Binary
               ? static_cast<std::size_t>(std::max(control.number.value_or(0), 0))
               : 0;
}

bool isRtfSymbol(char symbol) {
    // A backslash before a line end is a paragraph's end.
    return symbol != '\0' &&
           std::string_view("*'\\{}~-_|:\r\n").find(symbol) != std::string_view::npos;
}

void readRtfSymbol(std::string_view text, std::size_t backslash, RtfControl& control) {
    const std::size_t at = backslash + 1;
    control = {};
    if (at == text.size()) {
        control.isOpen = true;
        return;
    }
    control.symbol = text[at];
    control.length = 2;
    control.shownLength = 2;
    if (control.symbol == '\'') {
        while (control.shownLength < 4 && backslash + control.shownLength < text.size() &&
               hexDigit(text[backslash + control.shownLength])) {
            ++control.shownLength;
        }
        control.isOpen = control.shownLength < 4 && backslash + control.shownLength == text.size();
        control.length = control.shownLength == 4 ? 4 : 2;
    }
}

std::optional<char32_t> codeOf(const RtfControl& control, std::string_view text,
                               std::size_t backslash) {
    switch (control.symbol) {
        case '\'':
            return control.isBadEscape()
                       ? std::nullopt
                       : std::optional(codeOfByte(*hexDigit(text[backslash + 2]) * 16 +
                                                  *hexDigit(text[backslash + 3])));
        case '\\':
        case '{':
        case '}':
            return control.symbol;
        case '~':
            return 0xA0;
        case '-':
            return 0xAD;
        case '_':
            return 0x2011;
        default:
            break;
    }
    const RtfWord* const word = findRtfWord(control.word);
    return word && word->code != 0 ? std::optional(word->code) : std::nullopt;
}

std::optional<char> characterOf(const RtfControl& control, std::string_view text,
                                std::size_t backslash) {
    const auto ascii = [](char32_t code) -> std::optional<char> {
        if (isInvisible(code)) {
            return std::nullopt;
        }
        if (code < 0x20 || code == 0xA0) {
            return ' ';
        }
        return code < 0x7F ? static_cast<char>(code) : '?';
    };
    if (control.symbol == '_') {
        return '-';
    }
    if (control.symbol != '\0') {
        const std::optional<char32_t> code = codeOf(control, text, backslash);
        return code ? ascii(*code) : control.isBadEscape() ? std::optional('?') : std::nullopt;
    }
    const RtfWord* const word = findRtfWord(control.word);
    if (word && word->role == RtfRole::Unicode && control.number) {
        // Readers take the number's lowest 16 bits.
        return ascii(static_cast<char32_t>(*control.number) & 0xFFFFU);
    }
    return word && word->shown != '\0' ? std::optional<char>(word->shown) : std::nullopt;
}

}  // namespace quorvane
