#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/memory/Counted.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/TableCollection.h"
#include "quorvane/docmodel/references.h"
#include "quorvane/rtfgroups/CRtfGrpBody.h"

namespace quorvane {

/// The rows of the document's table, in order. When the document is gone, the collection is empty
/// and has no `Parent`; what would change it raises error 91. One that `ClearStructure` took out of
/// the document before keeps its rows.
class CRtfTableRows : public TableCollection<CRtfTableRows, CRtfTableRow> {
public:
    /// The document that the rows were made for; Nothing when it is gone. Rows that a document's
    /// `ClearStructure` let go of still answer it.
    Ref<CRtfDoc> Parent() const;

    /// Puts a new row with this key, and with the ground, the borders and the cells of the old one,
    /// in its place, and answers it. Errors: 5 the old row is not in the list, 457 the key is there
    /// already, the old row's own included.
    Ref<CRtfTableRow> refile(const Ref<CRtfTableRow>& old, std::string_view key);

private:
    friend class TableCollection;
    friend class CRtfDoc;
    friend class CRtfGrpBody<CRtfTableRows>;
    friend void retain(CRtfTableRows* rows) noexcept;
    friend void release(CRtfTableRows* rows) noexcept;

    explicit CRtfTableRows(TableDocument& document) : parent_(&document) {}
    ~CRtfTableRows() = default;

    TableDocument* document() const noexcept { return parent_.get(); }
    void insertNew(const List::Place& place, TableDocument& document);
    void removeAt(std::size_t position) noexcept { list_.removeAt(position); }
    void render(std::string& rtf) const;
    void destroy() noexcept { list_.clear(); }

    Counted counts_;
    WeakRef<TableDocument> parent_;
};

}  // namespace quorvane
