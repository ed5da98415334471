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
    std::vector<double> widths;
    double total = 0;
    double stretching = 0;
    for (const FlexibleColumn& column : columns) {
        widths.push_back(column.width);
        total += column.width;
        stretching += column.stretches ? column.width : 0;
    }
    if (total <= area) {
        const double base = stretching > 0 ? stretching : total;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (stretching <= 0 || columns[i].stretches) {
                widths[i] += (area - total) * columns[i].width / base;
            }
        }
        return widths;
    }
    // The roots of the widths: a column with long texts gets more than others, but not all.
    std::vector<bool> isKept(columns.size(), false);
    for (bool changes = true; changes;) {
        changes = false;
        double left = area;
        double roots = 0;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            left -= isKept[i] ? columns[i].width : 0;
            roots += isKept[i] ? 0 : std::sqrt(columns[i].width);
        }
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (!isKept[i]) {
                widths[i] = left * std::sqrt(columns[i].width) / roots;
                if (widths[i] >= columns[i].width) {
                    widths[i] = columns[i].width;
                    isKept[i] = true;
                    changes = true;
                }
            }
        }
    }
    return widths;
}

}  // namespace quorvane::data
