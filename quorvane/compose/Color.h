#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/docmodel/enumerations.h"

namespace quorvane {

/// A color: one of those that every document has (`eSilver`), or a text as in the extended
/// language: a name such as "light-yellow", or "#" and six hexadecimal digits.
class Color {
public:
    /// A color by its number, from `eNoColor` to `eRedBrick`. Error "wrong-value" for any other
    /// number.
    Color(tColorIndex index);
    /// The color that a text names; "none" is `eNoColor`. Error "wrong-value" for any other text.
    Color(std::string_view text);
    Color(const std::string& text) : Color(std::string_view(text)) {}
    Color(const char* text) : Color(std::string_view(text ? text : "")) {}

    /// Returns the color of these parts, each from 0 to 255. Error "wrong-value" for another part.
    static Color rgb(int red, int green, int blue);

private:
    friend class ComposedDocument;

    tColorIndex index_ = eNoColor;
    bool hasParts_ = false;
    std::uint8_t red_ = 0;
    std::uint8_t green_ = 0;
    std::uint8_t blue_ = 0;
};

}  // namespace quorvane
