#include "quorvane/compose/widthsIn.h"

#include <algorithm>

namespace quorvane {

std::vector<Width> widthsIn(std::string_view text) {
    constexpr std::string_view separators = " \t,";
    std::vector<Width> widths;
    while (true) {
        text.remove_prefix(std::min(text.find_first_not_of(separators), text.size()));
        if (text.empty()) {
            return widths;
        }
        const std::size_t end = std::min(text.find_first_of(separators), text.size());
        widths.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
}

}  // namespace quorvane
