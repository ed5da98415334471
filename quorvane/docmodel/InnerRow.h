#pragma once

#include <cstdint>
#include <new>
#include <span>
#include <utility>

#include "quorvane/base/collections/KeyedList.h"
#include "quorvane/base/memory/Counted.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/memory/WeakRef.h"
#include "quorvane/docmodel/Borders.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/InnerCells.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/docmodel/innerReferences.h"

namespace quorvane {

/// What a row is inside. Its cells are a base, so that they know the row without a reference.
class InnerRow final : public CRtfTableRow, public InnerCells, public KeyedListElement {
public:
    static Ref<InnerRow> create(const WeakRef<TableDocument>& document);

    InnerCells& cells() noexcept { return *this; }
    void takeOver(InnerRow& old);
    const RowSettings& settings() const noexcept;
    /// Gives a cell the borders and the background of the row.
    void passOn(InnerCell& cell) const;
    void render(TableRendering& rendering);
    /// Writes the row with its settings, which the caller has looked up, and its cells at these
    /// places.
    void render(TableRendering& rendering, const RowSettings& own,
                std::span<const PlacedCell> places, HeadingForm form);

private:
    friend class CRtfTableRow;
    friend class CountedOwner;
    friend void retain(InnerRow* row) noexcept;
    friend void release(InnerRow* row) noexcept;
    friend void retainWeak(InnerRow* row) noexcept;
    friend void releaseWeak(InnerRow* row) noexcept;
    friend bool isAlive(const InnerRow* row) noexcept;
    friend TableDocument* documentOf(const InnerRow& row) noexcept;
    friend DocumentMemory& memoryOf(const InnerRow& row) noexcept;

    explicit InnerRow(const WeakRef<TableDocument>& document) : parent_(document) {}
    ~InnerRow() = default;

    static void operator delete(InnerRow* row, std::destroying_delete_t) noexcept;

    void releaseContents() noexcept;
    void setBorder(BorderSide side, tBorderWidth width);
    template <class Setting>
    void set(Setting RowSettings::*setting, Setting value);

    CountedOwner counts_;
    std::int32_t backColor_ = eNoColor;
    WeakRef<TableDocument> parent_;
    Borders borders_;
};

template <class Setting>
void InnerRow::set(Setting RowSettings::*setting, Setting value) {
    if (settings().*setting == value) {
        return;
    }
    beforeChange(parent_.get());
    memoryOf(*this).makeAdditions().rows[this].*setting = std::move(value);
    markChanged(parent_.get());
}

inline InnerRow& inner(CRtfTableRow& row) noexcept {
    return static_cast<InnerRow&>(row);
}
inline const InnerRow& inner(const CRtfTableRow& row) noexcept {
    return static_cast<const InnerRow&>(row);
}

}  // namespace quorvane
