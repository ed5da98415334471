-- Writes an invoice with a logo: luajit invoice.lua LOGO FILE

local ffi = require("ffi")

ffi.cdef [[
typedef struct quorvane_document quorvane_document;
typedef struct { int status, number; const char *identifier, *message, *file; } quorvane_error;
int quorvane_document_new(quorvane_document** d);
void quorvane_document_free(quorvane_document* d);
const quorvane_error* quorvane_document_error(const quorvane_document* d);
int quorvane_document_set_stylesheet(quorvane_document* d, const char* text, size_t length);
int quorvane_document_set_columns(quorvane_document* d, const char* text, size_t length);
int quorvane_document_set_header(quorvane_document* d, const char*, size_t, const char*, size_t,
                                  const char*, size_t);
int quorvane_document_set_footer(quorvane_document* d, const char*, size_t, const char*, size_t,
                                  const char*, size_t);
int quorvane_document_add_rows(quorvane_document* d, const char* texts, size_t length, size_t cells,
                                size_t rows, const char* style, size_t);
int quorvane_document_save(quorvane_document* d, const char* path, size_t length);
int quorvane_row_set_background(quorvane_document* d, size_t row, const char* color,
                                 size_t length);
int quorvane_cell_set_align(quorvane_document* d, size_t row, size_t cell, int align);
int quorvane_paragraph_set_picture_file(quorvane_document* d, size_t row, size_t cell,
                                         size_t paragraph, const char* path, size_t,
                                         const char* width, size_t, const char* height, size_t);
]]
local library = ffi.load("libquorvane.so.1")

local STYLES = [[
; quorvane 2
{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-before: 2pt; space-after: 2pt }
{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }
{ name: column; style-def: paragraph; based-on: normal; bold; color: white }
{ name: total; style-def: paragraph; based-on: normal; bold }
]]
local ITEMS = {
    {"Espresso machine", 1, 64900},
    {"Café crème, 1 kg", 12, 1890},
    {"Mug {large}", 6, 950},
}
local RIGHT = 3

local made = ffi.new("quorvane_document*[1]")
library.quorvane_document_new(made)
local invoice = ffi.gc(made[0], library.quorvane_document_free)
local rows = 0

local function check(status)
    if status ~= 0 then
        local e = library.quorvane_document_error(invoice)
        error(ffi.string(e.file) .. ": " .. ffi.string(e.message), 0)
    end
end

local function money(cents)
    return string.format("%d.%02d", math.floor(cents / 100), cents % 100)
end

local function add_row(style, texts)
    local joined = table.concat(texts, "\0") .. "\0"
    check(library.quorvane_document_add_rows(invoice, joined, #joined, #texts, 1, style, #style))
    for cell = 1, #texts - 1 do
        check(library.quorvane_cell_set_align(invoice, rows, cell, RIGHT))
    end
    rows = rows + 1
    return rows - 1
end

local function set_background(row, color)
    check(library.quorvane_row_set_background(invoice, row, color, #color))
end

local function write(logo, file)
    local columns, height = "60 15 25", "15mm"
    local header, footer = "Northmoor Coffee", "{page} / {pages}"
    check(library.quorvane_document_set_stylesheet(invoice, STYLES, #STYLES))
    check(library.quorvane_document_set_columns(invoice, columns, #columns))
    check(library.quorvane_document_set_header(invoice, header, #header, nil, 0, nil, 0))
    check(library.quorvane_document_set_footer(invoice, nil, 0, footer, #footer, nil, 0))
    local letterhead = add_row("title", {"Invoice 2027-0042", "", ""})
    check(library.quorvane_paragraph_set_picture_file(invoice, letterhead, 2, 0, logo, #logo,
                                                      nil, 0, height, #height))
    set_background(add_row("column", {"Article", "Quantity", "Amount"}), "#1f4e79")
    local total = 0
    for _, item in ipairs(ITEMS) do
        local article, quantity, cents = unpack(item)
        add_row("normal", {article, quantity, money(quantity * cents)})
        total = total + quantity * cents
    end
    set_background(add_row("total", {"Total", "", money(total)}), "#dde7f0")
    check(library.quorvane_document_save(invoice, file, #file))
end

if #arg ~= 2 then
    io.stderr:write("usage: luajit invoice.lua LOGO FILE\n")
    os.exit(2)
end
local done, message = pcall(write, arg[1], arg[2])
if not done then
    io.stderr:write(message, "\n")
    os.exit(1)
end
