#include "data/columnsMeasure.h"

#include <cmath>
#include <cstddef>
#include <numeric>

#include "data/columnsNumber.h"
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

/// The width of the widest line.
double widthOf(std::string_view text) {
    double widest = 0;
    double line = 0;
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Character character = utf8CharacterAt(text, at);
        at += character.length;
        line =
            character.code == '\n' || character.code == '\r' ? 0 : line + widthOf(character.code);
        widest = std::max(widest, line);
    }
    return widest * fontSize + padding;
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
    width_ = std::max(width_, widthOf(text) * boldFactor);
}

void ColumnMeasure::addCell(std::string_view text) {
    if (text.empty()) {
        return;
    }
    width_ = std::max(width_, widthOf(text));
    if (!hasOthers_) {
        (looksLikeNumber(text) ? hasNumbers_ : hasOthers_) = true;
    }
}

std::vector<double> fittedWidths(const std::vector<FlexibleColumn>& columns, double area) {
    const double asked = std::accumulate(
        columns.begin(), columns.end(), 0.0,
        [](double sum, const FlexibleColumn& column) { return sum + column.width; });
    return asked <= area ? stretched(columns, area - asked) : squeezed(columns, area);
}

}  // namespace quorvane::data
