#pragma once

#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// What to do in place of a key that is to format text, such as `color`, `font-size` or `bold`: no
/// node has one, styles do it. Empty for any other key, and for a color outside of a paragraph,
/// which may be meant as a background.
Hint textFormatHint(NodeKind kind, std::string_view key, std::string_view value);

}  // namespace quorvane
