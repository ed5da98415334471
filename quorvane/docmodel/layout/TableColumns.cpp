#include "quorvane/docmodel/layout/TableColumns.h"

#include <cstddef>
#include <iterator>
#include <numeric>

namespace quorvane {

void TableColumns::setWidths(const std::vector<std::int32_t>& widths) {
    // Most rows have the list of the document.
    if (&widths != widths_) {
        edges_.clear();
        edges_.reserve(widths.size());
        std::partial_sum(widths.begin(), widths.end(), std::back_inserter(edges_));
        widths_ = &widths;
    }
    count_ = std::ssize(widths);
    evenWidth_ = 0;
}

void TableColumns::setEven(std::int64_t count, std::int32_t width) {
    count_ = count;
    evenWidth_ = width;
}

std::int32_t TableColumns::edge(std::int64_t column) const noexcept {
    if (evenWidth_ != 0) {
        return static_cast<std::int32_t>(evenWidth_ * column);
    }
    return column == 0 ? 0 : edges_[static_cast<std::size_t>(column - 1)];
}

}  // namespace quorvane
