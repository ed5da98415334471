// Writes an invoice with a logo: invoice LOGO FILE
package main

// #cgo pkg-config: quorvane-c
// #include <quorvane.h>
// #include <stdlib.h>
import "C"

import (
	"fmt"
	"os"
	"strings"
	"unsafe"
)

const styles = `; quorvane 2
{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-before: 2pt; space-after: 2pt }
{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }
{ name: column; style-def: paragraph; based-on: normal; bold; color: white }
{ name: total; style-def: paragraph; based-on: normal; bold }
`

var items = []struct {
	article         string
	quantity, cents int
}{{"Espresso machine", 1, 64900}, {"Café crème, 1 kg", 12, 1890}, {"Mug {large}", 6, 950}}

// text is what the library reads, and copies, during a call.
func text(s string) *C.char {
	return (*C.char)(unsafe.Pointer(&append([]byte(s), 0)[0]))
}

func size(s string) C.size_t {
	return C.size_t(len(s))
}

func money(cents int) string {
	return fmt.Sprintf("%d.%02d", cents/100, cents%100)
}

func addRow(d *C.quorvane_document, row C.size_t, style string, texts ...string) {
	joined := strings.Join(texts, "\x00") + "\x00"
	C.quorvane_document_add_rows(d, text(joined), size(joined), 3, 1, text(style), size(style))
	C.quorvane_cell_set_align(d, row, 1, C.QUORVANE_ALIGN_RIGHT)
	C.quorvane_cell_set_align(d, row, 2, C.QUORVANE_ALIGN_RIGHT)
}

func setBackground(d *C.quorvane_document, row C.size_t, color string) {
	C.quorvane_row_set_background(d, row, text(color), size(color))
}

// build makes the invoice. A document keeps the error of the last call that failed, so one look at
// the end is enough.
func build(d *C.quorvane_document, logo string) {
	columns, header, footer, height := "60 15 25", "Northmoor Coffee", "{page} / {pages}", "15mm"
	C.quorvane_document_set_stylesheet(d, text(styles), size(styles))
	C.quorvane_document_set_columns(d, text(columns), size(columns))
	C.quorvane_document_set_header(d, text(header), size(header), nil, 0, nil, 0)
	C.quorvane_document_set_footer(d, nil, 0, text(footer), size(footer), nil, 0)

	addRow(d, 0, "title", "Invoice 2027-0042", "", "")
	C.quorvane_paragraph_set_picture_file(d, 0, 2, 0, text(logo), size(logo), nil, 0,
		text(height), size(height))
	addRow(d, 1, "column", "Article", "Quantity", "Amount")
	setBackground(d, 1, "#1f4e79")
	row, total := C.size_t(2), 0
	for _, item := range items {
		amount := item.quantity * item.cents
		addRow(d, row, "normal", item.article, fmt.Sprint(item.quantity), money(amount))
		row, total = row+1, total+amount
	}
	addRow(d, row, "total", "Total", "", money(total))
	setBackground(d, row, "#dde7f0")
}

func failure(d *C.quorvane_document) error {
	if e := C.quorvane_document_error(d); e.status != C.QUORVANE_OK {
		return fmt.Errorf("%s: %s", C.GoString(e.file), C.GoString(e.message))
	}
	return nil
}

func write(logo, file string) error {
	var d *C.quorvane_document
	C.quorvane_document_new(&d)
	defer C.quorvane_document_free(d)
	build(d, logo)
	if err := failure(d); err != nil {
		return err
	}
	C.quorvane_document_save(d, text(file), size(file))
	return failure(d)
}

func main() {
	if len(os.Args) != 3 {
		fmt.Fprintln(os.Stderr, "usage: invoice LOGO FILE")
		os.Exit(2)
	}
	if err := write(os.Args[1], os.Args[2]); err != nil {
		fmt.Fprintln(os.Stderr, err)
		os.Exit(1)
	}
}
