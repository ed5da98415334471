#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/memory/Counted.h"
#include "quorvane/base/memory/MemoryPool.h"
#include "quorvane/base/memory/SharedText.h"
#include "quorvane/docmodel/references.h"
#include "quorvane/rtfgroups/GroupOwner.h"
#include "quorvane/support/GError.h"

namespace quorvane {

/// What the rows, cells and paragraphs of a table need of their document.
class TableDocument : public GroupOwner {
public:
    /// The document itself, for a host that asks for its child's parent.
    virtual CRtfDoc* document() noexcept = 0;
    /// Usable width of the page in twips: paper width less right and left margin. Error 6 when it
    /// leaves 32 bits.
    virtual std::int32_t TextAreaWidth() const = 0;
    /// Control words of the named paragraph style, a single blank when there are none. Good until
    /// the stylesheet changes.
    virtual std::string_view GetParagraphStyle(std::string_view sName) const = 0;
    /// Control words of the named character style, or nothing.
    virtual std::string_view GetCharacterStyle(std::string_view sName) const = 0;
    /// Number of the color that the named cell style declares, or 0.
    virtual std::int32_t cellStyleColor(std::string_view sName) const = 0;
    /// A text for a style's name that shares its characters with equal names set lately.
    virtual SharedText sharedName(std::string_view sName) = 0;
    /// The document's error module.
    virtual GError& errors() noexcept = 0;
    /// Memory for rows, cells, paragraphs and their texts. It is there as long as one of them is,
    /// since each knows its owner weakly, so that the document's own memory stays.
    MemoryPool& pool() noexcept { return pool_; }

private:
    friend void retainWeak(TableDocument* document) noexcept;
    friend void releaseWeak(TableDocument* document) noexcept;
    friend bool isAlive(const TableDocument* document) noexcept;
    friend void retainDocument(TableDocument& document) noexcept;
    friend void releaseDocument(TableDocument& document) noexcept;
    friend class CountedOwner;

    // Called when the last reference goes: the groups are destroyed.
    virtual void releaseContents() noexcept = 0;

    CountedOwner counts_;
    MemoryPool pool_;
};

void retainDocument(TableDocument& document) noexcept;
void releaseDocument(TableDocument& document) noexcept;
void retainWeak(TableDocument* document) noexcept;
void releaseWeak(TableDocument* document) noexcept;
bool isAlive(const TableDocument* document) noexcept;

/// The document, which must be there: error 91 when it is null.
TableDocument& required(TableDocument* document);

/// Marks the document changed; error 91 when it is null.
void markChanged(TableDocument* document);

}  // namespace quorvane
