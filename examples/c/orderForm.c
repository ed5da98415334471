/* Writes an order form with a logo: orderForm LOGO FILE */

#include <quorvane.h>
#include <stdio.h>

static const char styles[] =
    "; quorvane 2\n"
    "{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-after: 2pt }\n"
    "{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }\n"
    "{ name: column; style-def: paragraph; based-on: normal; bold }\n"
    "{ name: strong; style-def: character; bold }\n";

static const char* const titles[] = {"Order 4711", ""};
static const char* const columns[] = {"Quantity", "Article", "Price"};
static const char* const items[][3] = {{"12", "Blue vase {large}", "250.00"},
                                       {"3", "Shelf", "89.50"}};

/* A document keeps the error of the last call that failed, so one look at the end is enough. */
static void build(quorvane_document* form, const char* logo) {
    size_t row = 0;
    size_t i;

    quorvane_document_set_stylesheet(form, QUORVANE_TEXT(styles));
    quorvane_document_set_margin(form, QUORVANE_ALL_SIDES, QUORVANE_TEXT("2cm"));
    quorvane_document_set_columns(form, QUORVANE_TEXT("20 55 25"));
    quorvane_document_set_footer(form, NULL, 0, QUORVANE_TEXT("{page} / {pages}"), NULL, 0);

    quorvane_document_add_row(form, titles, NULL, 2, QUORVANE_TEXT("title"), &row);
    quorvane_cell_set_span(form, row, 0, 2, 1);
    quorvane_paragraph_set_picture_file(form, row, 1, 0, QUORVANE_TEXT(logo), NULL, 0,
                                        QUORVANE_TEXT("15mm"));

    quorvane_document_add_row(form, columns, NULL, 3, QUORVANE_TEXT("column"), &row);
    quorvane_row_set_background(form, row, QUORVANE_TEXT("#dde7f0"));
    quorvane_cell_set_align(form, row, 2, QUORVANE_ALIGN_RIGHT);

    for (i = 0; i < sizeof items / sizeof *items; ++i) {
        quorvane_document_add_row(form, items[i], NULL, 3, QUORVANE_TEXT("normal"), &row);
        quorvane_row_set_border(form, row, QUORVANE_BOTTOM, QUORVANE_BORDER_THIN);
        quorvane_row_set_keep(form, row, 1);
        quorvane_cell_set_align(form, row, 2, QUORVANE_ALIGN_RIGHT);
    }

    quorvane_document_add_row(form, titles, NULL, 0, NULL, 0, &row);
    quorvane_row_insert_cell(form, row, 0, QUORVANE_TEXT("Total: "), QUORVANE_TEXT("normal"), NULL);
    quorvane_paragraph_add_styled_text(form, row, 0, 0, QUORVANE_TEXT("3,268.50"),
                                       QUORVANE_TEXT("strong"));
    quorvane_cell_set_span(form, row, 0, 3, 1);
}

int main(int argc, char** argv) {
    quorvane_document* form = NULL;
    const quorvane_error* error;
    int failed;

    if (argc != 3) {
        fprintf(stderr, "usage: %s LOGO FILE\n", argv[0]);
        return 2;
    }
    quorvane_document_new(&form);
    build(form, argv[1]);
    error = quorvane_document_error(form);
    if (error->status == QUORVANE_OK) {
        quorvane_document_save(form, QUORVANE_TEXT(argv[2]));
        error = quorvane_document_error(form);
    }
    failed = error->status != QUORVANE_OK;
    if (failed) {
        fprintf(stderr, "%s: %s\n", error->file, error->message);
    }
    quorvane_document_free(form);
    return failed;
}
