#include "quorvane/support/RandomNumbers.h"

#include <chrono>
#include <cmath>

namespace quorvane {

RandomNumbers::RandomNumbers()
    : RandomNumbers(
          static_cast<std::uint32_t>(std::chrono::steady_clock::now().time_since_epoch().count())) {
}

std::int32_t RandomNumbers::between(std::int32_t low, std::int32_t high) {
    const double count = static_cast<double>(high) - low + 1;
    return static_cast<std::int32_t>(std::floor(count * next()) + low);
}

double RandomNumbers::next() {
    constexpr double countOfStates = 4294967296.0;
    return static_cast<double>(engine_()) / countOfStates;
}

}  // namespace quorvane
