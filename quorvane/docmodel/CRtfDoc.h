#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/memory/SharedText.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/docmodel/references.h"
#include "quorvane/rtfgroups/CRtfGrpBody.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/rtfgroups/CRtfGrpDocumentFormat.h"
#include "quorvane/rtfgroups/CRtfGrpFontTable.h"
#include "quorvane/rtfgroups/CRtfGrpHeader.h"
#include "quorvane/stylesheet/CRtfGrpStyleSheetTable.h"
#include "quorvane/support/GError.h"

namespace quorvane {

/// An RTF document that consists of one table: its page setup, its stylesheet and its rows.
///
/// The document keeps its text and makes it anew only when something changed. All page measures are
/// in twips. It is counted: `create` answers the first reference, and the document lives while one
/// is held; rows, cells and paragraphs that a host holds do not keep it alive.
class CRtfDoc final : public TableDocument {
public:
    /// A new document with the default page, no stylesheet and no rows. The platform must outlive
    /// it.
    static Ref<CRtfDoc> create(Platform& platform = systemPlatform());

    /// The document's text, made anew when something changed. Good until the next call on the
    /// document. A new document on which nothing was set is "{}". A text that cannot be made (see
    /// `Refresh`) is the one that the document had before.
    const std::string& Contents();

    /// True when the text that was made last is stale. Initially false.
    bool Changed() const { return changed_; }
    /// Sets the flag and does nothing else.
    void setChanged(bool changed) { changed_ = changed; }

    /// Name of the stylesheet's file; empty when none was set or the styles come from a text.
    const std::string& StyleSheetFile() const { return styleSheet_->StyleSheetFile(); }
    /// Reads a stylesheet file in place of the styles loaded before. A missing file raises nothing:
    /// `StyleSheetOk` is false then. The document is marked changed when styles are loaded, and
    /// when the load takes away styles that were there. Errors 445 (bad keyword or value) and 31037
    /// (braces) for a bad stylesheet; no styles are loaded then.
    void setStyleSheetFile(const std::string& sName);

    /// True when a stylesheet was loaded without an error.
    bool StyleSheetOk() const { return styleSheet_->StyleSheetOk(); }

    /// Bottom margin, default 1418. It must be at least 1 and less than 0.9 of the page's height
    /// less the top margin; otherwise it becomes 0.
    std::int32_t BottomMargin() const { return format_->BottomMargin(); }
    void setBottomMargin(std::int32_t twips) { format_->setBottomMargin(twips); }

    /// Top margin, default 1418. It must be at least 1 and less than 0.9 of the page's height less
    /// the bottom margin; otherwise it becomes 2.
    std::int32_t TopMargin() const { return format_->TopMargin(); }
    void setTopMargin(std::int32_t twips) { format_->setTopMargin(twips); }

    /// Left margin, default 1701. It must be at least 1 and less than 0.9 of the page's width less
    /// the right margin; otherwise it becomes 1.
    std::int32_t LeftMargin() const { return format_->LeftMargin(); }
    void setLeftMargin(std::int32_t twips) { format_->setLeftMargin(twips); }

    /// Right margin, default 1701. It must be at least 1 and less than 0.9 of the page's width less
    /// the left margin; otherwise it becomes 3.
    std::int32_t RightMargin() const { return format_->RightMargin(); }
    void setRightMargin(std::int32_t twips) { format_->setRightMargin(twips); }

    /// Number of the first page, default 2. A number below 1 becomes 2.
    std::int32_t PageNumberStart() const { return format_->PageNumberStart(); }
    void setPageNumberStart(std::int32_t number) { format_->setPageNumberStart(number); }

    /// Height of the page, default 15842. Any value is taken, and marks the document changed.
    std::int32_t PageHeight() const { return format_->PaperHeight(); }
    void setPageHeight(std::int32_t twips) { format_->setPaperHeight(twips); }

    /// Width of the page, default 12242. Any value is taken, and marks the document changed; cells
    /// that are there keep their widths.
    std::int32_t PageWidth() const { return format_->PaperWidth(); }
    void setPageWidth(std::int32_t twips) { format_->setPaperWidth(twips); }

    /// The rows of the table; the same object every time until `ClearStructure`.
    Ref<CRtfTableRows> TableRows() const { return body_.TableRows(); }

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

    /// Makes the document's text anew. Rendering gives cells the colours of their styles and
    /// paragraphs the alignment of their cells for good. Character styles whose words hold tokens
    /// of inline styles can make a text endless: error 6 then goes to the error module (see
    /// `setAbsorbedErrorObserver`), the text stays the one before, and the document stays changed.
    void Refresh();

    /// The ground colour that the named cell style declares; `eNoColor` when there is none.
    tColorIndex getCellStyleBackColor(std::string_view sName) const;

    /// Lets go of the rows and sets the page to its defaults; the stylesheet stays, and `Changed`
    /// is as it was. A host that holds the old rows can go on using them, but they are no part of
    /// the document any more.
    void ClearStructure();

    /// Shows the host every error that ends a procedure without reaching it, such as a failure to
    /// write the file of `Commit`. It must not change the lists of a document that a driver is just
    /// building. An empty function ends it.
    void setAbsorbedErrorObserver(GError::Observer observer);

    std::int32_t TextAreaWidth() const override;
    std::string_view GetParagraphStyle(std::string_view sName) const override;
    std::string_view GetCharacterStyle(std::string_view sName) const override;
    GError& errors() noexcept override { return errors_; }

private:
    explicit CRtfDoc(Platform& platform);
    ~CRtfDoc() override = default;

    void initAllGroups();
    // Makes a stale text anew. A failure goes to the error module as one of this procedure; false
    // then.
    bool refresh(const char* procedure);
    void render();
    void letGo() noexcept override;
    CRtfDoc* document() noexcept override { return this; }
    void markChanged() noexcept override { changed_ = true; }
    std::int32_t cellStyleColor(std::string_view sName) const override;
    SharedText sharedName(std::string_view sName) override;

    GError errors_;
    bool changed_ = false;
    // The text with its outer braces.
    std::string contents_ = "{}";
    CRtfGrpHeader header_;
    CRtfGrpFontTable fontTable_;
    CRtfGrpColorTable colorTable_;
    std::unique_ptr<CRtfGrpStyleSheetTable> styleSheet_;
    std::unique_ptr<CRtfGrpDocumentFormat> format_;
    CRtfGrpBody<CRtfTableRows> body_;
    // Names of styles set lately, at the place of their hash: equal ones share their characters.
    std::array<SharedText, 16> names_;
};

}  // namespace quorvane
