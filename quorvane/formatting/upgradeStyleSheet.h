#pragma once

#include <string>
#include <string_view>

#include "quorvane/formatting/Upgrade.h"

namespace quorvane {

/// Writes a stylesheet of the original language (UTF-8) in the extended one, in its canonical form
/// and with its comments. Its styles have the same formats, in words where there are some, and
/// inherit what they share with the styles that they are based on. Styles that are only there to
/// keep numbers free are left out. A stylesheet that is extended already stays as it is.
///
/// Errors are those of the stylesheet, and whatever the extended language cannot express.
Upgrade upgradedStyleSheet(std::string_view text);

/// The name of the style that paragraphs without one must name once this stylesheet is upgraded;
/// empty if they stay as they are.
std::string styleInPlaceOfNone(std::string_view text);

}  // namespace quorvane
