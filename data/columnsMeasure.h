#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quorvane::data {

/// What the cells of a column have in common.
class ColumnMeasure {
public:
    void addHeading(std::string_view text);
    void addCell(std::string_view text);

    /// The width in twips in which no line of a cell breaks, in the usual font.
    double width() const noexcept { return width_; }
    /// True if all cells with a text are numbers, and there is one.
    bool holdsNumbers() const noexcept { return hasNumbers_ && !hasOthers_; }

private:
    double width_ = 0;
    bool hasNumbers_ = false;
    bool hasOthers_ = false;
};

/// A column whose width suits its contents.
struct FlexibleColumn {
    double width;
    /// Whether it takes room that is left over.
    bool stretches;
};

/// Widths with which the columns fill an area. If it has less room than they ask for, the narrow
/// ones keep their widths as far as possible.
std::vector<double> fittedWidths(const std::vector<FlexibleColumn>& columns, double area);

}  // namespace quorvane::data
