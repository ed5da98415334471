#pragma once

#include <cstddef>
#include <cstdint>

namespace quorvane {

/// The keys that nodes of a description have, in ascending order of their names.
enum class DescriptionKey : std::uint8_t {
    BottomMargin,
    CellAlignment,
    CellBackColor,
    CellBottomBorder,
    CellKey,
    CellLeftBorder,
    CellMarkedField,
    CellRightBorder,
    CellStyle,
    CellTopBorder,
    CellWidth,
    LeftMargin,
    PageNumberStart,
    PaperHeight,
    PaperWidth,
    ParaAlignment,
    ParaKey,
    ParaMarkedField,
    ParaStyle,
    ParaText,
    RightMargin,
    RowBackColor,
    RowBottomBorder,
    RowKey,
    RowLeftBorder,
    RowRightBorder,
    RowTopBorder,
    TopMargin,
    /// Any other key.
    Unknown,
};

constexpr std::size_t knownKeyCount = static_cast<std::size_t>(DescriptionKey::Unknown);

/// A set of known keys, one bit for each.
using KeySet = std::uint32_t;

/// The set of that key alone; the empty set for an unknown one.
constexpr KeySet setOf(DescriptionKey key) {
    return key == DescriptionKey::Unknown ? 0 : KeySet{1} << static_cast<unsigned>(key);
}

}  // namespace quorvane
