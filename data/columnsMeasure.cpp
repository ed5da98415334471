#include "data/columnsMeasure.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>

#include "data/columnsNumber.h"
#include "data/localDate.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane::data {

namespace {

// About the widths of a sans-serif font, in parts of its size.
constexpr double narrowWidth = 0.29;
constexpr double usualWidth = 0.55;
constexpr double capitalWidth = 0.69;
constexpr double broadWidth = 0.9;
constexpr double squareWidth = 1.0;
constexpr double boldFactor = 1.08;
constexpr double fontSize = 180;
// The distance to the edges of a cell, and a little more.
constexpr double padding = 200;

double widthOf(char32_t character) {
    constexpr char32_t firstSquare = 0x1100;
    constexpr std::u32string_view narrow = U" .,:;!'|()[]{}/\\-ijltfrI";
    constexpr std::u32string_view broad = U"mwMW@%‰—…";
    if (narrow.find(character) != std::u32string_view::npos) {
        return narrowWidth;
    }
    if (broad.find(character) != std::u32string_view::npos) {
        return broadWidth;
    }
    if (character >= 'A' && character <= 'Z') {
        return capitalWidth;
    }
    return character >= firstSquare && !(character >= 0x1E00 && character < 0x2E80) ? squareWidth
                                                                                    : usualWidth;
}

/// The width of the widest line, in parts of the size.
double widestLine(std::string_view text) {
    double widest = 0;
    double line = 0;
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Character character = utf8CharacterAt(text, at);
        at += character.length;
        line =
            character.code == '\n' || character.code == '\r' ? 0 : line + widthOf(character.code);
        widest = std::max(widest, line);
    }
    return widest;
}

double widthOf(std::string_view text) {
    return widestLine(text) * fontSize + padding;
}

/// The widths of the words of a text.
std::vector<double> wordWidths(std::string_view text) {
    std::vector<double> widths;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(" \r\n"), text.size());
        widths.push_back(widestLine(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return widths;
}

std::size_t linesIn(const std::vector<double>& words, double width) {
    std::size_t lines = 1;
    double line = 0;
    for (const double word : words) {
        const bool isFirst = line == 0;
        if (!isFirst && line + narrowWidth + word > width) {
            ++lines;
            line = word;
        } else {
            line += word + (isFirst ? 0 : narrowWidth);
        }
    }
    return lines;
}

/// About the least width in which a text has no more lines.
double wrappedWidth(std::string_view text, std::size_t lines) {
    constexpr double step = 1.05;
    const double whole = widestLine(text);
    const std::vector<double> words = wordWidths(text);
    double width = words.empty() ? 0 : *std::max_element(words.begin(), words.end());
    while (lines > 1 && width < whole && linesIn(words, width) > lines) {
        width *= step;
    }
    return (lines > 1 ? std::min(width, whole) : whole) * fontSize * boldFactor + padding;
}

bool isDate(std::string_view text) {
    return isoDate(text, DateOrder::DayMonthYear) || isoDate(text, DateOrder::MonthDayYear) ||
           isoDate(text, DateOrder::YearMonthDay);
}

/// The widths of columns for which there is more room than they ask for.
std::vector<double> stretched(const std::vector<FlexibleColumn>& columns, double room) {
    double all = 0;
    double stretching = 0;
    for (const FlexibleColumn& column : columns) {
        all += column.width;
        stretching += column.stretches ? column.width : 0;
    }
    std::vector<double> widths;
    for (const FlexibleColumn& column : columns) {
        const bool takesPart = stretching <= 0 || column.stretches;
        const double share = column.width / (stretching > 0 ? stretching : all);
        widths.push_back(column.width + (takesPart ? room * share : 0));
    }
    return widths;
}

/// The widths of columns for which there is less room. Those that take no more than others keep
/// theirs. The others share by the roots of what they ask for: a column with long texts gets more,
/// but not all.
std::vector<double> squeezed(const std::vector<FlexibleColumn>& columns, double area) {
    std::vector<double> widths(columns.size());
    std::vector<bool> isKept(columns.size(), false);
    for (bool changes = true; changes;) {
        changes = false;
        double left = area;
        double roots = 0;
        double count = 0;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            left -= isKept[i] ? columns[i].width : 0;
            roots += isKept[i] ? 0 : std::sqrt(columns[i].width);
            count += isKept[i] ? 0 : 1;
        }
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const double asked = columns[i].width;
            const double share = left * std::sqrt(asked) / roots;
            if (!isKept[i] && asked <= std::max(share, left / count)) {
                isKept[i] = changes = true;
            }
            widths[i] = isKept[i] ? asked : share;
        }
    }
    return widths;
}

}  // namespace

void ColumnMeasure::addHeading(std::string_view text) {
    heading_ = text;
}

double ColumnMeasure::width(std::size_t headingLines) const {
    // A thousand times as much as a cell, and a little more.
    constexpr double moreDigits = 4 * usualWidth + narrowWidth;
    const double total = (cellWidth_ - padding + moreDigits * fontSize) * boldFactor + padding;
    return std::max(hasTotal_ ? total : cellWidth_, wrappedWidth(heading_, headingLines));
}

void ColumnMeasure::addCell(std::string_view text) {
    if (text.empty()) {
        return;
    }
    cellWidth_ = std::max(cellWidth_, widthOf(text));
    if (!hasOthers_) {
        (looksLikeNumber(text) ? hasNumbers_ : hasOthers_) = true;
    }
    if (!hasTexts_) {
        (isDate(text) ? hasDates_ : hasTexts_) = true;
    }
}

std::vector<double> fittedWidths(const std::vector<FlexibleColumn>& columns, double area) {
    const double asked = std::accumulate(
        columns.begin(), columns.end(), 0.0,
        [](double sum, const FlexibleColumn& column) { return sum + column.width; });
    return asked <= area ? stretched(columns, area - asked) : squeezed(columns, area);
}

}  // namespace quorvane::data
