#include "quorvane/diagnostics/description/textFormatHints.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/text/colorComponents.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/rtfgroups/CRtfGrpFontTable.h"

namespace quorvane {

namespace {

enum class Property { Color, Font, Size, Bold, Italic, Underline, Strike };

constexpr std::pair<std::string_view, Property> keys[] = {
    {"color", Property::Color},
    {"colour", Property::Color},
    {"text-color", Property::Color},
    {"text-colour", Property::Color},
    {"font-color", Property::Color},
    {"font-colour", Property::Color},
    {"para-color", Property::Color},
    {"para-colour", Property::Color},
    {"fore-color", Property::Color},
    {"forecolor", Property::Color},
    {"para-forecolor", Property::Color},
    {"foreground", Property::Color},
    {"textcolor", Property::Color},
    {"fontcolor", Property::Color},
    {"font", Property::Font},
    {"font-name", Property::Font},
    {"font-family", Property::Font},
    {"fontname", Property::Font},
    {"para-font", Property::Font},
    {"typeface", Property::Font},
    {"size", Property::Size},
    {"font-size", Property::Size},
    {"fontsize", Property::Size},
    {"text-size", Property::Size},
    {"para-size", Property::Size},
    {"bold", Property::Bold},
    {"font-weight", Property::Bold},
    {"weight", Property::Bold},
    {"para-bold", Property::Bold},
    {"font-bold", Property::Bold},
    {"italic", Property::Italic},
    {"italics", Property::Italic},
    {"font-style", Property::Italic},
    {"para-italic", Property::Italic},
    {"underline", Property::Underline},
    {"underlined", Property::Underline},
    {"strike", Property::Strike},
    {"strikethrough", Property::Strike},
};

std::optional<Property> propertyOf(std::string_view key) {
    const std::string lower = lowerCase(key);
    const auto* found = std::find_if(std::begin(keys), std::end(keys),
                                     [&](const auto& entry) { return entry.first == lower; });
    return found == std::end(keys) ? std::nullopt : std::optional(found->second);
}

/// A style for an example: a name, and its format.
struct Example {
    std::string name;
    std::string format;
};

Example colorExample(const std::string& value, const Vocabulary& vocabulary) {
    const std::optional<RgbColor> components = componentsIn(value);
    const std::string name = components ? nearestColorName(*components, vocabulary) : value;
    std::int32_t number = CRtfGrpColorTable::colorNumber(name);
    if (components) {
        number = vocabulary.colorNamed(name).value_or(eNoColor);
    }
    return number == 0 ? Example{"red", "\\cf30"} : Example{name, "\\cf" + std::to_string(number)};
}

Example fontExample(const std::string& value) {
    const std::int32_t number = CRtfGrpFontTable().GetFontIndex("* " + value + ";}");
    return number > 0 ? Example{lowerCase(value), "\\f" + std::to_string(number)}
                      : Example{"arial", "\\f0"};
}

Example sizeExample(std::string_view value) {
    const std::optional<double> points =
        readNumber(value.substr(0, value.find_first_not_of(".0123456789")));
    const long halves = points && *points >= 1 && *points < 1000 ? std::lround(*points * 2) : 28;
    return {"large", "\\fs" + std::to_string(halves)};
}

Example exampleOf(Property property, const std::string& value) {
    switch (property) {
        case Property::Color:
            return colorExample(lowerCase(value), originalVocabulary());
        case Property::Font:
            return value.find_first_of("*?#[]") == std::string::npos ? fontExample(value)
                                                                     : fontExample({});
        case Property::Size:
            return sizeExample(value);
        case Property::Bold:
            return {"strong", "\\b"};
        case Property::Italic:
            return {"emphasis", "\\i"};
        case Property::Underline:
            return {"underlined", "\\ul"};
        case Property::Strike:
            break;
    }
    return {"struck", "\\strike"};
}

}  // namespace

Hint textFormatHint(NodeKind kind, std::string_view key, std::string_view value) {
    const std::optional<Property> property = propertyOf(key);
    if (!property || kind == NodeKind::Doc ||
        (property == Property::Color && kind != NodeKind::Para)) {
        return {};
    }
    const Example example = exampleOf(*property, std::string(trimWhitespace(value)));
    return "use a style: (ps=" + example.name + ") with { name: " + example.name +
           "; style-def: s; format: " + example.format +
           " } in the stylesheet; for a few words, <" + example.name + "=words> with style-def: cs";
}

}  // namespace quorvane
