#pragma once

#include <cstddef>
#include <string_view>

namespace quorvane {

/// A number for a short word, from its length and three of its characters: quick, and different for
/// most words of a small table. A table that anyone can fill needs a better one.
constexpr std::size_t quickHash(std::string_view word) {
    if (word.empty()) {
        return 0;
    }
    const auto code = [word](std::size_t position) {
        return static_cast<std::size_t>(static_cast<unsigned char>(word[position]));
    };
    return code(0) * 7 + code(word.size() / 2) * 31 + code(word.size() - 1) * 3 + word.size() * 17;
}

}  // namespace quorvane
