#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/filters.h"

namespace quorvane::data {

enum class TagKind : std::uint8_t {
    /// `{{name}}`
    Value,
    /// `{{{name}}}` and `{{&name}}`: as it is, where that means something.
    Raw,
    /// `{{#name}}`
    Section,
    /// `{{^name}}`
    Inverted,
    /// `{{/name}}`
    Close,
    /// `{{> name}}`
    Partial,
    /// `{{! text}}`
    Comment,
};

/// A tag as it stands in a template; the views are into it.
struct TemplateTag {
    TagKind kind{};
    /// With its braces.
    std::string_view whole = {};
    /// What it names, without the blanks around it; empty for one that does not end.
    std::string_view content = {};
    bool isEnded = true;
};

/// The tags on a line, from left to right. One that does not end goes on to the end of the line.
std::vector<TemplateTag> tagsIn(std::string_view line);

/// Where a value is looked for.
struct TagPath {
    enum class Kind : std::uint8_t {
        /// By its name in the innermost object, and by further names in what was found.
        Names,
        /// `.`: the item of the innermost list, or what the innermost section is about.
        This,
        /// `@index`: the number of the item in its list, from 1.
        Index,
        /// `@first`, `@last`: whether it is the first or the last one.
        First,
        Last,
    };

    Kind kind = Kind::Names;
    /// How many objects (or lists, for what begins with `@`) further out.
    std::size_t outward = 0;
    std::vector<std::string> names = {};
};

/// What a tag asks for.
struct TagQuery {
    TagPath path = {};
    std::vector<Filter> filters = {};
    /// The path as it is written.
    std::string_view written = {};
};

/// The name as it is written in a tag: "[Nr.]" where it has characters that mean something there.
std::string writtenName(std::string_view name);

/// Reads what a tag names: "../customer.name|upper", "customer.[Nr.]". `error` is what is wrong
/// with it, a sentence without a full stop, and empty where nothing is.
TagQuery tagQuery(std::string_view content, std::string& error);

}  // namespace quorvane::data
