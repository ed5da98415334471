#pragma once

#include <cstdint>

#include "quorvane/base/text/rounding.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane {

// Arithmetic of measures: 32 bits, error 6 where a result leaves them.

inline std::int32_t checkedMeasure(std::int64_t value) {
    if (value < INT32_MIN || value > INT32_MAX) {
        raise(RunTimeError::Overflow);
    }
    return static_cast<std::int32_t>(value);
}

inline std::int32_t sum(std::int32_t a, std::int32_t b) {
    return checkedMeasure(std::int64_t{a} + b);
}

inline std::int32_t difference(std::int32_t a, std::int32_t b) {
    return checkedMeasure(std::int64_t{a} - b);
}

inline std::int32_t product(std::int32_t a, std::int32_t b) {
    return checkedMeasure(std::int64_t{a} * b);
}

/// The quotient as the nearest whole number, halves to even. Error 11 for a divisor of 0.
inline std::int32_t quotient(std::int32_t a, std::int32_t b) {
    if (b == 0) {
        raise(RunTimeError::DivisionByZero);
    }
    return roundToLong(static_cast<double>(a) / b);
}

}  // namespace quorvane
