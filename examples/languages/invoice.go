// Writes an invoice: invoice [FILE]
package main

// #cgo pkg-config: quorvane-c
// #include <quorvane.h>
import "C"

import (
	"encoding/json"
	"log"
	"os"
	"unsafe"
)

// text ends with a zero byte. The library copies it during the call.
func text(b []byte, err error) *C.char {
	if err != nil {
		log.Fatal(err)
	}
	return (*C.char)(unsafe.Pointer(&append(b, 0)[0]))
}

func main() {
	log.SetFlags(0)
	data, err := json.Marshal(map[string]any{
		"number": "2027-0042", "date": "2027-03-01", "customer": "Dvořák & Søn",
		"total": 932.80, "lines": []map[string]any{
			{"article": "Espresso machine", "quantity": 1, "amount": 649.00},
			{"article": "Café crème, 1 kg", "quantity": 12, "amount": 226.80},
			{"article": "Mug {large}", "quantity": 6, "amount": 57.00},
		}})
	path := text([]byte("invoice.rtfspec"), nil)
	file := text([]byte(append(os.Args, "invoice.rtf")[1]), nil)
	const end = C.QUORVANE_NUL_TERMINATED
	var job *C.quorvane_job
	if C.quorvane_job_new(&job) != 0 || C.quorvane_job_set_path(job, path, end) != 0 ||
		C.quorvane_job_set_stylesheet(job, text(os.ReadFile("invoice.rtfss")), end, nil, 0) != 0 ||
		C.quorvane_job_set_data(job, text(data, err), end, nil, 0) != 0 ||
		C.quorvane_job_render_file(job, text(os.ReadFile("invoice.rtfspec")), end, file, end) != 0 {
		log.Fatal(C.GoString(C.quorvane_job_error_text(job)))
	}
	C.quorvane_job_free(job)
}
