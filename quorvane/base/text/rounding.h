#pragma once

#include <cstdint>

namespace quorvane {

/// The whole number nearest to the value, of two equally near the even one, whatever rounding the
/// thread's floating-point unit is set to. Error 6 when it does not fit in 32 bits, or the value is
/// not a number.
std::int32_t roundToLong(double value);

/// True when `roundToLong` has a result.
bool fitsInLong(double value) noexcept;

}  // namespace quorvane
