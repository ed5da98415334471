#include "quorvane/base/platform/RandomNumbers.h"

#include <cmath>
#include <ctime>

namespace quorvane {

RandomNumbers::RandomNumbers() : RandomNumbers(static_cast<std::uint32_t>(std::time(nullptr))) {}

RandomNumbers& RandomNumbers::ofProcess() {
    static RandomNumbers numbers;
    return numbers;
}

std::int32_t RandomNumbers::between(std::int32_t low, std::int32_t high) {
    const double count = static_cast<double>(high) - low + 1;
    return static_cast<std::int32_t>(std::floor(count * next()) + low);
}

double RandomNumbers::next() {
    // A step of a fixed length on the circle of all states, whose bits are then mixed.
    constexpr std::uint64_t step = 0x9E3779B97F4A7C15u;
    std::uint64_t mixed = state_.fetch_add(step, std::memory_order_relaxed) + step;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    mixed ^= mixed >> 31;
    constexpr double countOfResults = 4294967296.0;
    return static_cast<double>(mixed >> 32) / countOfResults;
}

}  // namespace quorvane
