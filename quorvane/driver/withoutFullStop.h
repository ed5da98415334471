#pragma once

#include <string_view>

namespace quorvane {

/// A sentence that goes into another one.
inline std::string_view withoutFullStop(std::string_view sentence) {
    return sentence.substr(0, sentence.size() - (sentence.ends_with('.') ? 1 : 0));
}

}  // namespace quorvane
