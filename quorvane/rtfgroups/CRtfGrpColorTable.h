#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "quorvane/base/text/TextOutput.h"

namespace quorvane {

/// A color by its parts of red, green and blue, each from 0 to 255.
struct RgbColor {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const RgbColor& other) const = default;
};

/// The color table: the same 57 colors, numbers 1 to 57, in every document; number 0 is the
/// automatic color.
class CRtfGrpColorTable {
public:
    /// How many colors there are. Their numbers begin with 1.
    static constexpr std::int32_t colorCount = 57;

    /// The color of that number; nothing for 0 and for a number that the table does not have.
    static std::optional<RgbColor> color(std::int32_t number);

    /// Number of the color whose name, with "-" in place of its blanks, is the given one
    /// ("navy-blue" is 24); 0 for "none" and any other word. Case counts.
    static std::int32_t colorNumber(std::string_view dashedName);

    /// Name of the color of that number, with "-" in place of its blanks ("navy-blue" for 24);
    /// empty for 0 and for a number that the table does not have.
    static std::string colorName(std::int32_t number);

    /// Writes the group's text, with these colors after those of the table.
    void render(TextOutput& rtf, std::span<const RgbColor> added = {}) const;
};

}  // namespace quorvane
