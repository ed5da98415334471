#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

namespace quorvane {

// The values of the extended language. Each function throws a `LeafError` of the fault `WrongValue`
// for any other text; its description says what to write instead.

/// A length in twips: a number of twips, or one with "mm", "cm", "in" or "pt" ("12.5mm").
std::int32_t lengthOf(std::string_view text);

/// A length that is at least `min` twips, and at most the 22 inches that a page can have.
std::int32_t lengthFrom(std::int32_t min, std::string_view text);

/// A whole number from `min` to `max`.
std::int32_t wholeNumber(std::string_view text, std::int32_t min, std::int32_t max);

/// The most columns that a cell takes, and the largest number of the first page.
inline constexpr std::int32_t maxSpan = 63;
inline constexpr std::int32_t lastPageNumber = 32767;

/// "yes" or "no".
bool yesOrNo(std::string_view text);

/// A page by its name: "a3", "a4", "a5", "a6", "b5", "letter", "legal", "tabloid" or "executive",
/// each also with "-landscape" after it.
struct PageSize {
    std::int32_t width;
    std::int32_t height;
};
PageSize pageSizeNamed(std::string_view text);

/// The name of a page of that size; empty if none has it.
std::string pageName(const PageSize& size);

/// The width of a column: a share of the text area or a length.
struct ColumnWidth {
    double amount = 0;
    /// The amount is percent of the text area, otherwise twips.
    bool isShare = false;

    bool operator==(const ColumnWidth&) const = default;
};

/// A width: percent ("20" or "20%") or a length with a unit ("3cm"), above 0.
ColumnWidth columnWidth(std::string_view text);

/// The widths of all columns, with blanks or commas between them.
std::vector<ColumnWidth> columnWidths(std::string_view text);

/// The red, green and blue of a color such as "#1f4e79"; nothing for a text that does not begin
/// with "#".
std::optional<RgbColor> colorComponents(std::string_view text);

/// What stands at the left, in the center and at the right of the head or foot of a page: the parts
/// of "left|center|right". Parts at the end can be missing.
std::array<std::string, 3> pageLineParts(std::string_view text);

/// The names between commas.
std::vector<std::string_view> listedNames(std::string_view text);

}  // namespace quorvane
