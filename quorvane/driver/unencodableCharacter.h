#pragma once

#include <optional>
#include <string_view>

#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// The first character of a leaf's value that Windows-1252 lacks and for which no control word can
/// stand: any in a value, but in the text of a paragraph only one in the name of an inline style.
std::optional<std::string_view> findUnencodableCharacter(const Leaf& leaf);

}  // namespace quorvane
