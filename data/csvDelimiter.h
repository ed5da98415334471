#pragma once

#include <string_view>

namespace quorvane::data {

/// The delimiter of a text with fields, by its beginning: a comma, a semicolon, a tab or a "|". It
/// is the one that most rows have as often as the first row; a comma if there is none in it.
char csvDelimiter(std::string_view beginning);

}  // namespace quorvane::data
