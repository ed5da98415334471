#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvane {

/// The lines of a text without their ends (CR LF, LF or CR). No line begins after the last end.
inline std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find_first_of("\r\n"), text.size());
        lines.push_back(text.substr(0, length));
        text.remove_prefix(length);
        text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
    }
    return lines;
}

/// CR LF for a text with at least one CR LF, otherwise LF.
inline std::string_view lineEndOf(std::string_view text) {
    return text.find("\r\n") != std::string_view::npos ? "\r\n" : "\n";
}

}  // namespace quorvane
