#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/compose/Color.h"
#include "quorvane/compose/DocumentReference.h"
#include "quorvane/compose/Picture.h"
#include "quorvane/compose/Text.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/enumerations.h"

namespace quorvane {

class Cell;
template <class Element>
class ElementRange;

/// A handle to a paragraph of a cell. See `Row` for how handles work.
class Paragraph {
public:
    /// A handle to no paragraph.
    Paragraph() = default;

    /// Puts a text in the place of the one that is there. A paragraph without text and picture
    /// writes nothing. Error "wrong-value" for what no document can show (see `findUnshowable`) and
    /// for raw RTF that cannot stand there, "undefined-style" for a character style that the
    /// stylesheet does not have.
    Paragraph setText(TextView text) const;
    /// Appends a text to the one that is there. Errors as for `setText`.
    Paragraph addText(TextView text) const;
    /// Returns the text as RTF.
    std::string rtf() const;

    /// Sets the paragraph style. Error "undefined-style" if the document has a stylesheet and that
    /// lacks the style. An empty name is the first style of the stylesheet.
    Paragraph setStyle(std::string_view name) const;
    /// Returns the name of the style.
    std::string style() const;

    /// Sets the color of the text; `eNoColor` leaves it to the style. On a dark background (see
    /// `isDarkColor`), texts are white unless a color is set after the background.
    Paragraph setColor(const Color& color) const;
    /// Returns the number of the color.
    tColorIndex color() const;

    /// Sets the alignment; `eNoDefault` leaves it to the style. The alignment of the cell, if it
    /// has one, comes before it.
    Paragraph setAlign(tCellAlign align) const;
    /// Returns the alignment.
    tCellAlign align() const;

    /// Shows a picture before the text.
    Paragraph setPicture(const Picture& picture) const;
    /// Removes the picture.
    Paragraph removePicture() const;
    /// Returns whether the paragraph has a picture.
    bool hasPicture() const;

    /// Makes the paragraph a marked field with this data, which readers do not show. Error
    /// "unencodable-value" for a text with characters that are not in Windows-1252.
    Paragraph setMarkedField(std::string_view data) const;
    Paragraph setMarkedField(std::int32_t data) const;

    /// Removes the paragraph from its cell. Error "wrong-call" if it was removed before.
    void remove() const;
    /// Returns the index of the paragraph in its cell, from 0. Error "wrong-call" if it was
    /// removed.
    std::size_t index() const;
    /// Returns the cell of the paragraph, even after the paragraph was removed from it.
    Cell cell() const;

    /// Returns the paragraph as the object model has it.
    Ref<CRtfParagraph> native() const { return paragraph_; }

    /// Two handles are equal when they refer to the same paragraph.
    bool operator==(const Paragraph&) const = default;

private:
    friend class Cell;
    friend class ElementRange<Paragraph>;
    using Owner = Cell;

    Paragraph(Ref<ComposedDocument> document, Ref<CRtfTableRow> row, Ref<CRtfParagraph> paragraph)
        : document_(std::move(document)), row_(std::move(row)), paragraph_(std::move(paragraph)) {}

    static std::size_t countIn(const Owner& cell);
    static Paragraph at(const Owner& cell, std::size_t index);

    CRtfParagraph& element() const;
    template <class Value>
    Paragraph set(void (CRtfParagraph::*setter)(Value), Value value) const;
    Paragraph setRtf(std::string_view rtf) const;

    // The row too, which would go with its last handle otherwise.
    Ref<ComposedDocument> document_;
    Ref<CRtfTableRow> row_;
    Ref<CRtfParagraph> paragraph_;
};

}  // namespace quorvane
