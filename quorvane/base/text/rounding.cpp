#include "quorvane/base/text/rounding.h"

#include <cmath>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

namespace {

double roundHalfToEven(double value) {
    const double below = std::floor(value);
    const double distance = value - below;
    const bool roundsUp = distance > 0.5 || (distance == 0.5 && std::fmod(below, 2.0) != 0);
    return roundsUp ? below + 1 : below;
}

}  // namespace

std::int32_t roundToLong(double value) {
    // Most numbers are whole; NaN is not, nor what does not fit.
    if (value > INT32_MIN && value < INT32_MAX) {
        const auto whole = static_cast<std::int32_t>(value);
        if (whole == value) {
            return whole;
        }
    }
    const double rounded = roundHalfToEven(value);
    if (!(rounded >= INT32_MIN && rounded <= INT32_MAX)) {
        raise(RunTimeError::Overflow);
    }
    return static_cast<std::int32_t>(rounded);
}

}  // namespace quorvane
