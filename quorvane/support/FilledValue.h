#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace quorvane {

/// A part of a text: from `begin` to before `end`.
struct TextRange {
    std::size_t begin = 0;
    std::size_t end = 0;

    bool operator==(const TextRange&) const = default;
};

/// The value of a key in a template, filled from data.
struct FilledValue {
    /// It may hold any character, line breaks as well.
    std::string_view text;
    /// What of the text comes from data, in ascending order. It shows as it is where a text is
    /// shown: no character of it means anything.
    std::span<const TextRange> data;
    /// The value as it is written in the template.
    std::string_view written;
    /// The data is not known, and so is the text: the key has some value that is right.
    bool isUnknown = false;
};

}  // namespace quorvane
