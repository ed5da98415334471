#include <quorvane.h>

#include <string>
#include <string_view>
#include <vector>

#include "capi/HandleError.h"
#include "capi/arguments.h"
#include "capi/documentHandle.h"
#include "capi/documentOutput.h"
#include "capi/guarded.h"
#include "capi/guardedText.h"
#include "capi/rowTexts.h"
#include "quorvane/compose/widthsIn.h"

namespace {

using namespace quorvane;
using namespace quorvane::capi;

PageText pageText(std::string_view left, std::string_view center, std::string_view right) {
    return {std::string(left), std::string(center), std::string(right)};
}

std::size_t rowIndex(const Document& document, size_t index) {
    return index == QUORVANE_AT_END ? document.size() : index;
}

}  // namespace

quorvane_status quorvane_document_new(quorvane_document** document) {
    return makeHandle(document);
}

void quorvane_document_free(quorvane_document* document) {
    delete document;
}

const quorvane_error* quorvane_document_error(const quorvane_document* document) {
    return errorOf(document);
}

const char* quorvane_document_error_text(const quorvane_document* document) {
    return errorTextOf(document);
}

quorvane_status quorvane_document_set_page(quorvane_document* document, const char* name,
                                           size_t length) {
    return guarded(document, [&] { document->document.setPage(textArgument(name, length)); });
}

quorvane_status quorvane_document_set_page_size(quorvane_document* document, const char* width,
                                                size_t width_length, const char* height,
                                                size_t height_length) {
    return guarded(document, [&] {
        document->document.setPage(Length(textArgument(width, width_length)),
                                   Length(textArgument(height, height_length)));
    });
}

quorvane_status quorvane_document_set_margin(quorvane_document* document, int sides,
                                             const char* width, size_t length) {
    return guarded(document, [&] {
        const int wanted = sidesArgument(sides);
        const Length margin = textArgument(width, length);
        Margins margins = document->margins;
        margins.left = (wanted & QUORVANE_LEFT) != 0 ? margin : margins.left;
        margins.right = (wanted & QUORVANE_RIGHT) != 0 ? margin : margins.right;
        margins.top = (wanted & QUORVANE_TOP) != 0 ? margin : margins.top;
        margins.bottom = (wanted & QUORVANE_BOTTOM) != 0 ? margin : margins.bottom;
        document->document.setMargins(margins);
        document->margins = margins;
    });
}

quorvane_status quorvane_document_set_first_page(quorvane_document* document, int number) {
    return guarded(document, [&] { document->document.setPageNumberStart(number); });
}

quorvane_status quorvane_document_set_columns(quorvane_document* document, const char* widths,
                                              size_t length) {
    return guarded(document,
                   [&] { document->document.setColumns(widthsIn(textArgument(widths, length))); });
}

quorvane_status quorvane_document_set_header(quorvane_document* document, const char* left,
                                             size_t left_length, const char* center,
                                             size_t center_length, const char* right,
                                             size_t right_length) {
    return guarded(document, [&] {
        document->document.setHeader(pageText(textArgument(left, left_length),
                                              textArgument(center, center_length),
                                              textArgument(right, right_length)));
    });
}

quorvane_status quorvane_document_set_footer(quorvane_document* document, const char* left,
                                             size_t left_length, const char* center,
                                             size_t center_length, const char* right,
                                             size_t right_length) {
    return guarded(document, [&] {
        document->document.setFooter(pageText(textArgument(left, left_length),
                                              textArgument(center, center_length),
                                              textArgument(right, right_length)));
    });
}

quorvane_status quorvane_document_set_heading_form(quorvane_document* document, int form) {
    return guarded(document, [&] {
        document->document.setHeadingForm(enumArgument(form, QUORVANE_HEADING_IN_TABLE, "form") ==
                                                  QUORVANE_HEADING_IN_TABLE
                                              ? HeadingForm::RowProperty
                                              : HeadingForm::PageHeader);
    });
}

quorvane_status quorvane_document_set_stylesheet(quorvane_document* document, const char* text,
                                                 size_t length) {
    return guarded(document, [&] { document->document.setStyleSheet(textArgument(text, length)); });
}

quorvane_status quorvane_document_add_row(quorvane_document* document, const char* const texts[],
                                          const size_t lengths[], size_t count, const char* style,
                                          size_t style_length, size_t* row) {
    return guarded(document, [&] {
        const RowTexts cells(texts, lengths, count);
        const std::size_t index = document->document.size();
        document->document.addRow(cells.cells(), textArgument(style, style_length));
        setResult(row, index);
    });
}

quorvane_status quorvane_document_add_rows(quorvane_document* document, const char* texts,
                                           size_t length, size_t cells_in_row, size_t rows,
                                           const char* style, size_t style_length) {
    return guarded(document, [&] {
        const std::string_view name = textArgument(style, style_length);
        JoinedRows joined(textArgument(texts, length), cells_in_row, rows);
        while (joined.next()) {
            document->document.addRow(joined.cells(), name);
        }
    });
}

quorvane_status quorvane_document_insert_row(quorvane_document* document, size_t index,
                                             size_t* row) {
    return guarded(document, [&] {
        const std::size_t place = rowIndex(document->document, index);
        document->document.insertRow(place);
        setResult(row, place);
    });
}

quorvane_status quorvane_document_remove_row(quorvane_document* document, size_t row) {
    return guarded(document, [&] { document->document[row].remove(); });
}

quorvane_status quorvane_document_count_rows(quorvane_document* document, size_t* count) {
    return guarded(document, [&] { requireArgument(count, "count") = document->document.size(); });
}

quorvane_status quorvane_document_rtf(quorvane_document* document, char** rtf, size_t* length) {
    return guardedText(document, rtf, length, [&] { return document->document.rtf(); });
}

quorvane_status quorvane_document_write(quorvane_document* document, quorvane_write_callback write,
                                        void* user) {
    return guarded(document, [&] { writeDocument(document->document, write, user); });
}

quorvane_status quorvane_document_save(quorvane_document* document, const char* path,
                                       size_t length) {
    return guarded(document,
                   [&] { document->document.save(std::string(textArgument(path, length))); });
}
