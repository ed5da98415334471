#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "quorvane/stylesheet/StyleKind.h"
#include "quorvane/stylesheet/StyleProperty.h"
#include "quorvane/stylesheet/extendedFaultTable.h"

namespace quorvane {

/// A violation of the rules of extended stylesheets.
struct ExtendedViolation {
    ExtendedFault fault{};
    /// Where it is, in the text of the stylesheet.
    std::string_view part;
    std::string message;
    /// The property that the item sets, if it is about the value of one.
    const StyleProperty* property = nullptr;
    /// The kind of the style that it is about.
    StyleKind kind{};
};

/// Takes violations. It throws where reading shall end; otherwise reading goes on without the part
/// that is wrong.
using ExtendedViolationReport = std::function<void(const ExtendedViolation&)>;

/// The word for a kind of style.
std::string_view extendedKindWord(StyleKind kind);

}  // namespace quorvane
