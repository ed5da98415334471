#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace quorvane::bench {

// Descriptions of the same documents in both languages, for the standard stylesheet.

enum class Language : std::uint8_t { Original, Extended };

/// How the cells of a table of three columns get their widths.
enum class Widths : std::uint8_t {
    /// All cells of a row are equally wide.
    Even,
    /// Each cell has a width.
    OfCells,
    /// The document has a list of columns; each cell has a width in the original language, which
    /// has no such list.
    OfColumns,
};

enum class Letters : std::uint8_t { Ascii, Accented };

inline constexpr std::int32_t columnsOfTable = 3;

/// A table of rows of three cells of one paragraph. The original language takes 333 rows at most.
std::string tableDescription(Language language, Widths widths, Letters letters, std::int32_t rows);

/// An invoice of one page: two lines of letterhead, an address, 20 items with a bold word each,
/// and a total, with widths, colors, borders, alignments and styles.
std::string invoiceDescription(Language language, std::int32_t number);
/// How many lines it has.
std::int64_t linesOfInvoice();

}  // namespace quorvane::bench
