#pragma once

#include <string_view>

namespace quorvane {

/// CR LF for a text with at least one CR LF, otherwise LF.
inline std::string_view lineEndOf(std::string_view text) {
    return text.find("\r\n") != std::string_view::npos ? "\r\n" : "\n";
}

}  // namespace quorvane
