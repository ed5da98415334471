#pragma once

#include <string_view>

#include "quorvane/stylesheet/StyleKind.h"
#include "quorvane/stylesheet/StyleValue.h"

namespace quorvane {

/// A style of an extended stylesheet. The views are into its text.
struct ExtendedStyle {
    StyleKind kind = StyleKind::Paragraph;
    std::string_view name;
    /// The style that it is based on, and the style of the next paragraph; empty for none.
    std::string_view basedOn;
    std::string_view next;
    /// Its own items, or with those that it inherits.
    StyleFormat format;
};

}  // namespace quorvane
