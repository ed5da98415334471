#include "data/sortKey.h"

#include <algorithm>
#include <cstddef>

#include "data/decimalNumber.h"
#include "data/foldedText.h"
#include "data/refuse.h"

namespace quorvane::data {

namespace {

// What a key begins with.
constexpr char numberKind = '\1';
constexpr char dateKind = '\2';
constexpr char textKind = '\3';
constexpr char emptyKind = '\xFF';

void complement(std::string& key, std::size_t begin) {
    std::transform(key.begin() + static_cast<std::ptrdiff_t>(begin), key.end(),
                   key.begin() + static_cast<std::ptrdiff_t>(begin),
                   [](char byte) { return static_cast<char>(~byte); });
}

/// Appends a number such as "-1250.00": its sign, how many digits are before the point, and the
/// digits.
void appendNumber(std::string_view plain, std::string& key) {
    constexpr int lengthBytes = 4;
    constexpr int byteBits = 8;
    const bool isNegative = plain.starts_with('-');
    plain.remove_prefix(isNegative ? 1 : 0);
    const std::size_t point = std::min(plain.find('.'), plain.size());
    std::string_view whole = plain.substr(0, point);
    std::string_view decimals = plain.substr(std::min(point + 1, plain.size()));
    whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
    decimals = decimals.substr(0, decimals.find_last_not_of('0') + 1);
    if (whole.empty() && decimals.empty()) {
        key += '\1';
        return;
    }
    key += isNegative ? '\0' : '\2';
    const std::size_t begin = key.size();
    for (int byte = lengthBytes - 1; byte >= 0; --byte) {
        key += static_cast<char>((whole.size() >> (byte * byteBits)) & 0xFFU);
    }
    key += whole;
    key += decimals;
    key += '\0';
    if (isNegative) {
        complement(key, begin);
    }
}

}  // namespace

void SortColumn::look(std::string_view value) {
    if (!sign_) {
        sign_ = shownSign(value);
        if (ambiguousNumber_.empty() && isAmbiguousNumber(value)) {
            ambiguousNumber_ = value;
        }
    }
    if (!order_) {
        order_ = shownDateOrder(value);
        if (ambiguousDate_.empty() && isAmbiguousDate(value)) {
            ambiguousDate_ = value;
        }
    }
}

void SortColumn::decide(const std::string& name, const Locale* locale) {
    if (!sign_ && locale) {
        sign_ = locale->decimalSign();
    }
    if (!order_ && locale) {
        order_ = locale->dateOrder;
    }
    const std::string& ambiguous = !sign_ && !ambiguousNumber_.empty() ? ambiguousNumber_
                                   : !order_                           ? ambiguousDate_
                                                                       : std::string();
    if (!ambiguous.empty()) {
        refuse("The field \"" + name + "\" cannot be sorted: \"" + ambiguous +
               "\" can be read in two ways. Choose one with a locale, such as en-US or de-DE.");
    }
}

void SortColumn::append(std::string_view value, std::string& key) const {
    if (value.empty()) {
        key += emptyKind;
        return;
    }
    const std::size_t begin = key.size();
    appendAscending(value, key);
    if (isDescending_) {
        complement(key, begin);
    }
}

/// The number as "-1250.00"; nothing for another text.
std::optional<std::string> SortColumn::plain(std::string_view value) const {
    if (looksLikeNumber(value)) {
        return plainNumber(*writtenNumber(value), sign_.value_or(DecimalSign::Point));
    }
    const bool hasExponent = areJson_ && value.find_first_of("eE") != std::string_view::npos;
    const std::optional<DecimalNumber> number =
        hasExponent ? decimalNumber(value) : std::optional<DecimalNumber>();
    return number ? std::optional((number->isNegative ? "-" : "") + number->whole + "." +
                                  number->decimals)
                  : std::nullopt;
}

void SortColumn::appendAscending(std::string_view value, std::string& key) const {
    if (const std::optional<std::string> number = plain(value)) {
        key += numberKind;
        appendNumber(*number, key);
        return;
    }
    if (std::optional<std::string> date =
            isoDate(value, order_.value_or(DateOrder::YearMonthDay))) {
        std::replace(date->begin(), date->end(), 'T', ' ');
        key += dateKind + *date + '\0';
        return;
    }
    key += textKind + foldedText(value) + '\0';
}

}  // namespace quorvane::data
