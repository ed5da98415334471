#include "quorvane/driver/staysWithinFolder.h"

#include <cstddef>
#include <string_view>

namespace quorvane {

bool staysWithinFolder(const std::string& name) {
    constexpr std::string_view separators = "/\\";
    std::string_view rest = name;
    if (rest.empty() || separators.find(rest.front()) != std::string_view::npos ||
        rest.find(':') != std::string_view::npos) {
        return false;
    }
    for (;;) {
        const std::size_t end = rest.find_first_of(separators);
        if (rest.substr(0, end) == "..") {
            return false;
        }
        if (end == std::string_view::npos) {
            return true;
        }
        rest.remove_prefix(end + 1);
    }
}

}  // namespace quorvane
