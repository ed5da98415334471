#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/memory/Counted.h"
#include "quorvane/base/memory/SharedText.h"
#include "quorvane/docmodel/DocumentMemory.h"
#include "quorvane/docmodel/references.h"
#include "quorvane/rtfgroups/GroupOwner.h"
#include "quorvane/support/GError.h"

namespace quorvane {

/// The interface through which rows, cells and paragraphs use their document.
class TableDocument : public GroupOwner {
public:
    /// Returns the document, for a host that asks a child for its parent.
    virtual CRtfDoc* document() noexcept = 0;
    /// Returns the width of the text area: the page width less the left and the right margin. Error
    /// 6 if it does not fit 32 bits.
    virtual std::int32_t TextAreaWidth() const = 0;
    /// Returns the control words of the named paragraph style, or of the first one if the name is
    /// unknown; a single blank if there are no paragraph styles. Valid until the stylesheet
    /// changes.
    virtual std::string_view GetParagraphStyle(std::string_view sName) const = 0;
    /// Returns the control words of the named character style; empty if there is no such style.
    /// Valid until the stylesheet changes.
    virtual std::string_view GetCharacterStyle(std::string_view sName) const = 0;
    /// Returns the number of the color that the named cell style has as its format, or 0.
    virtual std::int32_t cellStyleColor(std::string_view sName) const = 0;
    /// Returns a text for the name of a style; equal names that were set lately share their
    /// characters.
    virtual SharedText sharedName(std::string_view sName) = 0;
    /// Returns the document's error module.
    virtual GError& errors() noexcept = 0;
    void beforeChange() final {
        if (textState_ != TextState::Kept) {
            keepText();
        }
    }
    DocumentMemory& memory() noexcept { return memory_; }
    const DocumentMemory& memory() const noexcept { return memory_; }

protected:
    enum class TextState : std::uint8_t {
        /// The text as it was rendered last is in memory.
        Kept,
        /// It was written to a file only. Nothing that it is made of has changed since, so it can
        /// be rendered once more.
        Written,
        /// It is on its way to a file.
        BeingWritten
    };

    TextState textState_ = TextState::Kept;

private:
    friend void retainWeak(TableDocument* document) noexcept;
    friend void releaseWeak(TableDocument* document) noexcept;
    friend bool isAlive(const TableDocument* document) noexcept;
    friend void retainDocument(TableDocument& document) noexcept;
    friend void releaseDocument(TableDocument& document) noexcept;
    friend class CountedOwner;

    // Renders a text that was written and keeps it from then on. Error 5 while it is written.
    virtual void keepText() = 0;
    // Called when the last reference goes: the groups are destroyed.
    virtual void releaseContents() noexcept = 0;

    CountedOwner counts_;
    DocumentMemory memory_;
};

void retainDocument(TableDocument& document) noexcept;
void releaseDocument(TableDocument& document) noexcept;
void retainWeak(TableDocument* document) noexcept;
void releaseWeak(TableDocument* document) noexcept;
bool isAlive(const TableDocument* document) noexcept;

/// Returns the document; error 91 if it is null.
TableDocument& required(TableDocument* document);

/// Returns the document, which is about to change; error 91 if it is null.
TableDocument& changing(TableDocument* document);

/// Prepares the document, unless it is null, for a change; see `GroupOwner::beforeChange`.
void beforeChange(TableDocument* document);

/// Marks the document changed; error 91 if it is null.
void markChanged(TableDocument* document);

}  // namespace quorvane
