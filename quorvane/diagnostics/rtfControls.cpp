#include "quorvane/diagnostics/rtfControls.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <limits>

namespace quorvane {

namespace {

bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

std::optional<int> hexDigit(char character) {
    if (isDigit(character)) {
        return character - '0';
    }
    const int lower = std::tolower(static_cast<unsigned char>(character));
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

}  // namespace

bool isInvisible(char32_t code) {
    return code == 0xAD || (code >= 0x200B && code <= 0x200F) ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2060 && code <= 0x2064) ||
           code == 0xFEFF;
}

RtfControl rtfControlAt(std::string_view text, std::size_t backslash) {
    RtfControl control;
    std::size_t end = backslash + 1;
    while (end < text.size() && isLetter(text[end])) {
        ++end;
    }
    control.word = text.substr(backslash + 1, end - backslash - 1);
    if (control.word.empty()) {
        if (end == text.size()) {
            return control;
        }
        control.symbol = text[end];
        const bool isWhole = control.symbol == '\'' && end + 2 < text.size() &&
                             hexDigit(text[end + 1]) && hexDigit(text[end + 2]);
        control.length = isWhole ? 4 : 2;
        control.shownLength = control.length;
        return control;
    }
    const std::size_t sign = end < text.size() && text[end] == '-' ? 1 : 0;
    std::size_t numberEnd = end + sign;
    while (numberEnd < text.size() && isDigit(text[numberEnd])) {
        ++numberEnd;
    }
    if (numberEnd > end + sign) {
        control.number = cutNumber(text.substr(end, numberEnd - end));
        end = numberEnd;
    }
    control.shownLength = end - backslash;
    control.length = control.shownLength + (end < text.size() && text[end] == ' ' ? 1 : 0);
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
    if (control.symbol == '\'') {
        return control.length == 4
                   ? ascii(static_cast<char32_t>(*hexDigit(text[backslash + 2]) * 16 +
                                                 *hexDigit(text[backslash + 3])))
                   : '?';
    }
    switch (control.symbol) {
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
    if (control.word == "u" && control.number) {
        // Readers take the number's lowest 16 bits.
        return ascii(static_cast<char32_t>(*control.number) & 0xFFFFU);
    }
    return control.word == "tab" || control.word == "line" || control.word == "par"
               ? std::optional<char>(' ')
               : std::nullopt;
}

std::optional<std::string_view> InlineTokens::nameAt(std::size_t open) const {
    const std::size_t end = text_.find_first_of("=<>", open + 1);
    const bool isToken = end != std::string_view::npos && text_[end] == '=' &&
                         text_[open + 1] >= 'A' && text_[open + 1] <= 'z' &&
                         lastClose_ != std::string_view::npos && end < lastClose_;
    return isToken ? std::optional<std::string_view>(text_.substr(open + 1, end - open - 1))
                   : std::nullopt;
}

}  // namespace quorvane
