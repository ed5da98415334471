#pragma once

#include <string>

#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/support/Ref.h"

namespace quorvane {

/// The last group of a document: its one table.
class CRtfGrpBody {
public:
    explicit CRtfGrpBody(TableDocument& document)
        : document_(document), rows_(new CRtfTableRows(document)) {}

    /// The rows; the same object every time.
    Ref<CRtfTableRows> TableRows() const { return rows_; }

    /// Appends the rows' text.
    void render(std::string& rtf) const { rows_->render(document_, rtf); }

private:
    TableDocument& document_;
    Ref<CRtfTableRows> rows_;
};

}  // namespace quorvane
