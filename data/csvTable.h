#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane::data {

/// The rows of a text (UTF-8) with a heading row, the first of which is that of the names; see
/// `CsvRecords`. What is wrong with a row is an `Error` "wrong-value" with its line.
std::vector<std::vector<std::string>> csvTable(std::string_view text);

}  // namespace quorvane::data
