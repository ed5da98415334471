#pragma once

#include <cstddef>

#include "quorvane/base/collections/KeyedList.h"
#include "quorvane/base/memory/Counted.h"
#include "quorvane/base/memory/WeakRef.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/docmodel/InnerRow.h"

namespace quorvane {

/// What the rows of a document are inside.
class InnerRows final : public CRtfTableRows {
public:
    using List = KeyedList<InnerRow>;

    explicit InnerRows(TableDocument& document) : parent_(&document) {}

    const List& list() const noexcept { return list_; }
    TableDocument* document() const noexcept { return parent_.get(); }
    void insertNew(const List::Place& place, TableDocument& document);
    void removeAt(std::size_t position) noexcept { list_.removeAt(position); }
    void render(TableRendering& rendering) const;
    void destroy() noexcept { list_.clear(); }

private:
    friend class CRtfTableRows;
    friend void retain(CRtfTableRows* rows) noexcept;
    friend void release(CRtfTableRows* rows) noexcept;

    ~InnerRows() = default;

    List list_;
    Counted counts_;
    WeakRef<TableDocument> parent_;
};

inline InnerRows& inner(CRtfTableRows& rows) noexcept {
    return static_cast<InnerRows&>(rows);
}
inline const InnerRows& inner(const CRtfTableRows& rows) noexcept {
    return static_cast<const InnerRows&>(rows);
}

}  // namespace quorvane
