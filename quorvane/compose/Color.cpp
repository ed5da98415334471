#include "quorvane/compose/Color.h"

#include <algorithm>

#include "quorvane/compose/composing.h"
#include "quorvane/driver/LeafError.h"
#include "quorvane/driver/Vocabulary.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane {

namespace {

[[noreturn]] void refuse(std::string_view text) {
    throw LeafError(DriverFault::WrongValue,
                    '"' + std::string(text) +
                        "\" is not a color; write a name such as light-yellow, or # and six "
                        "hexadecimal digits");
}

}  // namespace

Color::Color(tColorIndex index) : index_(index) {
    if (index < eNoColor || index > eRedBrick) {
        composing([&] { refuse(std::to_string(index)); });
    }
}

Color::Color(std::string_view text) {
    composing([&] {
        if (const std::optional<RgbColor> parts = colorComponents(text)) {
            hasParts_ = true;
            red_ = parts->red;
            green_ = parts->green;
            blue_ = parts->blue;
        } else if (const auto index = extendedVocabulary().colorNamed(text)) {
            index_ = *index;
        } else {
            refuse(text);
        }
    });
}

Color Color::rgb(int red, int green, int blue) {
    for (const int part : {red, green, blue}) {
        if (part < 0 || part > UINT8_MAX) {
            throw Error({.message = "A part of a color is a number from 0 to 255, not " +
                                    std::to_string(part) + ".",
                         .identifier = "wrong-value"});
        }
    }
    Color color(eNoColor);
    color.hasParts_ = true;
    color.red_ = static_cast<std::uint8_t>(red);
    color.green_ = static_cast<std::uint8_t>(green);
    color.blue_ = static_cast<std::uint8_t>(blue);
    return color;
}

}  // namespace quorvane
