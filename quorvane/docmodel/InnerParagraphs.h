#pragma once

#include <cstddef>

#include "quorvane/base/collections/KeyedList.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/InnerParagraph.h"

namespace quorvane {

/// What the paragraphs of a cell are inside: a part of the cell (`InnerCell`).
class InnerParagraphs : public CRtfParagraphs {
public:
    using List = KeyedList<InnerParagraph>;

    InnerCell& cell() const noexcept;
    const List& list() const noexcept { return list_; }
    TableDocument* document() const noexcept { return documentOf(cell()); }
    void insertNew(const List::Place& place, TableDocument& document);
    void removeAt(std::size_t position) noexcept;
    void clear() noexcept { list_.clear(); }
    void takeFrom(InnerParagraphs& other);
    void setForeColors(tColorIndex color) noexcept;
    void setAligns(tCellAlign align) noexcept;
    void render(TableRendering& rendering) const;

protected:
    ~InnerParagraphs() = default;

private:
    friend class CRtfParagraphs;

    List list_;
};

inline InnerParagraphs& inner(CRtfParagraphs& paragraphs) noexcept {
    return static_cast<InnerParagraphs&>(paragraphs);
}
inline const InnerParagraphs& inner(const CRtfParagraphs& paragraphs) noexcept {
    return static_cast<const InnerParagraphs&>(paragraphs);
}

}  // namespace quorvane
