#pragma once

#include <string_view>

namespace quorvane {

/// The value within its quotation marks, which this language does not have; the value itself when
/// it has none.
inline std::string_view withoutQuotes(std::string_view value) {
    const bool isQuoted = value.size() > 2 && value.front() == value.back() &&
                          (value.front() == '"' || value.front() == '\'');
    return isQuoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace quorvane
