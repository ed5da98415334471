#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/stylesheet/StyleKind.h"

namespace quorvane {

/// A definition of a stylesheet in the original language.
struct OriginalStyle {
    StyleKind kind = StyleKind::Cell;
    /// As they are written. Names that another definition of the kind has before are left out.
    std::vector<std::string_view> names;
    /// The others in lower case.
    std::string format;
    std::string basedOn;
    std::string next;
    /// Where its braces stand in the text.
    std::size_t open = 0;
    std::size_t close = 0;
};

/// The definitions of a stylesheet. Errors as `parseStyleSheet` has them.
std::vector<OriginalStyle> readOriginalStyles(std::string_view text);

}  // namespace quorvane
