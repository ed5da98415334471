#pragma once

#include <cstddef>
#include <string_view>

#include "quorvane/docmodel/HeadingForm.h"
#include "quorvane/docmodel/InnerRows.h"
#include "quorvane/docmodel/TableRendering.h"

namespace quorvane {

/// The rows of a document that has additions to the layout of its table: columns, spans, headings,
/// rows that start a page.
class LaidOutRows {
public:
    LaidOutRows(const InnerRows& rows, TableDocument& document);

    /// A `LayoutError` 5 for what cannot be written. Otherwise the rows can be rendered.
    void check() const;

    /// True if the first rows go into the page header.
    bool hasPageHeading() const noexcept {
        return headings_ > 0 && form_ == HeadingForm::PageHeader;
    }
    void renderHeading(TableRendering& rendering) const;
    /// Ends the table, and begins a page for one of the same columns.
    static void renderPageStart(TextOutput& out);
    /// Writes all rows that are not in the page header.
    void renderBody(TableRendering& rendering) const;

private:
    void checkRows(std::size_t& position) const;
    bool startsPage(const RowSettings& settings, std::size_t position) const;
    std::string_view endsBefore(const RowSettings& settings, std::size_t position) const;

    const InnerRows::List& rows_;
    TableDocument& document_;
    HeadingForm form_;
    // How many of the first rows repeat.
    std::size_t headings_ = 0;
};

}  // namespace quorvane
