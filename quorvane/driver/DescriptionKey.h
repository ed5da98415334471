#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

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
    Columns,
    Fonts,
    Footer,
    Header,
    Heading,
    LeftMargin,
    Page,
    PageNumberStart,
    PaperHeight,
    PaperWidth,
    ParaAlignment,
    ParaKey,
    ParaMarkedField,
    ParaStyle,
    ParaText,
    Picture,
    PictureHeight,
    PictureWidth,
    RightMargin,
    RowBackColor,
    RowBottomBorder,
    RowHeading,
    RowKeep,
    RowKeepWithNext,
    RowKey,
    RowLeftBorder,
    RowPageBreak,
    RowRightBorder,
    RowTopBorder,
    Rtf,
    Span,
    TopMargin,
    Vspan,
    /// Any other key.
    Unknown,
};

constexpr std::size_t knownKeyCount = static_cast<std::size_t>(DescriptionKey::Unknown);

/// A set of known keys, one bit for each.
using KeySet = std::uint64_t;

/// The set of that key alone; the empty set for an unknown one.
constexpr KeySet setOf(DescriptionKey key) {
    return key == DescriptionKey::Unknown ? 0 : KeySet{1} << static_cast<unsigned>(key);
}

constexpr KeySet setOf(std::initializer_list<DescriptionKey> keys) {
    KeySet set = 0;
    for (const DescriptionKey key : keys) {
        set |= setOf(key);
    }
    return set;
}

/// No set holds an unknown key.
constexpr bool contains(KeySet keys, DescriptionKey key) {
    return (keys & setOf(key)) != 0;
}

// What the values of keys stand for.

inline constexpr KeySet colorKeys =
    setOf({DescriptionKey::RowBackColor, DescriptionKey::CellBackColor});

inline constexpr KeySet borderKeys =
    setOf({DescriptionKey::RowTopBorder, DescriptionKey::RowBottomBorder,
           DescriptionKey::RowLeftBorder, DescriptionKey::RowRightBorder,
           DescriptionKey::CellTopBorder, DescriptionKey::CellBottomBorder,
           DescriptionKey::CellLeftBorder, DescriptionKey::CellRightBorder});

inline constexpr KeySet alignmentKeys =
    setOf({DescriptionKey::CellAlignment, DescriptionKey::ParaAlignment});

/// Under their values rows, cells and paragraphs are filed.
inline constexpr KeySet filingKeys =
    setOf({DescriptionKey::RowKey, DescriptionKey::CellKey, DescriptionKey::ParaKey});

/// The keys whose value may be text or a number; all others take numbers only.
inline constexpr KeySet textOrNumberKeys =
    colorKeys | borderKeys | alignmentKeys |
    setOf({DescriptionKey::ParaText, DescriptionKey::ParaStyle, DescriptionKey::ParaMarkedField,
           DescriptionKey::CellStyle, DescriptionKey::CellMarkedField});

}  // namespace quorvane
