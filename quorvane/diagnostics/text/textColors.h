#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/KnownStyles.h"

namespace quorvane {

/// The colors that text is written in, as numbers of the color table; 0 for no color.
struct TextColors {
    std::int32_t text = 0;
    std::int32_t ground = 0;

    bool operator==(const TextColors& other) const = default;
};

/// A visible part of a text, in one pair of colors.
struct ColoredPart {
    std::string_view part;
    TextColors colors;
};

/// The colors after the control words of a format, which begin with those before it.
TextColors colorsAfter(std::string_view format, TextColors before);

/// The parts of a paragraph's text, in which inline styles and control words change the colors that
/// it begins with. Text that is not seen, such as the instruction of a field, is not among them.
/// Without styles, inline styles change nothing.
std::vector<ColoredPart> coloredParts(std::string_view text, TextColors colors,
                                      const KnownStyles* styles);

}  // namespace quorvane
