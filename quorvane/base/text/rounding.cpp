#include "quorvane/base/text/rounding.h"

#include <cmath>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

namespace {

double roundHalfToEven(double value) noexcept {
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
    if (!fitsInLong(value)) {
        raise(RunTimeError::Overflow);
    }
    return static_cast<std::int32_t>(roundHalfToEven(value));
}

bool fitsInLong(double value) noexcept {
    const double rounded = roundHalfToEven(value);
    return rounded >= INT32_MIN && rounded <= INT32_MAX;
}

}  // namespace quorvane
