#pragma once

#include <string_view>

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/rtf/RtfControl.h"
#include "quorvane/rtf/RtfWord.h"

namespace quorvane {

/// "font", "color" or "style" where a control names one by a number that no document of the library
/// has; empty otherwise. Without styles, those of a stylesheet that may be used are not known.
std::string_view missingReference(const RtfWord& word, const RtfControl& control,
                                  const KnownStyles* styles);

}  // namespace quorvane
