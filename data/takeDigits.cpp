#include "data/takeDigits.h"

#include <algorithm>

namespace quorvane::data {

std::string_view takeDigits(std::string_view& text) {
    const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
    const std::string_view digits = text.substr(0, end);
    text.remove_prefix(end);
    return digits;
}

}  // namespace quorvane::data
