#pragma once

#include <cmath>
#include <cstddef>

namespace quorvane {

/// The whole position nearest to a number, halves to even; 0 when it is not one of 1 to `count`.
inline std::size_t listPosition(double number, std::size_t count) noexcept {
    if (!(number >= 0.5) || number > static_cast<double>(count) + 0.5) {
        return 0;
    }
    const double below = std::floor(number);
    const double rest = number - below;
    const bool roundUp = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0);
    const auto position = static_cast<std::size_t>(roundUp ? below + 1 : below);
    return position <= count ? position : 0;
}

}  // namespace quorvane
