#pragma once

#include <string>
#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"

namespace quorvane {

/// What to do about a first item of a definition that is not its name.
Hint firstStyleKeywordHint(const StyleItem& first);

/// What was most likely meant by a keyword, in lower case, that items other than the first do not
/// have.
Hint styleKeywordHint(std::string_view keyword);

/// What to write for a value that the keyword of an item does not accept.
Hint styleValueHint(const StyleItem& item);

/// What to write for a format of a cell style, in lower case, that is not a color.
Hint cellColorHint(std::string_view color);

/// The hint for a value that another item follows without a ";", such as "n, style-def: s"; empty
/// for any other value.
std::string missingSeparatorHint(std::string_view value);

}  // namespace quorvane
