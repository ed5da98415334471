# Writes an invoice: ruby invoice.rb [FILE]

require 'fiddle/import'
require 'json'

module Quorvane
  extend Fiddle::Importer
  dlload 'libquorvane.so.1'
  typealias 'text', 'const char*'
  extern 'int quorvane_job_new(void**)'
  extern 'void quorvane_job_free(void*)'
  extern 'text quorvane_job_error_text(void*)'
  extern 'int quorvane_job_set_path(void*, text, size_t)'
  extern 'int quorvane_job_set_stylesheet(void*, text, size_t, text, size_t)'
  extern 'int quorvane_job_set_data(void*, text, size_t, text, size_t)'
  extern 'int quorvane_job_render_file(void*, text, size_t, text, size_t)'
end

invoice = {
  number: '2027-0042', date: '2027-03-01', customer: 'Dvořák & Søn', total: 932.80,
  lines: [
    { article: 'Espresso machine', quantity: 1, amount: 649.00 },
    { article: 'Café crème, 1 kg', quantity: 12, amount: 226.80 },
    { article: 'Mug {large}', quantity: 6, amount: 57.00 }
  ]
}

made = Fiddle::Pointer.malloc(Fiddle::SIZEOF_VOIDP, Fiddle::RUBY_FREE)
Quorvane.quorvane_job_new(made)
job = made.ptr
call = lambda do |name, *texts|
  status = Quorvane.public_send(name, job, *texts.flat_map { |text| [text, text.bytesize] })
  abort Quorvane.quorvane_job_error_text(job).to_s unless status.zero?
end
call[:quorvane_job_set_path, 'invoice.rtfspec']
call[:quorvane_job_set_stylesheet, File.read('invoice.rtfss'), 'invoice.rtfss']
call[:quorvane_job_set_data, invoice.to_json, '']
call[:quorvane_job_render_file, File.read('invoice.rtfspec'), ARGV.fetch(0, 'invoice.rtf')]
Quorvane.quorvane_job_free(job)
