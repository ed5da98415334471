#include "quorvane/support/rounding.h"

#include <cmath>

#include "quorvane/support/RtfError.h"

namespace quorvane {

namespace {

double roundHalfToEven(double value) {
    const double below = std::floor(value);
    const double distance = value - below;
    const bool belowIsOdd = std::fmod(below, 2.0) != 0;
    return distance > 0.5 || (distance == 0.5 && belowIsOdd) ? below + 1 : below;
}

}  // namespace

std::int32_t roundToLong(double value) {
    const double rounded = roundHalfToEven(value);
    if (!(rounded >= INT32_MIN && rounded <= INT32_MAX)) {
        raise(RunTimeError::Overflow);
    }
    return static_cast<std::int32_t>(rounded);
}

}  // namespace quorvane
