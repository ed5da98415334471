#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvane {

enum class Occurrences {
    /// The search goes on after each occurrence.
    Separate,
    /// The search goes on one character after the beginning of each occurrence.
    Overlapping,
};

/// Where the pattern occurs in the text, in ascending order; an empty pattern occurs nowhere. The
/// time taken grows with the lengths of the two, never with their product.
std::vector<std::size_t> findAll(std::string_view text, std::string_view pattern,
                                 Occurrences occurrences);

}  // namespace quorvane
