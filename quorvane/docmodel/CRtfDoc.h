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

/// An RTF document made of one table: its page setup, its stylesheet and its rows.
///
/// A document keeps its text and renders it again only when something has changed. Measures are in
/// twips. `create` returns the first reference, and the document lives as long as one is held.
/// Rows, cells and paragraphs do not keep it alive.
class CRtfDoc final : public TableDocument {
public:
    /// Returns a new document with the default page, no stylesheet and no rows. The platform must
    /// outlive it.
    static Ref<CRtfDoc> create(Platform& platform = systemPlatform());

    /// Returns the text of the document, rendered again if something has changed. The reference is
    /// valid until the next call on the document. The text of a new document in which nothing was
    /// set is "{}". If the text cannot be rendered (see `Refresh`), the previous one is returned.
    const std::string& Contents();

    /// Returns whether the text is out of date. Initially false.
    bool Changed() const { return changed_; }
    /// Sets the flag and does nothing else.
    void setChanged(bool changed) { changed_ = changed; }

    /// Returns the name of the stylesheet file; empty if none was set or the styles come from a
    /// text.
    const std::string& StyleSheetFile() const { return styleSheet_->StyleSheetFile(); }
    /// Loads a stylesheet file in place of the current styles. A missing file is not an error: no
    /// styles are loaded, and `StyleSheetOk` returns false. The document is marked changed if
    /// styles are loaded or removed. Errors for a wrong stylesheet, which leaves the document
    /// without styles: 445 (keyword or value), 31037 (braces).
    void setStyleSheetFile(const std::string& sName);

    /// Returns whether a stylesheet was loaded without errors.
    bool StyleSheetOk() const { return styleSheet_->StyleSheetOk(); }

    /// Bottom margin, default 1418. A value below 1, or not below 0.9 of the page height less the
    /// top margin, becomes 0. Setting another value marks the document changed.
    std::int32_t BottomMargin() const { return format_->BottomMargin(); }
    void setBottomMargin(std::int32_t twips) { format_->setBottomMargin(twips); }

    /// Top margin, default 1418. A value below 1, or not below 0.9 of the page height less the
    /// bottom margin, becomes 2. Setting another value marks the document changed.
    std::int32_t TopMargin() const { return format_->TopMargin(); }
    void setTopMargin(std::int32_t twips) { format_->setTopMargin(twips); }

    /// Left margin, default 1701. A value below 1, or not below 0.9 of the page width less the
    /// right margin, becomes 1. Setting another value marks the document changed.
    std::int32_t LeftMargin() const { return format_->LeftMargin(); }
    void setLeftMargin(std::int32_t twips) { format_->setLeftMargin(twips); }

    /// Right margin, default 1701. A value below 1, or not below 0.9 of the page width less the
    /// left margin, becomes 3. Setting another value marks the document changed.
    std::int32_t RightMargin() const { return format_->RightMargin(); }
    void setRightMargin(std::int32_t twips) { format_->setRightMargin(twips); }

    /// Number of the first page, default 2. A value below 1 becomes 2. Setting another value marks
    /// the document changed.
    std::int32_t PageNumberStart() const { return format_->PageNumberStart(); }
    void setPageNumberStart(std::int32_t number) { format_->setPageNumberStart(number); }

    /// Height of the page, default 15842; any value is accepted. Margins are not checked again.
    /// Setting it always marks the document changed.
    std::int32_t PageHeight() const { return format_->PaperHeight(); }
    void setPageHeight(std::int32_t twips) { format_->setPaperHeight(twips); }

    /// Width of the page, default 12242; any value is accepted. Margins are not checked again, and
    /// existing cells keep their widths. Setting it always marks the document changed.
    std::int32_t PageWidth() const { return format_->PaperWidth(); }
    void setPageWidth(std::int32_t twips) { format_->setPaperWidth(twips); }

    /// Returns the rows of the table: the same object every time, until `ClearStructure`.
    Ref<CRtfTableRows> TableRows() const { return body_.TableRows(); }

    /// Writes the document to a file in Windows-1252; a character that the code page does not have
    /// becomes "?". An existing file is deleted first. Error 75 if it cannot be deleted, for
    /// example because another program has it open. A failure to write the new file goes to the
    /// error module (see `setAbsorbedErrorObserver`) and leaves no partial file. If the text cannot
    /// be rendered (see `Refresh`), no file is deleted or written.
    void Commit(const std::string& sPath);

    /// Loads a stylesheet from a text in place of the current styles. Marks the document changed
    /// under the same conditions as `setStyleSheetFile`, and has the same errors: 445, 31037.
    void LoadStyleSheetFromMemmory(std::string_view sStyleSheet);

    /// Renders the document. Rendering changes it: cells get the background colors of their styles,
    /// and paragraphs the alignment of their cells, for good. A character style whose format
    /// contains tokens of itself would make the text endless: then error 6 goes to the error module
    /// (see `setAbsorbedErrorObserver`), the previous text stays, and the document stays changed.
    void Refresh();

    /// Returns the background color of the named cell style; `eNoColor` if there is no such style.
    tColorIndex getCellStyleBackColor(std::string_view sName) const;

    /// Removes the rows and resets the page to its defaults. The stylesheet stays, and `Changed`
    /// keeps its value. A host that holds the old rows can go on using them, but they are no longer
    /// part of the document.
    void ClearStructure();

    /// Sets a function that is called with every error that ends a procedure without being raised,
    /// such as a failure of `Commit` to write its file. It must not change the collections of a
    /// document that a driver is building. An empty function removes it.
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
