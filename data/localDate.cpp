#include "data/localDate.h"

#include <array>
#include <cstddef>

#include "data/dateText.h"
#include "quorvane/base/text/asciiCharacters.h"

namespace quorvane::data {

namespace {

constexpr std::size_t yearDigits = 4;
constexpr int lastMonth = 12;

/// Three numbers with signs between them, and what follows.
struct WrittenDate {
    std::array<std::string_view, 3> numbers;
    char sign = 0;
    std::string_view time;

    bool beginsWithYear() const { return numbers[0].size() == yearDigits; }
};

std::string_view takeDigits(std::string_view& text) {
    std::size_t count = 0;
    while (count < text.size() && count <= yearDigits && isAsciiDigit(text[count])) {
        ++count;
    }
    const std::string_view digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

bool isSign(char character) {
    return character == '.' || character == '/' || character == '-';
}

bool take(std::string_view& text, char character) {
    const bool isThere = text.starts_with(character);
    text.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

/// True for the digits of one year and twice those of a day or a month.
bool haveRightLengths(const WrittenDate& date) {
    const std::size_t year = date.beginsWithYear() ? 0 : 2;
    for (std::size_t i = 0; i < date.numbers.size(); ++i) {
        const std::size_t size = date.numbers[i].size();
        if (i == year ? size != yearDigits : size < 1 || size > 2) {
            return false;
        }
    }
    return true;
}

std::optional<WrittenDate> writtenDate(std::string_view text) {
    WrittenDate date;
    for (std::size_t i = 0; i < date.numbers.size(); ++i) {
        if (i > 0) {
            if (text.empty() || !isSign(text.front()) || (i > 1 && text.front() != date.sign)) {
                return std::nullopt;
            }
            date.sign = text.front();
            text.remove_prefix(1);
            take(text, ' ');
        }
        date.numbers[i] = takeDigits(text);
    }
    if (date.sign == '.' && date.beginsWithYear()) {
        take(text, '.');
    }
    date.time = text;
    return haveRightLengths(date) ? std::optional(date) : std::nullopt;
}

std::string padded(std::string_view digits) {
    return (digits.size() < 2 ? "0" : "") + std::string(digits);
}

/// The time after a date with two digits for the hour.
std::string isoTime(std::string_view time) {
    const std::size_t colon = time.find(':');
    return colon == 2 ? " 0" + std::string(time.substr(1)) : std::string(time);
}

int numberOf(std::string_view digits) {
    int number = 0;
    for (const char digit : digits) {
        number = number * 10 + (digit - '0');
    }
    return number;
}

}  // namespace

std::optional<std::string> isoDate(std::string_view text, DateOrder order) {
    if (isIsoDate(text)) {
        return std::string(text);
    }
    const std::optional<WrittenDate> date = writtenDate(text);
    if (!date || date->beginsWithYear() != (order == DateOrder::YearMonthDay)) {
        return std::nullopt;
    }
    const auto& [first, second, third] = date->numbers;
    std::string iso;
    switch (order) {
        case DateOrder::DayMonthYear:
            iso = std::string(third) + "-" + padded(second) + "-" + padded(first);
            break;
        case DateOrder::MonthDayYear:
            iso = std::string(third) + "-" + padded(first) + "-" + padded(second);
            break;
        case DateOrder::YearMonthDay:
            iso = std::string(first) + "-" + padded(second) + "-" + padded(third);
            break;
    }
    iso += isoTime(date->time);
    return isIsoDate(iso) ? std::optional(iso) : std::nullopt;
}

std::optional<DateOrder> shownDateOrder(std::string_view text) {
    const std::optional<WrittenDate> date = isIsoDate(text) ? std::nullopt : writtenDate(text);
    if (!date) {
        return std::nullopt;
    }
    if (date->beginsWithYear()) {
        return DateOrder::YearMonthDay;
    }
    if (date->sign == '.' || numberOf(date->numbers[0]) > lastMonth) {
        return DateOrder::DayMonthYear;
    }
    return numberOf(date->numbers[1]) > lastMonth ? std::optional(DateOrder::MonthDayYear)
                                                  : std::nullopt;
}

bool isAmbiguousDate(std::string_view text) {
    const std::optional<std::string> dayFirst = isoDate(text, DateOrder::DayMonthYear);
    return dayFirst && !shownDateOrder(text) && dayFirst != isoDate(text, DateOrder::MonthDayYear);
}

std::string_view dateExample(DateOrder order) {
    switch (order) {
        case DateOrder::MonthDayYear:
            return "11/22/2026";
        case DateOrder::YearMonthDay:
            return "2026/11/22";
        default:
            return "22.11.2026";
    }
}

}  // namespace quorvane::data
