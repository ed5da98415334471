#pragma once

#include <cstdint>

namespace quorvane {

/// How the rows that repeat as a heading are written; see `CRtfDoc::setHeadingForm`.
enum class HeadingForm : std::uint8_t {
    /// In the page header, as a table above the rows of each page.
    PageHeader,
    /// In the table, with the control word `\trhdr`.
    RowProperty,
};

}  // namespace quorvane
