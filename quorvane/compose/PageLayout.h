#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "quorvane/compose/Length.h"
#include "quorvane/compose/Width.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane {

/// The page and the columns of a document, which are set in any order and fitted together later.
/// Errors are `LeafError`.
class PageLayout {
public:
    /// The document must outlive the layout.
    explicit PageLayout(CRtfDoc& document) : document_(document) {}

    void setPaper(const PageSize& size);
    void setMargins(Length left, Length right, Length top, Length bottom);
    void setColumns(std::span<const Width> widths);
    void setColumns(CRtfTableRow& row, std::span<const Width> widths);
    /// For when a row is removed.
    void forget(const CRtfTableRow& row);

    /// Gives the document page and columns as they were set. After an error it can be called again.
    void apply();

private:
    using Widths = std::vector<std::optional<ColumnWidth>>;

    struct Page {
        PageSize size;
        std::int32_t left;
        std::int32_t right;
        std::int32_t top;
        std::int32_t bottom;
    };
    struct RowColumns {
        // No other row can have its address.
        Ref<CRtfTableRow> row;
        Widths widths;
    };

    static Widths widthsOf(std::span<const Width> widths);
    Page& page();
    Page documentPage() const;
    void setPage(const Page& page);
    void applyPage();
    void applyColumns();
    void apply(const RowColumns& columns);
    std::vector<std::int32_t> twipsOf(const Widths& widths) const;
    void spreadRows();

    CRtfDoc& document_;
    // The page that was set and is not applied yet.
    std::optional<Page> page_;
    // The columns, and whether those of the document and of which rows are not applied yet.
    std::optional<Widths> columns_;
    std::unordered_map<const CRtfTableRow*, RowColumns> rows_;
    bool hasNewColumns_ = false;
    std::vector<const CRtfTableRow*> newRows_;
};

}  // namespace quorvane
