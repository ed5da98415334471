#pragma once

#include <cstdint>

#include "quorvane/docmodel/TableDocument.h"

namespace quorvane {

/// No edge of a cell is moved nearer to the next one, in twips.
inline constexpr std::int32_t smallestWidth = 200;

/// Width of each of so many cells that share the page evenly. Error 6 if their edges do not fit 32
/// bits, error 11 for no cells.
std::int32_t evenWidth(const TableDocument& document, std::int64_t count);

}  // namespace quorvane
