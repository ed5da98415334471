#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/docmodel/HeadingForm.h"
#include "quorvane/docmodel/PageText.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/docmodel/references.h"
#include "quorvane/support/GError.h"

namespace quorvane {

/// An RTF document made of one table: its page setup, its stylesheet and its rows.
///
/// A document keeps its text and renders it again only when something has changed. A long text that
/// only `Commit` needed is not kept in memory, but for a host it is as if it were: see `Commit`.
/// Measures are in twips. `create` returns the first reference, and the document lives as long as
/// one is held. Rows, cells and paragraphs do not keep it alive.
class CRtfDoc {
public:
    /// Returns a new document with the default page, no stylesheet and no rows. The platform must
    /// outlive it.
    static Ref<CRtfDoc> create(Platform& platform = systemPlatform());

    /// Returns the text of the document, rendered again if something has changed. The reference is
    /// valid until the next call on the document. The text of a new document in which nothing was
    /// set is "{}". If the text cannot be rendered (see `Refresh`), the previous one is returned.
    const std::string& Contents();

    /// Returns whether the text is out of date. Initially false.
    bool Changed() const;
    /// Sets the flag and does nothing else.
    void setChanged(bool changed);

    /// Returns the name of the stylesheet file; empty if none was set or the styles come from a
    /// text.
    const std::string& StyleSheetFile() const;
    /// Loads a stylesheet file in place of the current styles. A missing file is not an error: no
    /// styles are loaded, and `StyleSheetOk` returns false. The document is marked changed if
    /// styles are loaded or removed. Errors for a wrong stylesheet, which leaves the document
    /// without styles: 445 (keyword or value), 31037 (braces).
    void setStyleSheetFile(const std::string& sName);

    /// Returns whether stylesheets may be written in the extended language. Default false.
    bool ExtendedStyleSheets() const;
    /// From the next load on, a stylesheet whose first line is `; quorvane 2` is read in the
    /// extended language, which docs/extended-stylesheet.md describes. A file in it is UTF-8.
    /// Errors in it have the numbers 445 and 31037 too, and `RtfError::line` is the line in the
    /// stylesheet. Colors and fonts that not every document has are added to those of the document.
    /// With false, and without that line, every stylesheet is in the original language.
    void setExtendedStyleSheets(bool accept);

    /// Returns whether a stylesheet was loaded without errors.
    bool StyleSheetOk() const;

    /// Bottom margin, default 1418. A value below 1, or not below 0.9 of the page height less the
    /// top margin, becomes 0. Setting another value marks the document changed.
    std::int32_t BottomMargin() const;
    void setBottomMargin(std::int32_t twips);

    /// Top margin, default 1418. A value below 1, or not below 0.9 of the page height less the
    /// bottom margin, becomes 2. Setting another value marks the document changed.
    std::int32_t TopMargin() const;
    void setTopMargin(std::int32_t twips);

    /// Left margin, default 1701. A value below 1, or not below 0.9 of the page width less the
    /// right margin, becomes 1. Setting another value marks the document changed.
    std::int32_t LeftMargin() const;
    void setLeftMargin(std::int32_t twips);

    /// Right margin, default 1701. A value below 1, or not below 0.9 of the page width less the
    /// left margin, becomes 3. Setting another value marks the document changed.
    std::int32_t RightMargin() const;
    void setRightMargin(std::int32_t twips);

    /// Number of the first page, default 2. A value below 1 becomes 2. Setting another value marks
    /// the document changed.
    std::int32_t PageNumberStart() const;
    void setPageNumberStart(std::int32_t number);

    /// Height of the page, default 15842; any value is accepted. Margins are not checked again.
    /// Setting it always marks the document changed.
    std::int32_t PageHeight() const;
    void setPageHeight(std::int32_t twips);

    /// Width of the page, default 12242; any value is accepted. Margins are not checked again, and
    /// existing cells keep their widths. Setting it always marks the document changed.
    std::int32_t PageWidth() const;
    void setPageWidth(std::int32_t twips);

    /// Widths of the columns in twips, in their order; empty by default.
    const std::vector<std::int32_t>& ColumnWidths() const;
    /// Sets the columns of all rows that have none of their own (`CRtfTableRow::setColumnWidths`).
    /// The right edges of their cells are then exactly theirs, whatever `CRtfTableCell::Width`
    /// returns. With an empty list, cells have the widths that they were given. Setting other
    /// widths marks the document changed. Errors: 5 for a width below 1, 6 if their sum does not
    /// fit 32 bits. More cells than columns are an error when the document is rendered; see
    /// `Refresh`. A row with fewer cells ends early.
    void setColumnWidths(std::vector<std::int32_t> twips);

    /// How the heading is written, the first rows for which `CRtfTableRow::RepeatsAsHeading` is
    /// true. Default `HeadingForm::PageHeader`: they are a table in the page header, under its text
    /// if there is one, and not in the body. Word processors and LibreOffice show it on every page,
    /// directly above the first row there. It begins at the top margin; below the text of a header
    /// at about the top margin.
    ///
    /// With `HeadingForm::RowProperty` the rows stay in the table, with the control word `\trhdr`.
    /// Some word processors repeat them on every page, LibreOffice does not. They are written once
    /// more before each row that starts a page.
    quorvane::HeadingForm HeadingForm() const;
    /// Setting another value marks the document changed.
    void setHeadingForm(quorvane::HeadingForm form);

    /// True if an empty paragraph, one point high, is written after the table. Readers need a
    /// paragraph there and put in one of their own otherwise, as high as a line of text: after a
    /// table that fills its last page, it stands on a page of its own. Default false.
    bool EndsInSmallParagraph() const;
    /// Setting the other value marks the document changed.
    void setEndsInSmallParagraph(bool ends);

    /// Returns the texts of the page header; empty by default, which writes no header.
    const PageText& PageHeader() const;
    /// Sets the page header: texts at the left, in the center and at the right of the text area, at
    /// half the top margin but not more than 720 twips below the edge of the paper. `{page}` is the
    /// number of the page, `{pages}` the number of pages; they are fields, which word processors
    /// keep up to date. `{{` and `}}` are braces. All other characters are shown as they are; write
    /// no RTF. The paragraph style "header" gives the format; without such a style, the first one.
    /// Setting other texts marks the document changed. Error 5 for other braces, and for characters
    /// that no document can show (see `findUnshowable`).
    void setPageHeader(std::string_view left, std::string_view center, std::string_view right);

    /// Returns the texts of the page footer; empty by default, which writes no footer.
    const PageText& PageFooter() const;
    /// Sets the page footer as `setPageHeader` sets the header, at half the bottom margin but not
    /// more than 720 twips above the edge of the paper, with the paragraph style "footer".
    void setPageFooter(std::string_view left, std::string_view center, std::string_view right);

    /// Returns the number of the color of these parts, each from 0 to 255, for `setBackColor` and
    /// `setForeColor`. A color that the document does not have is added to its color table, after
    /// the 57 of every document, and marks the document changed; the text on it does not become
    /// white. `ClearStructure` removes added colors; those of a stylesheet stay. Error 5 for
    /// another part, and for more than 32767 colors.
    tColorIndex addColor(std::int32_t red, std::int32_t green, std::int32_t blue);

    /// Returns the number of the font of this name, in any case, for the control word `\f` in
    /// stylesheets and texts. A font that the document does not have is added to its font table,
    /// after the 18 of every document, and marks the document changed. `ClearStructure` removes
    /// added fonts; those of a stylesheet stay. Error 5 for an empty name, one with a semicolon, a
    /// tab, a line break or another control character, and for more than 32768 fonts.
    std::int32_t addFont(std::string_view name);

    /// Returns the rows of the table: the same object every time, until `ClearStructure`.
    Ref<CRtfTableRows> TableRows() const;

    /// Writes the document to a file in Windows-1252; a character that the code page does not have
    /// becomes "?". An existing file is deleted first. Error 75 if it cannot be deleted, for
    /// example because another program has it open. A failure to write the new file goes to the
    /// error module (see `setAbsorbedErrorObserver`) and leaves no partial file. If the text cannot
    /// be rendered (see `Refresh`), no file is deleted or written.
    ///
    /// As long as nobody has called `Contents` or `Refresh`, a text of more than 64 KB goes into
    /// the file piece by piece and is not kept. It is rendered again for the next `Commit`, for
    /// `Contents`, and before the first change of the document, its rows, cells and paragraphs or
    /// its stylesheet; the last two keep it in memory from then on. If the memory for it is
    /// missing, they throw `std::bad_alloc` and change nothing. A text is also kept if the format
    /// of a character style contains a token, and if a file is replaced and the brackets of inline
    /// styles are not in pairs or the document has columns, spans, settings of rows, a page header
    /// or a page footer.
    void Commit(const std::string& sPath);

    /// Loads a stylesheet from a text in place of the current styles. Marks the document changed
    /// under the same conditions as `setStyleSheetFile`, and has the same errors: 445, 31037.
    void LoadStyleSheetFromMemmory(std::string_view sStyleSheet);

    /// Renders the document. Rendering changes it: cells get the background colors of their styles,
    /// and paragraphs the alignment of their cells, for good. A character style whose format
    /// contains tokens of itself would make the text endless: then error 6 goes to the error module
    /// (see `setAbsorbedErrorObserver`), the previous text stays, and the document stays changed.
    ///
    /// Error 5 for columns, spans and headings that do not fit the rows; the description names the
    /// row. `Contents` and `Commit` raise it too if the text is out of date.
    void Refresh();

    /// Returns the background color of the named cell style; `eNoColor` if there is no such style.
    tColorIndex getCellStyleBackColor(std::string_view sName) const;

    /// Removes the rows and resets the page to its defaults, and with it the columns, the form of
    /// the heading, the page header and the page footer. Colors and fonts that `addColor` and
    /// `addFont` added are removed. The stylesheet stays with its own, and `Changed` keeps its
    /// value. A host that holds the old rows can go on using them, but they are no longer part of
    /// the document.
    void ClearStructure();

    /// Sets a function that is called with every error that ends a procedure without being raised,
    /// such as a failure of `Commit` to write its file. It must not change the collections of a
    /// document that a driver is building. An empty function removes it.
    void setAbsorbedErrorObserver(GError::Observer observer);

    /// Sets a function that is called with every character that becomes "?" because Windows-1252
    /// lacks it: while `Commit` writes its file, and while marked fields get their data. It must
    /// not use the document. What it throws is swallowed. An empty function removes it.
    void setLostCharacterObserver(LostCharacterObserver observer);

    /// Returns the usable width of the page in twips: page width minus left and right margin. Error
    /// 6 if it does not fit into 32 bits.
    std::int32_t TextAreaWidth() const;

    /// Returns the control words of the named paragraph style, a single blank if there are none.
    /// Valid until the stylesheet changes.
    std::string_view GetParagraphStyle(std::string_view sName) const;

    /// Returns the control words of the named character style, an empty text if there are none.
    std::string_view GetCharacterStyle(std::string_view sName) const;

    /// Returns the error module of the document.
    GError& errors() noexcept;

    CRtfDoc(const CRtfDoc&) = delete;
    CRtfDoc& operator=(const CRtfDoc&) = delete;

protected:
    CRtfDoc() = default;
    ~CRtfDoc() = default;
};

}  // namespace quorvane
