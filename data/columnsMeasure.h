#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane::data {

/// What the cells of a column have in common.
class ColumnMeasure {
public:
    void addHeading(std::string_view text);
    void addCell(std::string_view text);
    /// The column ends in a total, which is bold and can have more digits than its cells.
    void addTotal() { hasTotal_ = true; }

    /// The width in twips in which no line of a cell breaks, in the usual font. The heading may
    /// break at its blanks into so many lines.
    double width(std::size_t headingLines = 1) const;
    /// True if all cells with a text are numbers, and there is one.
    bool holdsNumbers() const noexcept { return hasNumbers_ && !hasOthers_; }
    /// True for texts that use room that is left over: not for columns of numbers or dates.
    bool stretches() const noexcept { return !holdsNumbers() && (!hasDates_ || hasTexts_); }

private:
    std::string heading_;
    double cellWidth_ = 0;
    bool hasTotal_ = false;
    bool hasNumbers_ = false;
    // Cells that are not numbers, and those that are not dates.
    bool hasOthers_ = false;
    bool hasDates_ = false;
    bool hasTexts_ = false;
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
