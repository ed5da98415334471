#pragma once

#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// The hint for a key that is meant to format text, such as `color`, `font-size` or `bold`: no node
/// has such a key, styles do it. Empty for any other key, and for a color outside a paragraph,
/// which may be meant as a background.
Hint textFormatHint(NodeKind kind, std::string_view key, std::string_view value);

}  // namespace quorvane
