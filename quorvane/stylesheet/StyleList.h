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

/// Number of the style at a position of its list, as it is written in the document.
constexpr int styleNumber(int position) {
    return position + 99;
}

}  // namespace quorvane
