-- Writes an invoice: luajit invoice.lua [FILE]

local ffi = require("ffi")
local json = require("cjson")

ffi.cdef [[
typedef struct quorvane_job quorvane_job;
int quorvane_job_new(quorvane_job** job);
void quorvane_job_free(quorvane_job* job);
const char* quorvane_job_error_text(const quorvane_job* job);
int quorvane_job_set_path(quorvane_job*, const char* path, size_t);
int quorvane_job_set_stylesheet(quorvane_job*, const char* text, size_t, const char* name, size_t);
int quorvane_job_set_data(quorvane_job*, const char* json, size_t, const char* name, size_t);
int quorvane_job_render_file(quorvane_job*, const char* text, size_t, const char* path, size_t);
]]
local quorvane = ffi.load("libquorvane.so.1")

local invoice = json.encode {
    number = "2027-0042", date = "2027-03-01", customer = "Dvořák & Søn", total = 932.80,
    lines = {
        {article = "Espresso machine", quantity = 1, amount = 649.00},
        {article = "Café crème, 1 kg", quantity = 12, amount = 226.80},
        {article = "Mug {large}", quantity = 6, amount = 57.00},
    },
}
local path, file = "invoice.rtfspec", arg[1] or "invoice.rtf"
local description = assert(io.open(path, "rb")):read("*a")
local styles = assert(io.open("invoice.rtfss", "rb")):read("*a")

local made = ffi.new("quorvane_job*[1]")
quorvane.quorvane_job_new(made)
local job = ffi.gc(made[0], quorvane.quorvane_job_free)
if quorvane.quorvane_job_set_path(job, path, #path) ~= 0
    or quorvane.quorvane_job_set_stylesheet(job, styles, #styles, nil, 0) ~= 0
    or quorvane.quorvane_job_set_data(job, invoice, #invoice, nil, 0) ~= 0
    or quorvane.quorvane_job_render_file(job, description, #description, file, #file) ~= 0 then
    io.stderr:write(ffi.string(quorvane.quorvane_job_error_text(job)), "\n")
    os.exit(1)
end
