#include "data/decimalNumber.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <system_error>

#include "data/takeDigits.h"

namespace quorvane::data {

namespace {

constexpr std::size_t maxDigits = 400;

bool takeOneOf(std::string_view& text, std::string_view characters) {
    const bool isThere = !text.empty() && characters.find(text.front()) != std::string_view::npos;
    text.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

/// The exponent that ends a number; nothing for another text.
std::optional<int> takeExponent(std::string_view& text) {
    if (!takeOneOf(text, "eE")) {
        return 0;
    }
    const bool isNegative = text.starts_with('-');
    takeOneOf(text, "+-");
    const std::string_view digits = takeDigits(text);
    int exponent = 0;
    const auto [end, failure] =
        std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    if (digits.empty() || failure != std::errc()) {
        return std::nullopt;
    }
    return isNegative ? -exponent : exponent;
}

void dropLeadingZeros(std::string& whole) {
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    if (whole.empty()) {
        whole = "0";
    }
}

/// Moves the decimal sign.
void shift(DecimalNumber& number, int exponent) {
    const auto count = static_cast<std::size_t>(exponent < 0 ? -exponent : exponent);
    if (exponent > 0) {
        number.decimals.append(count - std::min(count, number.decimals.size()), '0');
        number.whole += number.decimals.substr(0, count);
        number.decimals.erase(0, count);
    } else {
        number.whole.insert(0, count - std::min(count, number.whole.size()), '0');
        number.decimals.insert(0, number.whole, number.whole.size() - count);
        number.whole.erase(number.whole.size() - count);
    }
}

/// Adds one to the last of the digits; true where that needs one more digit.
bool increment(std::string& digits) {
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return false;
        }
        *digit = '0';
    }
    return true;
}

bool isZero(const DecimalNumber& number) {
    return number.whole == "0" && number.decimals.find_first_not_of('0') == std::string::npos;
}

}  // namespace

std::optional<DecimalNumber> decimalNumber(std::string_view text) {
    DecimalNumber number;
    number.isNegative = text.starts_with('-');
    takeOneOf(text, "+-");
    number.whole = takeDigits(text);
    if (takeOneOf(text, ".")) {
        number.decimals = takeDigits(text);
    }
    if (number.whole.empty() && number.decimals.empty()) {
        return std::nullopt;
    }
    const std::optional<int> exponent = takeExponent(text);
    const std::size_t digits = number.whole.size() + number.decimals.size();
    if (!exponent || !text.empty() || digits > maxDigits ||
        static_cast<std::size_t>(std::abs(*exponent)) > maxDigits - digits) {
        return std::nullopt;
    }
    shift(number, *exponent);
    dropLeadingZeros(number.whole);
    return number;
}

DecimalNumber rounded(const DecimalNumber& number, std::size_t decimals) {
    DecimalNumber result = number;
    result.decimals.resize(decimals, '0');
    const bool roundsUp = number.decimals.size() > decimals && number.decimals[decimals] >= '5';
    if (roundsUp && increment(result.decimals) && increment(result.whole)) {
        result.whole.insert(0, 1, '1');
    }
    result.isNegative = result.isNegative && !isZero(result);
    return result;
}

}  // namespace quorvane::data
