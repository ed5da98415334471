#pragma once

#include <string>
#include <string_view>

#include "quorvane/docmodel/enumerations.h"

namespace quorvane::com {

// The words of the extended language for alignments and borders, in any case. Error "wrong-value"
// for any other.

tCellAlign alignmentNamed(std::string_view word);
tBorderWidth borderNamed(std::string_view word);

/// The word for a value.
std::string nameOf(tCellAlign align);
std::string nameOf(tBorderWidth width);

}  // namespace quorvane::com
