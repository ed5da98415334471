#pragma once

#include <string_view>
#include <vector>

#include "quorvane/stylesheet/ExtendedStyle.h"
#include "quorvane/stylesheet/ExtendedViolation.h"

namespace quorvane {

/// Reads an extended stylesheet (UTF-8) and returns its styles in order, with the items that they
/// inherit. Each violation is reported where it is found.
std::vector<ExtendedStyle> readExtendedStyleSheet(std::string_view text,
                                                  const ExtendedViolationReport& report);

}  // namespace quorvane
