#pragma once

#include <string_view>
#include <vector>

#include "quorvane/stylesheet/StyleList.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"

namespace quorvane {

/// A definition of a stylesheet, with its items in order.
struct OutlinedDefinition {
    /// Its "{".
    std::string_view brace;
    std::vector<StyleItem> items;
};

/// The definitions of a stylesheet, valid or not.
struct StyleSheetOutline {
    std::vector<OutlinedDefinition> definitions;
    /// The first unmatched brace; empty when there are as many "{" as "}", and in the extended
    /// dialect.
    std::string_view loneBrace;
};

/// Reads a stylesheet as loading does when it has as many "{" as "}". Otherwise every "{" begins a
/// definition that ends at the next brace: that is most likely how it is meant.
StyleSheetOutline readStyleSheetOutline(std::string_view text);

/// The names of a definition; none when its first item is not "name".
std::vector<std::string_view> namesOf(const OutlinedDefinition& definition);

/// The kind that a definition has or is most likely meant to have.
StyleKind kindOf(const OutlinedDefinition& definition);

}  // namespace quorvane
