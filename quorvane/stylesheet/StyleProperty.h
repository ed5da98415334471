#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "quorvane/stylesheet/StyleKind.h"

namespace quorvane {

/// What the value of an item of an extended stylesheet is.
enum class StyleValueType {
    /// yes or no; an item without a value means yes.
    Truth,
    /// One of a list of words; an item without a value means the first one.
    Choice,
    Font,
    /// The size of a font: a length with its unit.
    FontSize,
    /// The name of a color, "#rrggbb", or none.
    Color,
    Length,
    /// A multiple of the height of a line, or a length.
    LineHeight,
    Language,
    TabStops,
    /// Control words of RTF.
    ControlWords
};

/// A word that an item may have as its value, and the control words that stand for it.
struct StyleChoice {
    std::string_view word;
    std::string_view rtf;
};

/// An item of an extended stylesheet that formats.
struct StyleProperty {
    /// Its keyword.
    std::string_view word;
    StyleValueType type;
    /// False for what only a whole paragraph can have.
    bool isForCharacters = true;
    /// The control word that a number follows; empty for the types that need none.
    std::string_view rtf = {};
    /// By the type: both words of a truth, those of a choice.
    std::span<const StyleChoice> choices = {};
    /// The shortest length, in twips.
    std::int32_t shortest = 0;
    /// Items of one group exclude one another; empty for an item of its own.
    std::string_view group = {};

    /// Whether two items set the same.
    bool sharesGroupWith(const StyleProperty& other) const {
        return &other == this || (!group.empty() && group == other.group);
    }
    bool isFor(StyleKind kind) const;
};

/// No length of a style is longer, in twips: 22 inches, the greatest page.
inline constexpr std::int32_t longestStyleLength = 31680;

/// All of them, in the order in which the documentation lists them.
std::span<const StyleProperty> styleProperties();

/// The property of that keyword, which is in lower case; null when there is none.
const StyleProperty* findStyleProperty(std::string_view word);

/// A language that a text may be marked with.
struct StyleLanguage {
    /// Its tag, such as "de-DE".
    std::string_view tag;
    /// Its number in RTF.
    std::int32_t number;
};

/// All of them, in the order of their tags.
std::span<const StyleLanguage> styleLanguages();

}  // namespace quorvane
