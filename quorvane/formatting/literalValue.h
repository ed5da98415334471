#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

/// The value of `para-text` in the extended language that is this text: the text itself, or one
/// between marks, with LF between its lines. Each of several lines begins with so many blanks,
/// which are not part of the text. Nothing for a text that no value can hold.
std::optional<std::string> literalValue(std::string_view text, std::size_t indent);

}  // namespace quorvane
