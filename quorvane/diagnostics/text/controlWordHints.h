#pragma once

#include <string>
#include <string_view>

#include "quorvane/rtf/RtfControl.h"

namespace quorvane {

/// What an author most likely means by an unknown control word, as a question; empty when nothing
/// is near.
std::string nearControlWordHint(std::string_view word);

/// What to write in place of plain text in a format. `before` is the control word before it; null
/// when there is none.
std::string formatTextHint(std::string_view text, const RtfControl* before);

}  // namespace quorvane
