#pragma once

#include <string_view>

namespace quorvane {

/// Does nothing for a text that the data of a marked field can hold; otherwise an `Error`.
void requireEncodable(std::string_view data);

}  // namespace quorvane
