#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iosfwd>
#include <span>
#include <string>
#include <string_view>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/compose/Error.h"
#include "quorvane/compose/Length.h"
#include "quorvane/compose/Row.h"
#include "quorvane/compose/Width.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/HeadingForm.h"
#include "quorvane/docmodel/PageText.h"

namespace quorvane {

using Rows = ElementRange<Row>;

/// The margins of a page; see `Document::setMargins`.
struct Margins {
    Length left = 1701;
    Length right = 1701;
    Length top = 1418;
    Length bottom = 1418;
};

/// An RTF document made of one table: rows of cells of paragraphs, a page and a stylesheet. It has
/// all that the extended language has, under the same names, and writes the same bytes as a
/// description of the same table.
///
///     Document document;
///     document.setColumns({70, 30});
///     document.addRow({"Article", "Price"}).setHeading();
///     document.addRow({"Vase {blue}", "12.50"})[1].setAlign(eRight);
///     document.save("prices.rtf");
///
/// Texts are UTF-8 and are shown exactly as they are; `rtf("…")` marks control words. The order of
/// calls does not matter, except that a stylesheet comes before the texts that use its styles. Page
/// and columns are fitted together when the document is rendered: by `rtf`, `write`, `save` and
/// `native`. Columns that come with the document, from a description or the object model, are
/// lengths: if page and margins get another width, set the columns again, otherwise rendering is an
/// error "wrong-value". As soon as page or margins are set, cells without columns share the text
/// area evenly.
///
/// A document can be moved and not copied. One that was moved from throws an `Error` "wrong-call"
/// when it is used, as do `rows()` of it. It belongs to one thread at a time, with all its handles.
/// A call that throws leaves its rows as they were.
class Document {
public:
    /// A document of A4 pages without rows and without a stylesheet. The platform must outlive it
    /// and its handles.
    explicit Document(Platform& platform = systemPlatform());
    /// Takes a document of the object model as it is, for example that of a driver. Stylesheets in
    /// the extended language are accepted from then on.
    explicit Document(Ref<CRtfDoc> document, Platform& platform = systemPlatform());
    Document(Document&& other) noexcept = default;
    Document& operator=(Document&& other) noexcept = default;
    ~Document() = default;

    /// Adds a row without cells at the end and returns it. Readers need at least one cell in it.
    Row addRow();
    /// Adds a row with a cell for each text, which has one paragraph of this paragraph style.
    /// Errors as for `Paragraph::setText` and `Paragraph::setStyle`; nothing is added then.
    Row addRow(std::initializer_list<TextView> texts, std::string_view style = {});
    Row addRow(std::span<const Text> texts, std::string_view style = {});
    Row addRow(std::span<const std::string> texts, std::string_view style = {});
    Row addRow(std::span<const std::string_view> texts, std::string_view style = {});
    /// Inserts a row without cells before the one with this index, or at the end for the index
    /// after the last. Error "wrong-call" for a larger index.
    Row insertRow(std::size_t index);

    /// Returns the rows.
    Rows rows() const { return Rows(document_); }
    /// Returns the number of rows.
    std::size_t size() const { return rows().size(); }
    /// Returns a row. Error "wrong-call" if there is none with this index.
    Row operator[](std::size_t index) const { return rows()[index]; }
    /// Returns the row with this key, which a description gave it (`row-key`, or the number of its
    /// node). Error "wrong-call" if no row has it.
    Row row(std::string_view key) const;

    /// Sets the page by its name: "a3", "a4", "a5", "a6", "b5", "letter", "legal", "tabloid" or
    /// "executive", each also with "-landscape". "a4" by default. Error "wrong-value" for another
    /// name.
    void setPage(std::string_view name);
    /// Sets any other page, up to 22 inches. Error "wrong-value" for a length that is not above 0.
    void setPage(Length width, Length height);
    /// Sets the margins: `setMargins({.left = "2cm", .right = "2cm"})`; those that are not given
    /// are 30 mm at the sides and 25 mm at the top and the bottom. Error "wrong-value" for a length
    /// below 0. Margins that leave no room on the page are an error when the document is rendered.
    void setMargins(const Margins& margins);
    /// Sets the number of the first page, from 1 to 32767; 1 by default. Error "wrong-value" for
    /// another number.
    void setPageNumberStart(std::int32_t number);

    /// Sets the columns of all rows that have none of their own, from left to right. Shares of more
    /// than 100 %, columns beyond the edge of the paper, and rows with more cells than columns are
    /// errors when the document is rendered. Without columns the cells of a row share the text area
    /// evenly.
    void setColumns(std::initializer_list<Width> widths);
    void setColumns(std::span<const Width> widths);

    /// Sets the line at the top of each page: `setHeader({.left = "Order 4711"})`. "{page}" is the
    /// number of the page, "{pages}" the number of pages, and "{{" and "}}" are braces. The
    /// paragraph style "header" gives the format. Error "wrong-value" for other braces and for what
    /// no document can show.
    void setHeader(const PageText& text);
    /// Sets the line at the bottom of each page, with the paragraph style "footer". Errors as for
    /// `setHeader`.
    void setFooter(const PageText& text);
    /// Sets how the rows of the heading are written; `HeadingForm::PageHeader` by default.
    void setHeadingForm(HeadingForm form);

    /// Sets the stylesheet, in either language, in place of the one that is there. An `Error` with
    /// all diagnostics if it is wrong; the one that is there stays then.
    void setStyleSheet(std::string_view text);
    /// Does the same with a file, in UTF-8 or Windows-1252. Error "unreadable-file" too.
    void setStyleSheetFile(const std::string& path);
    /// Returns the number of the font of this name for the control word `\f`, and adds the font to
    /// the document if it is not there. Error "wrong-value" for a name that no font can have.
    std::int32_t addFont(std::string_view name);

    /// Returns the document as the bytes of a file. An `Error` if page, columns, spans and headings
    /// do not fit the rows; it names the row.
    std::string rtf();
    /// Writes these bytes to a stream. Error "unwritable-file" if the stream fails, after which it
    /// has a part of the document; those of `rtf` before anything is written. What the stream
    /// throws passes.
    void write(std::ostream& stream);
    /// Writes these bytes to a file, which appears whole, in the place of the one that was there.
    /// Error "unwritable-file" with the reason of the system, and those of `rtf`; the file that was
    /// there stays then.
    void save(const std::string& path);

    /// Returns the document as the object model has it, with page and columns fitted together.
    /// Errors as for `rtf`, if they do not fit.
    Ref<CRtfDoc> native() const;

private:
    ComposedDocument& composed() const;
    template <class Texts>
    Row addRowOf(const Texts& texts, std::string_view style);

    Ref<ComposedDocument> document_;
};

}  // namespace quorvane
