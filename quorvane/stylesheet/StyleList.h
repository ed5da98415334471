#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "quorvane/stylesheet/StyleKind.h"

namespace quorvane {

/// The kind that a value of "style-def" names: "s" paragraph, "cs" character, any other cell.
StyleKind styleKindNamed(std::string_view word);

/// A style under one of its names. `record` is the record string that the parser makes.
struct Style {
    std::string name;
    std::string record;

    /// The value of "style-def"; empty when there is none.
    std::string kind() const;
    /// The RTF control words, or the color of a cell style.
    std::string format() const;
    std::string basedOn() const;
    std::string next() const;
    bool isAdditive() const;
    /// The name in the case in which an extended stylesheet has it.
    std::string writtenName() const;
};

/// Styles of one kind, in the order of the stylesheet.
class StyleList {
public:
    /// Appends a style. Of several styles with one name, `find` returns the first.
    void add(std::string name, std::string record);
    void clear() noexcept;

    std::size_t count() const noexcept { return styles_.size(); }
    bool empty() const noexcept { return styles_.empty(); }
    /// The style at a 1-based position, which must be valid.
    const Style& at(int position) const { return styles_[static_cast<std::size_t>(position) - 1]; }

    /// 1-based position of the first style of that name, which must be in lower case;
    /// -1 when no style has it.
    int find(std::string_view name) const;

private:
    std::vector<Style> styles_;
    std::unordered_map<std::string, int> positions_;
};

/// The paragraph style that is the default of a document.
inline constexpr std::string_view normalStyle = "normal";

/// The numbers of the styles of a list, as they are written in the document.
struct StyleNumbers {
    /// The number of the style at position 1.
    int first = 100;
    /// The position of the style that has the number 0 instead; 0 for none.
    int zero = 0;

    constexpr int at(int position) const { return position == zero ? 0 : first + position - 1; }
};

/// What the language of a stylesheet makes of its styles.
struct SheetForm {
    /// In the original language both kinds begin with 100. In the extended language character
    /// styles come after paragraph styles, and the paragraph style "normal" has the number 0.
    StyleNumbers paragraph;
    StyleNumbers character;
    bool isExtended = false;
    /// The position of the style for paragraphs whose style is unknown: in the original language
    /// the first one, in the extended language "normal"; 0 for none.
    int unknown = 0;
};

SheetForm originalForm(const StyleList& paragraphStyles);
SheetForm extendedForm(const StyleList& paragraphStyles);

}  // namespace quorvane
