#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "quorvane/formatting/Upgrade.h"
#include "quorvane/formatting/formatDescription.h"

namespace quorvane {

/// Writes a description of the original language (UTF-8) in the extended one, in its canonical form
/// and with its comments. The document looks the same with the stylesheet in either language: texts
/// become literal, the page is written as it is, and `columns` give the cells the widths that they
/// have. A description that is extended already stays as it is.
///
/// `styleSheet` is that of the description; nothing if it is not known, and an inline style is an
/// error then. So is a description with errors, and whatever the extended language cannot express.
Upgrade upgradedDescription(std::string_view text, const std::optional<std::string>& styleSheet,
                            NameForm names = NameForm::Kept);

}  // namespace quorvane
