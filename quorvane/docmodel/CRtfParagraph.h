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

/// A paragraph of a cell. The cell's `Paragraphs` makes it; after it is removed there, it keeps its
/// values. Setters that mark the document changed set the value and raise error 91 if the document
/// no longer exists.
class CRtfParagraph final : public KeyedListElement {
public:
    /// Returns the cell, even after the paragraph was removed from it. A paragraph that is held
    /// keeps its cell alive.
    Ref<CRtfTableCell> Parent() const;

    /// Text, empty by default. It goes into the document as it is: RTF control words and inline
    /// styles such as `<bold-red=Total>` take effect. A paragraph without text writes nothing.
    std::string Text() const { return text_.text(); }
    /// Ignores an empty text; any other text marks the document changed.
    void setText(std::string_view text);

    /// Name of the paragraph style, empty by default. A name that the stylesheet does not have is
    /// accepted.
    std::string Style() const { return style_.text(); }
    /// Always marks the document changed, even with the same name.
    void setStyle(std::string_view sName);

    /// Color of the text. The default, `eNoColor` (0), leaves the color to the style.
    tColorIndex ForeColor() const { return static_cast<tColorIndex>(foreColor_); }
    /// Always marks the document changed, even with the same color.
    void setForeColor(tColorIndex color);

    /// Alignment, `eNoDefault` (0) by default. 1 to 4 write an alignment; any other value writes
    /// none.
    tCellAlign Align() const { return static_cast<tCellAlign>(align_); }
    /// Does not mark the document changed.
    void setAlign(tCellAlign align) { align_ = align; }

    /// Makes the paragraph a marked field with this data: a text or a 16-bit or 32-bit integer.
    /// With data of another type the paragraph is still marked, with the data that it had, and no
    /// error is raised. Does not mark the document changed.
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
    // Hexadecimal data of a marked field; null if the paragraph is not marked.
    std::unique_ptr<std::string> markedField_;
};

/// The document that a cell belongs to, for its paragraphs; null if the row or the document no
/// longer exists.
TableDocument* documentOf(const CRtfTableCell& cell) noexcept;

/// The memory pool of a cell and its paragraphs.
MemoryPool& poolOf(const CRtfTableCell& cell) noexcept;

}  // namespace quorvane
