#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/rtfgroups/DocumentTables.h"
#include "quorvane/stylesheet/StyleProperty.h"

namespace quorvane {

/// An item of a style with a valid value.
struct StyleValue {
    const StyleProperty* property = nullptr;
    /// The control words; of a font its name, of a color its name or "#rrggbb" in lower case.
    std::string text;
    /// Nothing for the automatic color, and for what is not a color.
    std::optional<RgbColor> color;
};

/// The items of a style, and those that it inherits.
using StyleFormat = std::vector<StyleValue>;

/// Reads the value of an item; nothing when it is not valid.
std::optional<StyleValue> readStyleValue(const StyleProperty& property, std::string_view value);

/// The value of an item that has no ":"; nothing when it needs one.
std::optional<StyleValue> styleValueOfWordAlone(const StyleProperty& property);

/// Puts an item into a format, in place of one that sets the same.
void setStyleValue(StyleFormat& format, const StyleValue& value);

/// The control words of a format in a paragraph or character style.
std::string controlWordsOf(const StyleFormat& format, StyleKind kind, DocumentTables& tables);

/// The color that a text names, in lower case: one of the color table, or "#1f4e79" by its red,
/// green and blue. Nothing for any other text.
std::optional<RgbColor> readColor(std::string_view text);

}  // namespace quorvane
