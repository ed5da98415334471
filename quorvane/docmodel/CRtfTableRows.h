#pragma once

#include <string_view>

#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/TableCollection.h"

namespace quorvane {

/// The rows of the table, in order. When the document no longer exists, the collection is empty and
/// has no `Parent`, and every call that would change it raises error 91. A collection that
/// `CRtfDoc::ClearStructure` replaced before keeps its rows.
class CRtfTableRows : public TableCollection<CRtfTableRows, CRtfTableRow> {
public:
    /// Returns the document, even after its `ClearStructure` has replaced this collection; null if
    /// it no longer exists.
    Ref<CRtfDoc> Parent() const;

    /// Replaces a row with a new one that has this key and the old one's background, borders,
    /// settings and cells, and returns the new one. Errors: 5 if the old row is not in the list,
    /// 457 if the key is already in the list, even as the old row's own key.
    Ref<CRtfTableRow> refile(const Ref<CRtfTableRow>& old, std::string_view key);

protected:
    CRtfTableRows() = default;
    ~CRtfTableRows() = default;
};

}  // namespace quorvane
