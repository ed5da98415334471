#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// Reads digits with an optional point and an optional exponent, which is the whole text, as the
/// nearest double. False if that is too great or too small.
bool readDouble(std::string_view text, double& number);

/// The fewest digits that read back as this number, without an exponent: "0.25".
std::string plainDouble(double number);
/// The same with one digit before the point, and an exponent of at least two digits: "2.5e-01".
std::string doubleWithExponent(double number);

}  // namespace quorvane
