#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvane {

/// A style under one of its names. Record strings as the stylesheet's parser makes them.
struct Style {
    std::string name;
    std::string record;

    std::string kind() const;
    /// The RTF control words, or a cell style's colour.
    std::string format() const;
    std::string basedOn() const;
    std::string next() const;
    bool isAdditive() const;
};

/// Styles of one kind, in the order of the stylesheet.
class StyleList {
public:
    /// Appends a style. A name that is there already is found at its first style only.
    void add(std::string name, std::string record);
    void clear() noexcept;

    std::size_t count() const noexcept { return styles_.size(); }
    bool empty() const noexcept { return styles_.empty(); }
    /// The style at a 1-based position, which must be there.
    const Style& at(int position) const { return styles_[static_cast<std::size_t>(position) - 1]; }

    /// 1-based position of the first style of that name, which must be in lower case;
    /// -1 when there is none.
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
