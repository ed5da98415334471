#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// An item of a definition; the views are into the stylesheet.
struct SheetItem {
    /// All of it, without the blanks around it.
    std::string_view whole;
    /// In lower case.
    std::string keyword;
    std::string_view writtenKeyword;
    std::string_view value;
};

/// A definition of a stylesheet.
struct SheetDefinition {
    /// What stands between its braces; empty for braces that stand the wrong way round.
    std::string_view body;
    /// Its brace.
    std::string_view brace;
    /// The items that are not empty.
    std::vector<SheetItem> items;
};

/// What a stylesheet says, as far as its braces go.
struct StyleSheetOutline {
    std::vector<SheetDefinition> definitions;
    /// The first brace that has no partner; empty when there are as many "{" as "}".
    std::string_view loneBrace;
};

StyleSheetOutline readStyleSheetOutline(std::string_view text);

/// The names in the value of an item "name", as they are written, without the blanks around them.
std::vector<std::string_view> namesIn(std::string_view value);

}  // namespace quorvane
