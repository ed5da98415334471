#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <string>
#include <string_view>

#include "quorvane/base/collections/KeyedList.h"
#include "quorvane/base/memory/PooledText.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/memory/SharedText.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/docmodel/TableRendering.h"
#include "quorvane/docmodel/innerReferences.h"

namespace quorvane {

/// What a paragraph is inside.
class InnerParagraph final : public CRtfParagraph, public KeyedListElement {
public:
    static Ref<InnerParagraph> create(InnerCell& cell);

    // Called when the cell's list takes over a reference to the paragraph, and before it gives that
    // reference away.
    void enterList() noexcept;
    void leaveList() noexcept;
    void moveTo(InnerCell& cell) noexcept;
    void takeOver(const InnerParagraph& old);
    void mark(std::string fieldData);
    const RtfPicture* picture() const noexcept;
    void setPicture(std::optional<RtfPicture> picture);
    void setText(std::string_view text);
    void fillForeColor(tColorIndex color) noexcept { foreColor_ = color; }
    void fillAlign(tCellAlign align) noexcept { align_ = align; }
    void render(TableRendering& rendering, std::size_t position) const;

private:
    friend class CRtfParagraph;
    friend void retain(CRtfParagraph* paragraph) noexcept;
    friend void release(CRtfParagraph* paragraph) noexcept;

    explicit InnerParagraph(InnerCell& cell) : cell_(&cell) {}
    ~InnerParagraph() = default;

    static void operator delete(InnerParagraph* paragraph, std::destroying_delete_t) noexcept;

    bool isHeldOutside() const noexcept { return references_ > isListed_; }
    TableDocument* document() const noexcept;

    // All references to the paragraph, that of its cell's list among them. While there are others,
    // the paragraph holds one reference to the cell for all of them.
    std::uint32_t references_ : 29 = 0;
    std::uint32_t isListed_ : 1 = 0;
    // A marked field, whose data is in `RareValues`.
    std::uint32_t isMarked_ : 1 = 0;
    // A picture, which is in `DocumentAdditions`.
    std::uint32_t hasPicture_ : 1 = 0;
    InnerCell* cell_;
    PooledText text_;
    SharedText style_;
    std::int32_t foreColor_ = eNoColor;
    std::int32_t align_ = eNoDefault;
};

inline InnerParagraph& inner(CRtfParagraph& paragraph) noexcept {
    return static_cast<InnerParagraph&>(paragraph);
}
inline const InnerParagraph& inner(const CRtfParagraph& paragraph) noexcept {
    return static_cast<const InnerParagraph&>(paragraph);
}

/// The document that a cell belongs to, for its paragraphs; null when the row or the document is
/// gone.
TableDocument* documentOf(const InnerCell& cell) noexcept;

/// What the elements of a cell's document keep outside of themselves.
DocumentMemory& memoryOf(const InnerCell& cell) noexcept;

}  // namespace quorvane
