#pragma once

#include <cstdint>
#include <vector>

namespace quorvane {

/// What a row can be given in addition to its cells, color and borders.
struct RowSettings {
    /// Widths of its columns in twips; empty for those of the document.
    std::vector<std::int32_t> columnWidths;
    bool repeatsAsHeading = false;
    bool keepsTogether = false;
    bool keepsWithNext = false;
    bool startsPage = false;
};

/// Does nothing if columns can have these widths. Otherwise error 5 for a width below 1, error 6 if
/// the sum does not fit 32 bits.
void requireWidths(const std::vector<std::int32_t>& widths);

}  // namespace quorvane
