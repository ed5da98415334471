#include "quorvane/compose/RowForm.h"

#include <utility>

#include "quorvane/docmodel/InnerRow.h"
#include "quorvane/docmodel/layout/LaidOutRows.h"

namespace quorvane {

RowForm::RowForm(Ref<CRtfTableRow> row) : row_(std::move(row)) {
    for (InnerCell* cell : inner(*row_).cells().list()) {
        texts_.push_back(&cell->paragraphs().list().at(1));
    }
}

void RowForm::render(TableRendering& rendering, TableLayout& layout, bool isFirst) const {
    InnerRow& row = inner(*row_);
    const RowSettings& settings = row.settings();
    if (settings.startsPage && !isFirst) {
        LaidOutRows::renderPageStart(rendering.out);
    }
    row.render(rendering, settings, layout.place(row, settings), HeadingForm::PageHeader);
}

}  // namespace quorvane
