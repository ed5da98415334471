#pragma once

#include <cstdint>
#include <vector>

namespace quorvane {

/// The columns of a row, by their edges.
class TableColumns {
public:
    /// Takes columns of these widths. The list must stay as it is while it is in use.
    void setWidths(const std::vector<std::int32_t>& widths);
    /// Takes so many columns of one width.
    void setEven(std::int64_t count, std::int32_t width);

    std::int64_t count() const noexcept { return count_; }
    /// The right edge of the column of that number, from 1; 0 for 0.
    std::int32_t edge(std::int64_t column) const noexcept;

private:
    std::int64_t count_ = 0;
    // Of columns of one width; 0 for others, which have their edges in the list.
    std::int32_t evenWidth_ = 0;
    const std::vector<std::int32_t>* widths_ = nullptr;
    std::vector<std::int32_t> edges_;
};

}  // namespace quorvane
