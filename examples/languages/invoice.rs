//! Writes an invoice with a logo: invoice LOGO FILE

use std::os::raw::{c_char, c_int, c_void};
use std::{env, ffi::CStr, process, ptr};

const STYLES: &str = "; quorvane 2
{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-before: 2pt; space-after: 2pt }
{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }
{ name: column; style-def: paragraph; based-on: normal; bold; color: white }
{ name: total; style-def: paragraph; based-on: normal; bold }
";
const ITEMS: [(&str, i32, i32); 3] =
    [("Espresso machine", 1, 64900), ("Café crème, 1 kg", 12, 1890), ("Mug {large}", 6, 950)];
const RIGHT: c_int = 3;

type Handle = *mut c_void;
type Text = *const u8;

#[repr(C)]
struct CError {
    status: c_int,
    number: c_int,
    identifier: *const c_char,
    message: *const c_char,
    file: *const c_char,
}

#[rustfmt::skip]
#[link(name = "quorvane")]
extern "C" {
    fn quorvane_document_new(d: *mut Handle) -> c_int;
    fn quorvane_document_free(d: Handle);
    fn quorvane_document_error(d: Handle) -> *const CError;
    fn quorvane_document_set_stylesheet(d: Handle, t: Text, n: usize) -> c_int;
    fn quorvane_document_set_columns(d: Handle, t: Text, n: usize) -> c_int;
    fn quorvane_document_set_header(d: Handle, left: Text, ln: usize, center: Text, cn: usize,
                                    right: Text, rn: usize) -> c_int;
    fn quorvane_document_set_footer(d: Handle, left: Text, ln: usize, center: Text, cn: usize,
                                    right: Text, rn: usize) -> c_int;
    fn quorvane_document_add_rows(d: Handle, t: Text, n: usize, cells: usize, rows: usize,
                                  style: Text, sn: usize) -> c_int;
    fn quorvane_document_save(d: Handle, path: Text, n: usize) -> c_int;
    fn quorvane_row_set_background(d: Handle, row: usize, color: Text, n: usize) -> c_int;
    fn quorvane_cell_set_align(d: Handle, row: usize, cell: usize, align: c_int) -> c_int;
    fn quorvane_paragraph_set_picture_file(d: Handle, row: usize, cell: usize, paragraph: usize,
                                           path: Text, pn: usize, width: Text, wn: usize,
                                           height: Text, hn: usize) -> c_int;
}

struct Document(Handle);

impl Drop for Document {
    fn drop(&mut self) {
        unsafe { quorvane_document_free(self.0) }
    }
}

impl Document {
    fn check(&self, status: c_int) -> Result<(), String> {
        if status == 0 {
            return Ok(());
        }
        let text = |t| unsafe { CStr::from_ptr(t) }.to_string_lossy();
        let error = unsafe { &*quorvane_document_error(self.0) };
        Err(format!("{}: {}", text(error.file), text(error.message)))
    }

    fn add_row(&self, row: usize, texts: [&str; 3], style: &str) -> Result<(), String> {
        let joined: String = texts.iter().map(|text| format!("{text}\0")).collect();
        let (t, s) = (joined.as_ptr(), style.as_ptr());
        unsafe {
            self.check(quorvane_document_add_rows(self.0, t, joined.len(), 3, 1, s, style.len()))?;
            self.check(quorvane_cell_set_align(self.0, row, 1, RIGHT))?;
            self.check(quorvane_cell_set_align(self.0, row, 2, RIGHT))
        }
    }

    fn set_background(&self, row: usize, color: &str) -> Result<(), String> {
        self.check(unsafe { quorvane_row_set_background(self.0, row, color.as_ptr(), color.len()) })
    }
}

fn money(cents: i32) -> String {
    format!("{}.{:02}", cents / 100, cents % 100)
}

fn invoice(logo: &str, file: &str) -> Result<(), String> {
    let mut d = ptr::null_mut();
    let status = unsafe { quorvane_document_new(&mut d) };
    let document = Document(d);
    document.check(status)?;
    let (columns, header, footer) = ("60 15 25", "Northmoor Coffee", "{page} / {pages}");
    let (height, none) = ("15mm", ptr::null());
    let (h, hl, f, fl) = (header.as_ptr(), header.len(), footer.as_ptr(), footer.len());
    unsafe {
        document.check(quorvane_document_set_stylesheet(d, STYLES.as_ptr(), STYLES.len()))?;
        document.check(quorvane_document_set_columns(d, columns.as_ptr(), columns.len()))?;
        document.check(quorvane_document_set_header(d, h, hl, none, 0, none, 0))?;
        document.check(quorvane_document_set_footer(d, none, 0, f, fl, none, 0))?;
    }
    document.add_row(0, ["Invoice 2027-0042", "", ""], "title")?;
    let (path, pl, h, hl) = (logo.as_ptr(), logo.len(), height.as_ptr(), height.len());
    document.check(unsafe {
        quorvane_paragraph_set_picture_file(d, 0, 2, 0, path, pl, none, 0, h, hl)
    })?;
    document.add_row(1, ["Article", "Quantity", "Amount"], "column")?;
    document.set_background(1, "#1f4e79")?;
    let mut total = 0;
    for (i, (article, quantity, cents)) in ITEMS.iter().enumerate() {
        let (number, amount) = (quantity.to_string(), money(quantity * cents));
        document.add_row(2 + i, [article, &number, &amount], "normal")?;
        total += quantity * cents;
    }
    let last = 2 + ITEMS.len();
    document.add_row(last, ["Total", "", &money(total)], "total")?;
    document.set_background(last, "#dde7f0")?;
    document.check(unsafe { quorvane_document_save(d, file.as_ptr(), file.len()) })
}

fn main() {
    let arguments: Vec<String> = env::args().skip(1).collect();
    if arguments.len() != 2 {
        eprintln!("usage: invoice LOGO FILE");
        process::exit(2);
    }
    if let Err(message) = invoice(&arguments[0], &arguments[1]) {
        eprintln!("{message}");
        process::exit(1);
    }
}
