#pragma once

#include <map>
#include <span>

#include "quorvane/diagnostics/description/PageWarnings.h"
#include "quorvane/diagnostics/description/widthOrder.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/DocumentBuilder.h"

namespace quorvane {

/// Warns of cells that are not as wide as their percentages say, and of a table that does not fill
/// the room between the margins or goes beyond it.
class WidthWarnings {
public:
    /// What is wrong with the page is not reported for the table again. `page` must outlive this.
    WidthWarnings(const PageWarnings& page, const SourceText& source, DiagnosticEngine& engine)
        : page_(page), source_(source), engine_(engine) {}

    void findInRow(const DescriptionNode& doc, const DescriptionNode& row,
                   std::span<const BuiltTable::Cell> cells, const CRtfDoc& document);

private:
    struct RowWidths;

    void findSum(const DescriptionNode& row, const RowWidths& widths);
    void findTableWidth(const DescriptionNode& doc, const DescriptionNode& row,
                        const RowWidths& widths, const CRtfDoc& document);
    void findClampedWidths(std::span<const BuiltTable::Cell> cells, const RowWidths& widths,
                           std::int32_t room);
    Hint orderHint(const CellPercents& percents, std::int32_t room);

    const PageWarnings& page_;
    const SourceText& source_;
    DiagnosticEngine& engine_;
    bool isOverrunReported_ = false;
    bool isUnderrunReported_ = false;
    std::map<CellPercents, Hint> orderHints_;
};

}  // namespace quorvane
