#include "quorvane/base/text/numberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <system_error>

#include "quorvane/base/text/asciiCharacters.h"
#include "quorvane/base/text/doubleText.h"

namespace quorvane {

namespace {

std::size_t countDigits(std::string_view text) {
    std::size_t count = 0;
    while (count < text.size() && isAsciiDigit(text[count])) {
        ++count;
    }
    return count;
}

// A double holds every whole number of so many digits.
bool isShortWhole(std::string_view text) {
    constexpr std::size_t exactDigits = 15;
    return !text.empty() && text.size() <= exactDigits && countDigits(text) == text.size();
}

bool isSign(char character) {
    return character == '+' || character == '-';
}

// The parts of a number's text; views into it.
struct NumberParts {
    bool isNegative = false;
    /// Digits and point.
    std::string_view mantissa;
    /// Digits and sign; empty without an exponent.
    std::string_view exponent;
};

std::optional<NumberParts> splitNumber(std::string_view text) {
    NumberParts parts;
    if (!text.empty() && isSign(text.front())) {
        parts.isNegative = text.front() == '-';
        text.remove_prefix(1);
    }
    const std::size_t wholeDigits = countDigits(text);
    std::size_t mantissaLength = wholeDigits;
    std::size_t fractionDigits = 0;
    if (wholeDigits < text.size() && text[wholeDigits] == '.') {
        fractionDigits = countDigits(text.substr(wholeDigits + 1));
        mantissaLength += 1 + fractionDigits;
    }
    if (wholeDigits + fractionDigits == 0) {
        return std::nullopt;
    }
    parts.mantissa = text.substr(0, mantissaLength);
    text.remove_prefix(mantissaLength);
    if (text.empty()) {
        return parts;
    }
    if (text.front() != 'e' && text.front() != 'E') {
        return std::nullopt;
    }
    parts.exponent = text.substr(1);
    const std::size_t signLength =
        !parts.exponent.empty() && isSign(parts.exponent.front()) ? 1 : 0;
    const std::string_view exponentDigits = parts.exponent.substr(signLength);
    if (exponentDigits.empty() || countDigits(exponentDigits) != exponentDigits.size()) {
        return std::nullopt;
    }
    return parts;
}

// The exponent as a number; the greatest or smallest there is for one beyond the range.
std::int64_t exponentValue(std::string_view exponent) {
    if (exponent.empty()) {
        return 0;
    }
    const bool isNegative = exponent.front() == '-';
    if (exponent.front() == '+') {
        exponent.remove_prefix(1);
    }
    std::int64_t value = 0;
    const auto [end, problem] =
        std::from_chars(exponent.data(), exponent.data() + exponent.size(), value);
    if (problem != std::errc{}) {
        return isNegative ? INT64_MIN / 2 : INT64_MAX / 2;
    }
    return value;
}

// Whether a number that no double can hold is too small, rather than too great.
bool isTooSmall(const NumberParts& parts) {
    const std::size_t point = std::min(parts.mantissa.find('.'), parts.mantissa.size());
    const std::size_t firstDigit = parts.mantissa.find_first_not_of(".0");
    const auto magnitude = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(firstDigit);
    return magnitude + exponentValue(parts.exponent) < 0;
}

}  // namespace

bool readNumber(std::string_view text, double& number) {
    if (isShortWhole(text)) {
        std::int64_t whole = 0;
        std::from_chars(text.data(), text.data() + text.size(), whole);
        number = static_cast<double>(whole);
        return true;
    }
    const std::optional<NumberParts> parts = splitNumber(text);
    if (!parts) {
        return false;
    }
    double magnitude = 0;
    const auto sign = static_cast<std::size_t>(parts->mantissa.data() - text.data());
    if (!readDouble(text.substr(sign), magnitude)) {
        if (!isTooSmall(*parts)) {
            return false;
        }
        magnitude = 0;
    }
    number = parts->isNegative ? -magnitude : magnitude;
    return true;
}

std::string numberText(double number) {
    if (number == 0) {
        return "0";
    }
    const double magnitude = std::fabs(number);
    return magnitude >= 1e-5 && magnitude < 1e15 ? plainDouble(number) : doubleWithExponent(number);
}

}  // namespace quorvane
