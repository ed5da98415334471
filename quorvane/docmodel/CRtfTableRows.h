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

/// The rows of the table, in order. When the document no longer exists, the collection is empty and
/// has no `Parent`, and every call that would change it raises error 91. A collection that
/// `CRtfDoc::ClearStructure` replaced before keeps its rows.
class CRtfTableRows : public TableCollection<CRtfTableRows, CRtfTableRow> {
public:
    /// Returns the document, even after its `ClearStructure` has replaced this collection; null if
    /// it no longer exists.
    Ref<CRtfDoc> Parent() const;

    /// Replaces a row with a new one that has this key and the old one's background, borders and
    /// cells, and returns the new one. Errors: 5 if the old row is not in the list, 457 if the key
    /// is already in the list, even as the old row's own key.
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
