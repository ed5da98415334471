/* Writes an invoice with a logo: invoice LOGO FILE */

#include <quorvane.h>
#include <stdio.h>

static const char styles[] =
    "; quorvane 2\n"
    "{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-before: 2pt; "
    "space-after: 2pt }\n"
    "{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }\n"
    "{ name: column; style-def: paragraph; based-on: normal; bold; color: white }\n"
    "{ name: total; style-def: paragraph; based-on: normal; bold }\n";

static const struct {
    const char* article;
    int quantity;
    int cents;
} items[] = {
    {"Espresso machine", 1, 64900}, {"Café crème, 1 kg", 12, 1890}, {"Mug {large}", 6, 950}};

static const char* money(char* text, int cents) {
    sprintf(text, "%d.%02d", cents / 100, cents % 100);
    return text;
}

static size_t add_row(quorvane_document* invoice, const char* first, const char* second,
                      const char* third, const char* style) {
    const char* texts[] = {first, second, third};
    size_t row = 0;
    quorvane_document_add_row(invoice, texts, NULL, 3, QUORVANE_TEXT(style), &row);
    quorvane_cell_set_align(invoice, row, 1, QUORVANE_ALIGN_RIGHT);
    quorvane_cell_set_align(invoice, row, 2, QUORVANE_ALIGN_RIGHT);
    return row;
}

/* A document keeps the error of the last call that failed, so one look at the end is enough. */
static void build(quorvane_document* invoice, const char* logo) {
    char quantity[16];
    char amount[16];
    int total = 0;
    size_t row;
    size_t i;

    quorvane_document_set_stylesheet(invoice, QUORVANE_TEXT(styles));
    quorvane_document_set_columns(invoice, QUORVANE_TEXT("60 15 25"));
    quorvane_document_set_header(invoice, QUORVANE_TEXT("Northmoor Coffee"), NULL, 0, NULL, 0);
    quorvane_document_set_footer(invoice, NULL, 0, QUORVANE_TEXT("{page} / {pages}"), NULL, 0);

    row = add_row(invoice, "Invoice 2027-0042", "", "", "title");
    quorvane_paragraph_set_picture_file(invoice, row, 2, 0, QUORVANE_TEXT(logo), NULL, 0,
                                        QUORVANE_TEXT("15mm"));
    row = add_row(invoice, "Article", "Quantity", "Amount", "column");
    quorvane_row_set_background(invoice, row, QUORVANE_TEXT("#1f4e79"));
    for (i = 0; i < sizeof items / sizeof *items; ++i) {
        int cents = items[i].quantity * items[i].cents;
        sprintf(quantity, "%d", items[i].quantity);
        add_row(invoice, items[i].article, quantity, money(amount, cents), "normal");
        total += cents;
    }
    row = add_row(invoice, "Total", "", money(amount, total), "total");
    quorvane_row_set_background(invoice, row, QUORVANE_TEXT("#dde7f0"));
}

int main(int argc, char** argv) {
    quorvane_document* invoice = NULL;
    const quorvane_error* error;
    int failed;

    if (argc != 3) {
        fprintf(stderr, "usage: %s LOGO FILE\n", argv[0]);
        return 2;
    }
    quorvane_document_new(&invoice);
    build(invoice, argv[1]);
    error = quorvane_document_error(invoice);
    if (error->status == QUORVANE_OK) {
        quorvane_document_save(invoice, QUORVANE_TEXT(argv[2]));
        error = quorvane_document_error(invoice);
    }
    failed = error->status != QUORVANE_OK;
    if (failed) {
        fprintf(stderr, "%s: %s\n", error->file, error->message);
    }
    quorvane_document_free(invoice);
    return failed;
}
