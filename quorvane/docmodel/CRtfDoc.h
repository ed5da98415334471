#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/docmodel/references.h"
#include "quorvane/support/GError.h"

namespace quorvane {

/// An RTF document that consists of one table: its page setup, its stylesheet and its rows.
///
/// The document keeps its text and makes it anew only when something changed. All page measures are
/// in twips. It is counted: `create` returns the first reference, and the document lives while one
/// is held; rows, cells and paragraphs that a host holds do not keep it alive.
class CRtfDoc {
public:
    /// A new document with the default page, no stylesheet and no rows. The platform must outlive
    /// it.
    static Ref<CRtfDoc> create(Platform& platform = systemPlatform());

    /// The document's text, made anew when something changed. Good until the next call on the
    /// document. A new document on which nothing was set is "{}". A text that cannot be made (see
    /// `Refresh`) is the one that the document had before.
    const std::string& Contents();

    /// True when the text that was made last is stale. Initially false.
    bool Changed() const;
    /// Sets the flag and does nothing else.
    void setChanged(bool changed);

    /// Name of the stylesheet's file; empty when none was set or the styles come from a text.
    const std::string& StyleSheetFile() const;
    /// Reads a stylesheet file in place of the styles loaded before. A missing file raises nothing:
    /// `StyleSheetOk` is false then. The document is marked changed when styles are loaded, and
    /// when the load takes away styles that were there. Errors 445 (bad keyword or value) and 31037
    /// (braces) for a bad stylesheet; no styles are loaded then.
    void setStyleSheetFile(const std::string& sName);

    /// True when a stylesheet was loaded without an error.
    bool StyleSheetOk() const;

    /// Bottom margin, default 1418. It must be at least 1 and less than 0.9 of the page's height
    /// less the top margin; otherwise it becomes 0.
    std::int32_t BottomMargin() const;
    void setBottomMargin(std::int32_t twips);

    /// Top margin, default 1418. It must be at least 1 and less than 0.9 of the page's height less
    /// the bottom margin; otherwise it becomes 2.
    std::int32_t TopMargin() const;
    void setTopMargin(std::int32_t twips);

    /// Left margin, default 1701. It must be at least 1 and less than 0.9 of the page's width less
    /// the right margin; otherwise it becomes 1.
    std::int32_t LeftMargin() const;
    void setLeftMargin(std::int32_t twips);

    /// Right margin, default 1701. It must be at least 1 and less than 0.9 of the page's width less
    /// the left margin; otherwise it becomes 3.
    std::int32_t RightMargin() const;
    void setRightMargin(std::int32_t twips);

    /// Number of the first page, default 2. A number below 1 becomes 2.
    std::int32_t PageNumberStart() const;
    void setPageNumberStart(std::int32_t number);

    /// Height of the page, default 15842. Any value is taken, and marks the document changed.
    std::int32_t PageHeight() const;
    void setPageHeight(std::int32_t twips);

    /// Width of the page, default 12242. Any value is taken, and marks the document changed; cells
    /// that are there keep their widths.
    std::int32_t PageWidth() const;
    void setPageWidth(std::int32_t twips);

    /// The rows of the table; the same object every time until `ClearStructure`.
    Ref<CRtfTableRows> TableRows() const;

    /// Writes the document (Windows-1252, a character that has no place there becomes "?"). An
    /// existing file is deleted first. Error 75 when it cannot be deleted, as when another program
    /// holds it open; a failure to write the new file goes to the error module (see
    /// `setAbsorbedErrorObserver`) and leaves no part of it. When the text cannot be made (see
    /// `Refresh`), nothing is deleted or written.
    void Commit(const std::string& sPath);

    /// Reads the styles of a text in place of those loaded before; marks the document changed as
    /// `setStyleSheetFile` does. Errors 445 and 31037 for a bad stylesheet; no styles are loaded
    /// then.
    void LoadStyleSheetFromMemmory(std::string_view sStyleSheet);

    /// Makes the document's text anew. Rendering gives cells the colors of their styles and
    /// paragraphs the alignment of their cells for good. Character styles whose words hold tokens
    /// of inline styles can make a text endless: error 6 then goes to the error module (see
    /// `setAbsorbedErrorObserver`), the text stays the one before, and the document stays changed.
    void Refresh();

    /// The background color that the named cell style declares; `eNoColor` when there is none.
    tColorIndex getCellStyleBackColor(std::string_view sName) const;

    /// Releases the rows and sets the page to its defaults; the stylesheet stays, and `Changed`
    /// is as it was. A host that holds the old rows can go on using them, but they are no part of
    /// the document any more.
    void ClearStructure();

    /// Shows the host every error that ends a procedure without reaching it, such as a failure to
    /// write the file of `Commit`. It must not change the lists of a document that a driver is just
    /// building. An empty function ends it.
    void setAbsorbedErrorObserver(GError::Observer observer);

    /// Usable width of the page in twips: page width less right and left margin. Error 6 when it
    /// leaves 32 bits.
    std::int32_t TextAreaWidth() const;

    /// Control words of the named paragraph style, a single blank when there are none. Good until
    /// the stylesheet changes.
    std::string_view GetParagraphStyle(std::string_view sName) const;

    /// Control words of the named character style, or an empty text.
    std::string_view GetCharacterStyle(std::string_view sName) const;

    /// The document's error module.
    GError& errors() noexcept;

    CRtfDoc(const CRtfDoc&) = delete;
    CRtfDoc& operator=(const CRtfDoc&) = delete;

protected:
    CRtfDoc() = default;
    ~CRtfDoc() = default;
};

}  // namespace quorvane
