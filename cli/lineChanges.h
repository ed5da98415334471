#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvane::cli {

/// Lines that were replaced: those from `begin` to before `end` of one text, by those of another.
/// One of the two ranges may be empty.
struct LineChange {
    std::size_t beginBefore;
    std::size_t endBefore;
    std::size_t beginAfter;
    std::size_t endAfter;
};

/// The changes that lead from one list of lines to another, in their order, with at least one equal
/// line between two of them. They are the fewest possible, except between long lists that have much
/// in common and differ nearly everywhere: the time stays in proportion to the number of lines.
std::vector<LineChange> lineChanges(const std::vector<std::string_view>& before,
                                    const std::vector<std::string_view>& after);

}  // namespace quorvane::cli
