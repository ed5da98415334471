#include <quorvane.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "capi/arguments.h"
#include "capi/documentHandle.h"
#include "capi/guarded.h"
#include "capi/guardedText.h"
#include "quorvane/compose/Picture.h"
#include "quorvane/compose/Text.h"
#include "quorvane/compose/widthsIn.h"

// Rows, cells and paragraphs of documents.

namespace {

using namespace quorvane;
using namespace quorvane::capi;

/// Runs a body on the row with an index.
template <class Body>
quorvane_status onRow(quorvane_document* document, size_t row, Body&& body) noexcept {
    return guarded(document, [&] { body(document->document[row]); });
}

template <class Body>
quorvane_status onCell(quorvane_document* document, size_t row, size_t cell, Body&& body) noexcept {
    return guarded(document, [&] { body(document->document[row][cell]); });
}

template <class Body>
quorvane_status onParagraph(quorvane_document* document, size_t row, size_t cell, size_t paragraph,
                            Body&& body) noexcept {
    return guarded(document, [&] { body(document->document[row][cell][paragraph]); });
}

/// The index at which something is inserted into a row or a cell.
template <class Element>
std::size_t placeIn(const Element& element, size_t index) {
    return index == QUORVANE_AT_END ? element.size() : index;
}

Length lengthArgument(const char* text, size_t length) {
    const std::string_view value = textArgument(text, length);
    return value.empty() ? Length(0) : Length(value);
}

Text emphasized(Text text, int emphasis) {
    if (emphasis < 0 || emphasis > (QUORVANE_BOLD | QUORVANE_ITALIC | QUORVANE_UNDERLINED)) {
        throw CallError("The emphasis is not made of QUORVANE_BOLD, _ITALIC and _UNDERLINED.");
    }
    if ((emphasis & QUORVANE_UNDERLINED) != 0) {
        text = underlined(text);
    }
    if ((emphasis & QUORVANE_ITALIC) != 0) {
        text = italic(text);
    }
    return (emphasis & QUORVANE_BOLD) != 0 ? bold(text) : text;
}

}  // namespace

quorvane_status quorvane_row_set_columns(quorvane_document* document, size_t row,
                                         const char* widths, size_t length) {
    return onRow(document, row, [&](const Row& element) {
        element.setColumns(widthsIn(textArgument(widths, length)));
    });
}

quorvane_status quorvane_row_set_background(quorvane_document* document, size_t row,
                                            const char* color, size_t length) {
    return onRow(document, row,
                 [&](const Row& element) { element.setBackColor(textArgument(color, length)); });
}

quorvane_status quorvane_row_set_border(quorvane_document* document, size_t row, int sides,
                                        int width) {
    return onRow(document, row, [&](const Row& element) { setBorders(element, sides, width); });
}

quorvane_status quorvane_row_set_heading(quorvane_document* document, size_t row, int is_heading) {
    return onRow(document, row, [&](const Row& element) { element.setHeading(is_heading != 0); });
}

quorvane_status quorvane_row_set_keep(quorvane_document* document, size_t row, int keeps) {
    return onRow(document, row, [&](const Row& element) { element.setKeep(keeps != 0); });
}

quorvane_status quorvane_row_set_keep_with_next(quorvane_document* document, size_t row,
                                                int keeps) {
    return onRow(document, row, [&](const Row& element) { element.setKeepWithNext(keeps != 0); });
}

quorvane_status quorvane_row_set_page_break(quorvane_document* document, size_t row, int breaks) {
    return onRow(document, row, [&](const Row& element) { element.setPageBreak(breaks != 0); });
}

quorvane_status quorvane_row_insert_cell(quorvane_document* document, size_t row, size_t index,
                                         const char* text, size_t length, const char* style,
                                         size_t style_length, size_t* cell) {
    return onRow(document, row, [&](const Row& element) {
        const std::size_t place = placeIn(element, index);
        const std::string_view shown = textArgument(text, length);
        const std::string_view name = textArgument(style, style_length);
        if (text) {
            element.insertCell(place, shown, name);
        } else {
            element.insertCell(place);
        }
        setResult(cell, place);
    });
}

quorvane_status quorvane_row_remove_cell(quorvane_document* document, size_t row, size_t cell) {
    return onCell(document, row, cell, [](const Cell& element) { element.remove(); });
}

quorvane_status quorvane_row_count_cells(quorvane_document* document, size_t row, size_t* count) {
    return onRow(document, row,
                 [&](const Row& element) { requireArgument(count, "count") = element.size(); });
}

quorvane_status quorvane_cell_set_style(quorvane_document* document, size_t row, size_t cell,
                                        const char* name, size_t length) {
    return onCell(document, row, cell,
                  [&](const Cell& element) { element.setStyle(textArgument(name, length)); });
}

quorvane_status quorvane_cell_set_align(quorvane_document* document, size_t row, size_t cell,
                                        int align) {
    return onCell(document, row, cell,
                  [&](const Cell& element) { element.setAlign(alignArgument(align)); });
}

quorvane_status quorvane_cell_set_background(quorvane_document* document, size_t row, size_t cell,
                                             const char* color, size_t length) {
    return onCell(document, row, cell,
                  [&](const Cell& element) { element.setBackColor(textArgument(color, length)); });
}

quorvane_status quorvane_cell_set_border(quorvane_document* document, size_t row, size_t cell,
                                         int sides, int width) {
    return onCell(document, row, cell,
                  [&](const Cell& element) { setBorders(element, sides, width); });
}

quorvane_status quorvane_cell_set_span(quorvane_document* document, size_t row, size_t cell,
                                       int columns, int rows) {
    return onCell(document, row, cell, [&](const Cell& element) {
        const std::int32_t before = element.span();
        element.setSpan(columns);
        try {
            element.setVspan(rows);
        } catch (...) {
            element.setSpan(before);
            throw;
        }
    });
}

quorvane_status quorvane_cell_set_marked_field(quorvane_document* document, size_t row, size_t cell,
                                               const char* data, size_t length) {
    return onCell(document, row, cell,
                  [&](const Cell& element) { element.setMarkedField(textArgument(data, length)); });
}

quorvane_status quorvane_cell_insert_paragraph(quorvane_document* document, size_t row, size_t cell,
                                               size_t index, const char* text, size_t length,
                                               const char* style, size_t style_length,
                                               size_t* paragraph) {
    return onCell(document, row, cell, [&](const Cell& element) {
        const std::size_t place = placeIn(element, index);
        element.insertParagraph(place, textArgument(text, length),
                                textArgument(style, style_length));
        setResult(paragraph, place);
    });
}

quorvane_status quorvane_cell_remove_paragraph(quorvane_document* document, size_t row, size_t cell,
                                               size_t paragraph) {
    return onParagraph(document, row, cell, paragraph,
                       [](const Paragraph& element) { element.remove(); });
}

quorvane_status quorvane_cell_count_paragraphs(quorvane_document* document, size_t row, size_t cell,
                                               size_t* count) {
    return onCell(document, row, cell,
                  [&](const Cell& element) { requireArgument(count, "count") = element.size(); });
}

quorvane_status quorvane_paragraph_set_text(quorvane_document* document, size_t row, size_t cell,
                                            size_t paragraph, const char* text, size_t length) {
    return onParagraph(document, row, cell, paragraph, [&](const Paragraph& element) {
        element.setText(textArgument(text, length));
    });
}

quorvane_status quorvane_paragraph_add_text(quorvane_document* document, size_t row, size_t cell,
                                            size_t paragraph, const char* text, size_t length,
                                            int emphasis) {
    return onParagraph(document, row, cell, paragraph, [&](const Paragraph& element) {
        element.addText(emphasized(textArgument(text, length), emphasis));
    });
}

quorvane_status quorvane_paragraph_add_styled_text(quorvane_document* document, size_t row,
                                                   size_t cell, size_t paragraph, const char* text,
                                                   size_t length, const char* style,
                                                   size_t style_length) {
    return onParagraph(document, row, cell, paragraph, [&](const Paragraph& element) {
        element.addText(styled(textArgument(style, style_length), textArgument(text, length)));
    });
}

quorvane_status quorvane_paragraph_add_rtf(quorvane_document* document, size_t row, size_t cell,
                                           size_t paragraph, const char* rtf, size_t length) {
    return onParagraph(document, row, cell, paragraph, [&](const Paragraph& element) {
        element.addText(quorvane::rtf(textArgument(rtf, length)));
    });
}

quorvane_status quorvane_paragraph_rtf(quorvane_document* document, size_t row, size_t cell,
                                       size_t paragraph, char** rtf, size_t* length) {
    return guardedText(document, rtf, length,
                       [&] { return document->document[row][cell][paragraph].rtf(); });
}

quorvane_status quorvane_paragraph_set_style(quorvane_document* document, size_t row, size_t cell,
                                             size_t paragraph, const char* name, size_t length) {
    return onParagraph(document, row, cell, paragraph, [&](const Paragraph& element) {
        element.setStyle(textArgument(name, length));
    });
}

quorvane_status quorvane_paragraph_set_color(quorvane_document* document, size_t row, size_t cell,
                                             size_t paragraph, const char* color, size_t length) {
    return onParagraph(document, row, cell, paragraph, [&](const Paragraph& element) {
        element.setColor(textArgument(color, length));
    });
}

quorvane_status quorvane_paragraph_set_align(quorvane_document* document, size_t row, size_t cell,
                                             size_t paragraph, int align) {
    return onParagraph(document, row, cell, paragraph,
                       [&](const Paragraph& element) { element.setAlign(alignArgument(align)); });
}

quorvane_status quorvane_paragraph_set_marked_field(quorvane_document* document, size_t row,
                                                    size_t cell, size_t paragraph, const char* data,
                                                    size_t length) {
    return onParagraph(document, row, cell, paragraph, [&](const Paragraph& element) {
        element.setMarkedField(textArgument(data, length));
    });
}

quorvane_status quorvane_paragraph_set_picture(quorvane_document* document, size_t row, size_t cell,
                                               size_t paragraph, const char* bytes, size_t length,
                                               const char* width, size_t width_length,
                                               const char* height, size_t height_length) {
    return onParagraph(document, row, cell, paragraph, [&](const Paragraph& element) {
        const PictureSize size{lengthArgument(width, width_length),
                               lengthArgument(height, height_length)};
        const std::string_view file = textArgument(bytes, length);
        if (file.empty()) {
            element.removePicture();
        } else {
            element.setPicture(Picture(std::string(file), size));
        }
    });
}

quorvane_status quorvane_paragraph_set_picture_file(quorvane_document* document, size_t row,
                                                    size_t cell, size_t paragraph, const char* path,
                                                    size_t length, const char* width,
                                                    size_t width_length, const char* height,
                                                    size_t height_length) {
    return onParagraph(document, row, cell, paragraph, [&](const Paragraph& element) {
        const PictureSize size{lengthArgument(width, width_length),
                               lengthArgument(height, height_length)};
        element.setPicture(Picture::fromFile(std::string(textArgument(path, length)), size));
    });
}
