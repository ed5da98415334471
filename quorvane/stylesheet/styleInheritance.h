#pragma once

#include <vector>

#include "quorvane/stylesheet/ExtendedStyle.h"
#include "quorvane/stylesheet/ExtendedViolation.h"

namespace quorvane {

/// Puts into each style the items that it inherits: its own come after them, and take the places of
/// those that set the same. Styles of one name, references to styles that do not exist and circles
/// are reported; after that, the first style of a name counts, and a wrong reference is as if it
/// were not there. `text` is that of the stylesheet.
void inheritFormats(std::vector<ExtendedStyle>& styles, std::string_view text,
                    const ExtendedViolationReport& report);

}  // namespace quorvane
