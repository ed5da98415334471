#include "quorvane/formatting/upgradedValue.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "quorvane/base/text/hexadecimal.h"
#include "quorvane/driver/Vocabulary.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

namespace quorvane {

namespace {

/// The name of a value; empty if it has none.
template <class Value>
std::string nameOf(Value value, const std::vector<std::string_view>& names,
                   std::optional<Value> (Vocabulary::*find)(std::string_view) const) {
    const auto found = std::find_if(names.begin(), names.end(), [&](std::string_view name) {
        return (originalVocabulary().*find)(name) == value;
    });
    return found == names.end() ? std::string() : std::string(*found);
}

std::string componentsOf(const RgbColor& color) {
    std::string text = "#";
    for (const std::uint8_t component : {color.red, color.green, color.blue}) {
        text += hexadecimal(component, 2, lowerHexadecimalDigits);
    }
    return text;
}

std::string colorName(tColorIndex color) {
    const Vocabulary& words = originalVocabulary();
    const std::string name = nameOf(color, words.colorNames(), &Vocabulary::colorNamed);
    const std::optional<RgbColor> components = CRtfGrpColorTable::color(color);
    return name.empty() && components ? componentsOf(*components) : name;
}

}  // namespace

std::string upgradedValue(const Leaf& leaf) {
    const Vocabulary& words = originalVocabulary();
    const DescriptionKey key = leaf.key.known;
    if (!leaf.isNumber()) {
        return std::string(leaf.text);
    }
    if (contains(colorKeys, key)) {
        return colorName(*words.colorOf(leaf));
    }
    if (contains(borderKeys, key)) {
        return nameOf(*words.borderOf(leaf), words.borderNames(), &Vocabulary::borderNamed);
    }
    if (contains(alignmentKeys, key)) {
        return nameOf(*words.alignmentOf(leaf), words.alignmentNames(),
                      &Vocabulary::alignmentNamed);
    }
    // A number is no data: the paragraph is marked without any.
    return key == DescriptionKey::ParaMarkedField ? std::string() : leaf.valueText();
}

bool isWithoutEffect(const Leaf& leaf) {
    return leaf.key.known == DescriptionKey::CellMarkedField && leaf.isNumber();
}

}  // namespace quorvane
