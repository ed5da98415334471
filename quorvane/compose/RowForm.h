#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/InnerParagraph.h"
#include "quorvane/docmodel/TableRendering.h"
#include "quorvane/docmodel/layout/TableLayout.h"

namespace quorvane {

/// A row of a document that many rows of a table are rendered as, each with its own texts.
class RowForm {
public:
    /// Each cell of the row has one paragraph.
    explicit RowForm(Ref<CRtfTableRow> row);

    std::size_t size() const noexcept { return texts_.size(); }
    /// Sets the text of a cell, from 0.
    void setText(std::size_t index, std::string_view rtf) { texts_[index]->setText(rtf); }
    /// Writes the row. If it starts a page and is not the first one, that stands before it.
    void render(TableRendering& rendering, TableLayout& layout, bool isFirst) const;

private:
    Ref<CRtfTableRow> row_;
    std::vector<InnerParagraph*> texts_;
};

}  // namespace quorvane
