#include "quorvane/rtf/RtfControl.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "quorvane/rtf/RtfWord.h"

namespace quorvane {

namespace {

constexpr bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

constexpr bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

std::optional<int> hexDigit(char character) {
    if (isDigit(character)) {
        return character - '0';
    }
    const char lower = static_cast<char>(character | 0x20);
    return lower >= 'a' && lower <= 'f' ? std::optional<int>(lower - 'a' + 10) : std::nullopt;
}

std::int32_t cutNumber(std::string_view digits) {
    std::int32_t number = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (result.ec != std::errc::result_out_of_range) {
        return number;
    }
    return digits.front() == '-' ? std::numeric_limits<std::int32_t>::min()
                                 : std::numeric_limits<std::int32_t>::max();
}

RtfControl symbolAt(std::string_view text, std::size_t backslash) {
    RtfControl control;
    const std::size_t at = backslash + 1;
    if (at == text.size()) {
        control.isOpen = true;
        return control;
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
    return control;
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

RtfControl rtfControlAt(std::string_view text, std::size_t backslash) {
    const char* const begin = text.data() + backslash;
    const char* const textEnd = text.data() + text.size();
    const auto limit = [&](const char* from, std::size_t length) {
        return from + std::min(length, static_cast<std::size_t>(textEnd - from));
    };
    const char* const wordBegin = begin + 1;
    const char* const wordLimit = limit(wordBegin, RtfControl::maxWordLength);
    const char* at = wordBegin;
    while (at != wordLimit && isLetter(*at)) {
        ++at;
    }
    if (at == wordBegin) {
        return symbolAt(text, backslash);
    }
    RtfControl control;
    control.word = {wordBegin, static_cast<std::size_t>(at - wordBegin)};
    const char* digits = at;
    if (digits != textEnd && *digits == '-') {
        ++digits;
    }
    const char* const numberLimit = limit(digits, RtfControl::maxNumberLength);
    const char* numberEnd = digits;
    while (numberEnd != numberLimit && isDigit(*numberEnd)) {
        ++numberEnd;
    }
    control.isOpen = numberEnd == textEnd;
    if (numberEnd != digits) {
        control.number = cutNumber({at, static_cast<std::size_t>(numberEnd - at)});
        at = numberEnd;
    }
    control.shownLength = static_cast<std::size_t>(at - begin);
    control.length = control.shownLength + (at != textEnd && *at == ' ' ? 1 : 0);
    return control;
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
    switch (control.symbol) {
        case '\'':
            return control.isBadEscape()
                       ? '?'
                       : ascii(static_cast<char32_t>(*hexDigit(text[backslash + 2]) * 16 +
                                                     *hexDigit(text[backslash + 3])));
        case '\\':
        case '{':
        case '}':
            return control.symbol;
        case '~':
            return ' ';
        case '_':
            return '-';
        default:
            break;
    }
    const RtfWord* const word = findRtfWord(control.word);
    if (word && word->role == RtfRole::Unicode && control.number) {
        // Readers take the number's lowest 16 bits.
        return ascii(static_cast<char32_t>(*control.number) & 0xFFFFU);
    }
    return word && word->shown != '\0' ? std::optional<char>(word->shown) : std::nullopt;
}

}  // namespace quorvane
