#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <string_view>

#include "quorvane/base/collections/KeyedList.h"
#include "quorvane/base/memory/PooledText.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/memory/SharedText.h"
#include "quorvane/base/values/Value.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/docmodel/TableRendering.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/docmodel/references.h"

namespace quorvane {

/// One paragraph of a cell. It is made by its cell's `Paragraphs`, and keeps what it holds when it
/// has been removed there. A setter that marks the document changed raises error 91 when the
/// document is gone; the value is set all the same.
class CRtfParagraph final : public KeyedListElement {
public:
    /// The owning cell, also after the paragraph was removed from it. A paragraph that someone
    /// holds keeps its cell alive.
    Ref<CRtfTableCell> Parent() const;

    /// The text as it is written into the document: RTF control words and inline styles such as
    /// `<bold-red=Total>` take effect. Empty by default; a paragraph without text writes nothing.
    std::string Text() const { return text_.text(); }
    /// An empty text is ignored. Any other marks the document changed.
    void setText(std::string_view text);

    /// Name of the paragraph's style; empty by default. Whether it exists is not checked.
    std::string Style() const { return style_.text(); }
    /// Marks the document changed, also when the name is the same.
    void setStyle(std::string_view sName);

    /// Colour of the text; `eNoColor` (0), the default, writes no colour.
    tColorIndex ForeColor() const { return static_cast<tColorIndex>(foreColor_); }
    /// Marks the document changed, also when the colour is the same.
    void setForeColor(tColorIndex color);

    /// Alignment; `eNoDefault` (0) by default. 1 to 4 write an alignment, other values none.
    tCellAlign Align() const { return static_cast<tCellAlign>(align_); }
    /// Does not mark the document changed.
    void setAlign(tCellAlign align) { align_ = align; }

    /// Makes the paragraph a marked text field with the given data: a text or a 16-bit or 32-bit
    /// integer. Data of another type is refused without an error: the paragraph is marked all the
    /// same and keeps the data it had. Does not mark the document changed.
    void asMarkedField(const Value& vFieldData);

private:
    friend class CRtfParagraphs;
    friend class CRtfTableCell;
    friend void retain(CRtfParagraph* paragraph) noexcept;
    friend void release(CRtfParagraph* paragraph) noexcept;

    static Ref<CRtfParagraph> create(CRtfTableCell& cell);
    explicit CRtfParagraph(CRtfTableCell& cell) : cell_(&cell) {}
    ~CRtfParagraph() = default;
    static void operator delete(CRtfParagraph* paragraph, std::destroying_delete_t) noexcept;

    // Called when the cell's list takes over a reference to the paragraph, and before it gives that
    // reference away.
    void enterList() noexcept;
    void leaveList() noexcept;
    void moveTo(CRtfTableCell& cell) noexcept;
    bool isHeldOutside() const noexcept { return references_ > isListed_; }
    void takeOver(const CRtfParagraph& old);
    TableDocument* document() const noexcept;
    MemoryPool& pool() const noexcept;
    void render(TableRendering& rendering, std::size_t position) const;

    // All references to the paragraph, that of its cell's list among them. While there are others,
    // the paragraph holds one reference to the cell for all of them.
    std::uint32_t references_ : 31 = 0;
    std::uint32_t isListed_ : 1 = 0;
    CRtfTableCell* cell_;
    PooledText text_;
    SharedText style_;
    std::int32_t foreColor_ = eNoColor;
    std::int32_t align_ = eNoDefault;
    // Hexadecimal data of a marked field; null when the paragraph is none.
    std::unique_ptr<std::string> markedField_;
};

/// The document that a cell belongs to, for its paragraphs; null when the row or the document is
/// gone.
TableDocument* documentOf(const CRtfTableCell& cell) noexcept;

/// The memory that a cell and its paragraphs are in.
MemoryPool& poolOf(const CRtfTableCell& cell) noexcept;

}  // namespace quorvane
