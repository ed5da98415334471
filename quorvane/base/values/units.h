#pragma once

#include <optional>
#include <string_view>

namespace quorvane {

/// A unit of length.
struct LengthUnit {
    /// Its name in the plural.
    std::string_view name;
    double twips;
};

inline constexpr LengthUnit twipUnit{"twips", 1};
inline constexpr LengthUnit pointUnit{"points", 20};
inline constexpr LengthUnit picaUnit{"picas", 240};
inline constexpr LengthUnit inchUnit{"inches", 1440};
inline constexpr LengthUnit centimeterUnit{"centimeters", inchUnit.twips / 2.54};
inline constexpr LengthUnit millimeterUnit{"millimeters", inchUnit.twips / 25.4};

/// The unit that a word after a number stands for, such as "mm" or "inches", in any case; null for
/// any other word.
const LengthUnit* lengthUnitOf(std::string_view word);

/// A number with the word after it.
struct NumberWithUnit {
    double number = 0;
    /// The number as it is written.
    std::string_view writtenNumber;
    /// What follows it, without the blanks around it; empty for a number alone.
    std::string_view unit;
};

/// Takes a text such as "12.5 mm" apart. The views are of the text. Nothing for a text that does
/// not begin with a number; an exponent counts as a part of the unit.
std::optional<NumberWithUnit> readNumberWithUnit(std::string_view text);

/// The twips of a length such as "12.5mm"; a number without a unit is one of twips. Nothing for any
/// other text.
std::optional<double> lengthInTwips(std::string_view text);

}  // namespace quorvane
