#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

namespace quorvane {

/// What only few cells and paragraphs have, so that the others do not pay for it.
struct RareValues {
    /// Hexadecimal data of a marked field.
    std::string fieldData;
    /// The properties of a cell, where they are no usual values.
    std::int32_t backColor = 0;
    std::int32_t align = 0;
};

/// The rare values of a document, by the addresses of the cells and paragraphs that have some. Each
/// of these knows that it has, and calls `erase` before it goes.
using RareValuesByElement = std::unordered_map<const void*, RareValues>;

}  // namespace quorvane
