#pragma once

#include <string_view>

#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/TableCollection.h"

namespace quorvane {

/// The rows of the document's table, in order. When the document is gone, the collection is empty
/// and has no `Parent`; what would change it raises error 91. One that `ClearStructure` took out of
/// the document before keeps its rows.
class CRtfTableRows : public TableCollection<CRtfTableRows, CRtfTableRow> {
public:
    /// The document that the rows were made for, also after its `ClearStructure` released them;
    /// null when it is gone.
    Ref<CRtfDoc> Parent() const;

    /// Puts a new row with this key, and with the background, the borders and the cells of the old
    /// one, in its place, and returns it. Errors: 5 the old row is not in the list, 457 the key is
    /// there already, the old row's own included.
    Ref<CRtfTableRow> refile(const Ref<CRtfTableRow>& old, std::string_view key);

protected:
    CRtfTableRows() = default;
    ~CRtfTableRows() = default;
};

}  // namespace quorvane
