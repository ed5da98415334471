#pragma once

#include <string_view>

namespace quorvane::data {

/// True for one character that can stand between fields, and for "tab".
bool isDelimiter(std::string_view text);

/// True for a number of rows.
bool isRowCount(std::string_view text);

}  // namespace quorvane::data
