#include "data/columnsNumber.h"

#include <algorithm>
#include <iterator>

#include "data/takeDigits.h"
#include "quorvane/base/text/asciiCharacters.h"

namespace quorvane::data {

namespace {

constexpr std::string_view minusSign = "\xE2\x88\x92";
constexpr std::string_view blanks[] = {" ", "\xC2\xA0", "\xE2\x80\xAF"};
constexpr std::string_view groupSigns[] = {" ", "\xC2\xA0", "\xE2\x80\xAF", "'", "\xE2\x80\x99"};
constexpr std::string_view units[] = {"€", "$", "£", "¥", "%", "‰"};
constexpr std::size_t currencyCode = 3;

bool isCapital(char character) {
    return character >= 'A' && character <= 'Z';
}

bool isUnit(std::string_view text) {
    return text.empty() || std::find(std::begin(units), std::end(units), text) != std::end(units) ||
           (text.size() == currencyCode && std::all_of(text.begin(), text.end(), isCapital));
}

std::string_view withoutBlanks(std::string_view text) {
    for (bool goesOn = true; goesOn;) {
        goesOn = false;
        for (const std::string_view blank : blanks) {
            if (!text.empty() && text.starts_with(blank)) {
                text.remove_prefix(blank.size());
                goesOn = true;
            }
            if (!text.empty() && text.ends_with(blank)) {
                text.remove_suffix(blank.size());
                goesOn = true;
            }
        }
    }
    return text;
}

/// Takes a sign off the beginning or the end, and returns it; empty if there is none.
std::string_view takeSign(std::string_view& before) {
    for (const std::string_view sign : {std::string_view("-"), std::string_view("+"), minusSign}) {
        if (before.ends_with(sign)) {
            before.remove_suffix(sign.size());
            return sign;
        }
        if (before.starts_with(sign)) {
            before.remove_prefix(sign.size());
            return sign;
        }
    }
    return {};
}

/// The sign with which a text goes on that can stand between groups; empty if it does not.
std::string_view groupSignAt(std::string_view text, char decimalSign) {
    const std::string_view other = decimalSign == '.' ? "," : ".";
    if (text.starts_with(other)) {
        return other;
    }
    for (const std::string_view sign : groupSigns) {
        if (text.starts_with(sign)) {
            return sign;
        }
    }
    return {};
}

}  // namespace

std::optional<WrittenNumber> writtenNumber(std::string_view text) {
    const auto first = std::find_if(text.begin(), text.end(), isAsciiDigit);
    if (first == text.end()) {
        return std::nullopt;
    }
    const auto last = std::find_if(text.rbegin(), text.rend(), isAsciiDigit).base();
    const auto begin = static_cast<std::size_t>(std::distance(text.begin(), first));
    const auto end = static_cast<std::size_t>(std::distance(text.begin(), last));
    WrittenNumber number;
    number.digits = text.substr(begin, end - begin);
    number.before = text.substr(0, begin);
    number.sign = takeSign(number.before);
    number.isNegative = !number.sign.empty() && number.sign != "+";
    number.after = text.substr(end);
    const bool isNumber =
        isUnit(withoutBlanks(number.before)) && isUnit(withoutBlanks(number.after));
    return isNumber ? std::optional(number) : std::nullopt;
}

bool haveOneUnit(const WrittenNumber& first, const WrittenNumber& second) {
    return withoutBlanks(first.before) == withoutBlanks(second.before) &&
           withoutBlanks(first.after) == withoutBlanks(second.after);
}

std::optional<std::string> plainNumber(const WrittenNumber& number, DecimalSign sign) {
    constexpr std::size_t groupSize = 3;
    const char decimalSign = sign == DecimalSign::Point ? '.' : ',';
    std::string_view rest = number.digits;
    const std::string_view first = takeDigits(rest);
    std::string plain = (number.isNegative ? "-" : "") + std::string(first);
    const std::string_view groupSign = groupSignAt(rest, decimalSign);
    while (!groupSign.empty() && rest.starts_with(groupSign)) {
        rest.remove_prefix(groupSign.size());
        const std::string_view group = takeDigits(rest);
        if (first.size() > groupSize || first.starts_with('0') || group.size() != groupSize) {
            return std::nullopt;
        }
        plain += group;
    }
    if (rest.starts_with(decimalSign)) {
        rest.remove_prefix(1);
        plain += "." + std::string(takeDigits(rest));
    }
    return rest.empty() ? std::optional(plain) : std::nullopt;
}

std::optional<DecimalSign> shownSign(std::string_view text) {
    const std::optional<WrittenNumber> number = writtenNumber(text);
    const bool hasPoint = number && plainNumber(*number, DecimalSign::Point);
    const bool hasComma = number && plainNumber(*number, DecimalSign::Comma);
    if (hasPoint == hasComma) {
        return std::nullopt;
    }
    return hasPoint ? DecimalSign::Point : DecimalSign::Comma;
}

bool isAmbiguousNumber(std::string_view text) {
    const std::optional<WrittenNumber> number = writtenNumber(text);
    return number && looksLikeNumber(text) && !shownSign(text) &&
           plainNumber(*number, DecimalSign::Point) != plainNumber(*number, DecimalSign::Comma);
}

bool looksLikeNumber(std::string_view text) {
    const std::optional<WrittenNumber> number = writtenNumber(text);
    if (!number || (number->digits.size() > 1 && number->digits[0] == '0' &&
                    isAsciiDigit(number->digits[1]))) {
        return false;
    }
    return plainNumber(*number, DecimalSign::Point) || plainNumber(*number, DecimalSign::Comma);
}

}  // namespace quorvane::data
