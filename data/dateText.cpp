#include "data/dateText.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <optional>

#include "quorvane/base/text/asciiCharacters.h"

namespace quorvane::data {

namespace {

struct DateAndTime {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// A part of a pattern, and what it stands for.
struct Field {
    std::string_view name;
    int DateAndTime::*value;
    std::size_t digits;
};

/// Longer names come before those that they begin with.
constexpr Field fields[] = {
    {"yyyy", &DateAndTime::year, 4}, {"yy", &DateAndTime::year, 2}, {"MM", &DateAndTime::month, 2},
    {"M", &DateAndTime::month, 1},   {"dd", &DateAndTime::day, 2},  {"d", &DateAndTime::day, 1},
    {"HH", &DateAndTime::hour, 2},   {"H", &DateAndTime::hour, 1},  {"mm", &DateAndTime::minute, 2},
    {"ss", &DateAndTime::second, 2},
};

/// The letters that a text begins with and that are the same.
std::string_view runOf(std::string_view text) {
    return text.substr(0, std::min(text.find_first_not_of(text.front()), text.size()));
}

const Field* fieldNamed(std::string_view name) {
    for (const Field& field : fields) {
        if (field.name == name) {
            return &field;
        }
    }
    return nullptr;
}

bool take(std::string_view& text, char character) {
    const bool isThere = text.starts_with(character);
    text.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

/// A number of so many digits, from `min` to `max`.
bool takeNumber(std::string_view& text, std::size_t digits, int min, int max, int& number) {
    if (text.size() < digits) {
        return false;
    }
    number = 0;
    for (const char digit : text.substr(0, digits)) {
        if (digit < '0' || digit > '9') {
            return false;
        }
        number = number * 10 + (digit - '0');
    }
    text.remove_prefix(digits);
    return number >= min && number <= max;
}

bool takeTime(std::string_view& text, DateAndTime& date) {
    constexpr int lastSecond = 60;
    if (!takeNumber(text, 2, 0, 23, date.hour) || !take(text, ':') ||
        !takeNumber(text, 2, 0, 59, date.minute)) {
        return false;
    }
    if (take(text, ':') && !takeNumber(text, 2, 0, lastSecond, date.second)) {
        return false;
    }
    if (take(text, '.')) {
        text.remove_prefix(std::min(text.find_first_not_of("0123456789"), text.size()));
    }
    return true;
}

/// A zone does not change what is shown.
bool takeZone(std::string_view& text) {
    int number = 0;
    if (take(text, 'Z') || text.empty()) {
        return true;
    }
    if (!take(text, '+') && !take(text, '-')) {
        return false;
    }
    const bool hasHours = takeNumber(text, 2, 0, 23, number);
    take(text, ':');
    return hasHours && (text.empty() || takeNumber(text, 2, 0, 59, number));
}

std::optional<DateAndTime> readIso(std::string_view text) {
    DateAndTime date;
    if (!takeNumber(text, 4, 0, 9999, date.year) || !take(text, '-') ||
        !takeNumber(text, 2, 1, 12, date.month) || !take(text, '-') ||
        !takeNumber(text, 2, 1, 31, date.day)) {
        return std::nullopt;
    }
    const std::chrono::year_month_day day{std::chrono::year(date.year),
                                          std::chrono::month(static_cast<unsigned>(date.month)),
                                          std::chrono::day(static_cast<unsigned>(date.day))};
    const bool hasTime = take(text, 'T') || take(text, ' ');
    const bool isRead = !hasTime || (takeTime(text, date) && takeZone(text));
    return isRead && text.empty() && day.ok() ? std::optional(date) : std::nullopt;
}

std::string withDigits(int number, std::size_t digits) {
    std::string text = std::to_string(number);
    if (digits == 2 && text.size() > 2) {
        text.erase(0, text.size() - 2);
    }
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

/// Calls `field` for each part that stands for something and `literal` for all others. False where
/// `field` returns false.
template <class OnField, class OnText>
bool readPattern(std::string_view pattern, OnField field, OnText literal) {
    while (!pattern.empty()) {
        if (pattern.front() == '\'') {
            const std::size_t end = std::min(pattern.find('\'', 1), pattern.size());
            literal(end == 1 ? pattern.substr(0, 1) : pattern.substr(1, end - 1));
            pattern.remove_prefix(std::min(end + 1, pattern.size()));
            // Two apostrophes are one, between others too.
            if (end > 1 && pattern.starts_with('\'')) {
                literal(pattern.substr(0, 1));
            }
        } else if (isAsciiLetter(pattern.front())) {
            const std::string_view run = runOf(pattern);
            if (!field(run)) {
                return false;
            }
            pattern.remove_prefix(run.size());
        } else {
            literal(pattern.substr(0, 1));
            pattern.remove_prefix(1);
        }
    }
    return true;
}

}  // namespace

std::string wrongDatePattern(std::string_view pattern) {
    std::string wrong;
    bool hasField = false;
    readPattern(
        pattern,
        [&](std::string_view name) {
            hasField = true;
            if (!fieldNamed(name)) {
                wrong = std::string(name) +
                        " is not a part of a date; write yyyy, yy, MM, M, dd, d, HH, H, mm or ss, "
                        "and other letters between apostrophes";
            }
            return wrong.empty();
        },
        [](std::string_view) {});
    return hasField ? wrong : "date needs a pattern, such as date:dd.MM.yyyy";
}

bool isIsoDate(std::string_view text) {
    return readIso(text).has_value();
}

bool dateText(std::string_view iso, std::string_view pattern, std::string& text) {
    const std::optional<DateAndTime> date = readIso(iso);
    if (!date) {
        return false;
    }
    return readPattern(
        pattern,
        [&](std::string_view name) {
            const Field* const field = fieldNamed(name);
            text += field ? withDigits(*date.*field->value, field->digits) : std::string();
            return field != nullptr;
        },
        [&](std::string_view literal) { text += literal; });
}

}  // namespace quorvane::data
