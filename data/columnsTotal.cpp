#include "data/columnsTotal.h"

#include <algorithm>
#include <charconv>

#include "data/refuse.h"

namespace quorvane::data {

namespace {

constexpr std::size_t limbDigits = 9;
// Of the readings.
constexpr char decimalSigns[] = {'.', ','};
constexpr std::int64_t limbBase = 1'000'000'000;

std::int64_t numberOf(std::string_view digits) {
    std::int64_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

std::string padded(std::int64_t limb) {
    const std::string digits = std::to_string(limb);
    return std::string(limbDigits - digits.size(), '0') + digits;
}

/// Leaves from 0 to 999,999,999 in each group, and returns what is carried beyond the last one.
std::int64_t carry(std::vector<std::int64_t>& limbs, std::int64_t carried) {
    for (std::int64_t& limb : limbs) {
        limb += carried;
        carried = limb / limbBase;
        limb %= limbBase;
        if (limb < 0) {
            limb += limbBase;
            --carried;
        }
    }
    return carried;
}

void negate(std::vector<std::int64_t>& limbs) {
    for (std::int64_t& limb : limbs) {
        limb = -limb;
    }
}

/// The first sign that stands between groups of digits.
std::string groupSignOf(std::string_view digits, char decimalSign) {
    const std::size_t at = digits.find_first_not_of("0123456789");
    if (at == std::string_view::npos || digits[at] == decimalSign) {
        return {};
    }
    return std::string(digits.substr(at, digits.find_first_of("0123456789", at) - at));
}

}  // namespace

void DecimalSum::add(std::string_view number) {
    const bool isNegative = number.starts_with('-');
    number.remove_prefix(isNegative ? 1 : 0);
    const std::size_t point = std::min(number.find('.'), number.size());
    std::string_view whole = number.substr(0, point);
    for (std::size_t index = 0; !whole.empty(); ++index) {
        const std::size_t length = std::min(limbDigits, whole.size());
        addDigits(whole_, index, whole.substr(whole.size() - length), isNegative);
        whole.remove_suffix(length);
    }
    std::string_view decimals = number.substr(std::min(point + 1, number.size()));
    decimalCount_ = std::max(decimalCount_, decimals.size());
    for (std::size_t index = 0; !decimals.empty(); ++index) {
        std::string digits(decimals.substr(0, limbDigits));
        digits.resize(limbDigits, '0');
        addDigits(decimals_, index, digits, isNegative);
        decimals.remove_prefix(std::min(limbDigits, decimals.size()));
    }
}

void DecimalSum::addDigits(std::vector<std::int64_t>& limbs, std::size_t index,
                           std::string_view digits, bool isNegative) {
    limbs.resize(std::max(limbs.size(), index + 1));
    const std::int64_t number = numberOf(digits);
    limbs[index] += isNegative ? -number : number;
}

std::string DecimalSum::text() const {
    // All groups, the last one first.
    std::vector<std::int64_t> limbs(decimals_.rbegin(), decimals_.rend());
    limbs.insert(limbs.end(), whole_.begin(), whole_.end());
    std::vector<std::int64_t> sum = limbs;
    std::int64_t top = carry(sum, 0);
    const bool isNegative = top < 0;
    if (isNegative) {
        sum = limbs;
        negate(sum);
        top = carry(sum, 0);
    }
    std::string whole = std::to_string(top);
    std::string decimals;
    for (std::size_t i = sum.size(); i-- > 0;) {
        (i < decimals_.size() ? decimals : whole) += padded(sum[i]);
    }
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size() - 1));
    decimals.resize(decimalCount_);
    return (isNegative ? "-" : "") + whole + (decimals.empty() ? "" : "." + decimals);
}

ColumnTotal::ColumnTotal(std::optional<DecimalSign> sign) {
    for (std::size_t i = 0; i < readings_.size(); ++i) {
        readings_[i].isPossible = !sign || *sign == static_cast<DecimalSign>(i);
    }
}

/// The number in each of the readings that are possible; none for an empty text.
ColumnTotal::PlainNumbers ColumnTotal::plainNumbers(std::string_view text) const {
    PlainNumbers plain;
    if (text.empty()) {
        return plain;
    }
    const std::optional<WrittenNumber> number = writtenNumber(text);
    if (!number) {
        refuse("\"" + std::string(text) + "\" is not a number, so that there is no total.");
    }
    if (!first_.empty() && !haveOneUnit(*writtenNumber(first_), *number)) {
        refuse("\"" + std::string(text) + "\" is of another unit than \"" + first_ +
               "\", so that there is no total.");
    }
    for (std::size_t i = 0; i < plain.size(); ++i) {
        if (readings_[i].isPossible) {
            plain[i] = plainNumber(*number, static_cast<DecimalSign>(i));
        }
    }
    if (!plain[0] && !plain[1]) {
        refuse("\"" + std::string(text) +
               "\" is not a number, or has another decimal sign than those before, so that there "
               "is no total.");
    }
    return plain;
}

void ColumnTotal::add(std::string_view text) {
    const PlainNumbers plain = plainNumbers(text);
    if (text.empty()) {
        return;
    }
    if (first_.empty()) {
        first_ = text;
    }
    const std::optional<WrittenNumber> number = writtenNumber(text);
    if (number->isNegative && minus_.empty()) {
        minus_ = number->sign;
    }
    for (std::size_t i = 0; i < plain.size(); ++i) {
        Reading& reading = readings_[i];
        reading.isPossible = plain[i].has_value();
        if (reading.isPossible) {
            reading.sum.add(*plain[i]);
            if (reading.groupSign.empty()) {
                reading.groupSign = groupSignOf(number->digits, decimalSigns[i]);
            }
        }
    }
}

std::size_t ColumnTotal::reading() const {
    const auto& [point, comma] = readings_;
    if (point.isPossible && comma.isPossible && point.sum.text() != comma.sum.text()) {
        refuse("The numbers can be read with a decimal point, with the total " + point.sum.text() +
               ", or with a decimal comma, with the total " + comma.sum.text() +
               ". Choose one with a locale, such as en-US or de-DE.");
    }
    return point.isPossible ? 0 : 1;
}

std::string ColumnTotal::text() const {
    constexpr std::size_t groupSize = 3;
    const std::size_t index = reading();
    const Reading& reading = readings_[index];
    std::string plain = reading.sum.text();
    const bool isNegative = plain.starts_with('-');
    plain.erase(0, isNegative ? 1 : 0);
    std::size_t point = std::min(plain.find('.'), plain.size());
    if (point < plain.size() && index == 1) {
        plain[point] = ',';
    }
    for (; point > groupSize; point -= groupSize) {
        plain.insert(point - groupSize, reading.groupSign);
    }
    const std::optional<WrittenNumber> first = writtenNumber(first_);
    return (isNegative ? minus_ : "") + (first ? std::string(first->before) : "") + plain +
           (first ? std::string(first->after) : "");
}

}  // namespace quorvane::data
