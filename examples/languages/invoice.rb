# Writes an invoice with a logo: invoice.rb LOGO FILE

require 'fiddle/import'

STYLES = <<STYLES.freeze
; quorvane 2
{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-before: 2pt; space-after: 2pt }
{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }
{ name: column; style-def: paragraph; based-on: normal; bold; color: white }
{ name: total; style-def: paragraph; based-on: normal; bold }
STYLES
ITEMS = [['Espresso machine', 1, 64900], ['Café crème, 1 kg', 12, 1890], ['Mug {large}', 6, 950]]

module Quorvane
  extend Fiddle::Importer
  dlload 'libquorvane.so.1'
  typealias 'text', 'const char*'
  extern 'int quorvane_document_new(void**)'
  extern 'void quorvane_document_free(void*)'
  extern 'void* quorvane_document_error(void*)'
  extern 'int quorvane_document_set_stylesheet(void*, text, size_t)'
  extern 'int quorvane_document_set_columns(void*, text, size_t)'
  extern 'int quorvane_document_set_header(void*, text, size_t, text, size_t, text, size_t)'
  extern 'int quorvane_document_set_footer(void*, text, size_t, text, size_t, text, size_t)'
  extern 'int quorvane_document_add_rows(void*, text, size_t, size_t, size_t, text, size_t)'
  extern 'int quorvane_document_save(void*, text, size_t)'
  extern 'int quorvane_row_set_background(void*, size_t, text, size_t)'
  extern 'int quorvane_cell_set_align(void*, size_t, size_t, int)'
  extern 'int quorvane_paragraph_set_picture_file(void*, size_t, size_t, size_t, ' \
         'text, size_t, text, size_t, text, size_t)'
  CError = struct ['int status', 'int number', 'char* identifier', 'char* message', 'char* file']
  RIGHT = 3
  Error = Class.new(StandardError)

  class Document
    def initialize
      made = Fiddle::Pointer.malloc(Fiddle::SIZEOF_VOIDP, Fiddle::RUBY_FREE)
      Quorvane.quorvane_document_new(made)
      @handle = made.ptr
      @handle.free = Quorvane['quorvane_document_free']
      @rows = 0
    end

    # Calls a function. A string is a text with its length.
    def call(name, *arguments)
      values = arguments.flat_map { |value| value.is_a?(String) ? [value, value.bytesize] : value }
      return if Quorvane.public_send("quorvane_#{name}", @handle, *values).zero?

      error = CError.new(Quorvane.quorvane_document_error(@handle))
      raise Error, "#{error.file}: #{error.message}".force_encoding('UTF-8')
    end

    def add_row(style, *texts)
      call(:document_add_rows, texts.map { |text| "#{text}\0" }.join, texts.size, 1, style)
      (1...texts.size).each { |cell| call(:cell_set_align, @rows, cell, RIGHT) }
      (@rows += 1) - 1
    end
  end
end

def money(cents) = format('%d.%02d', *cents.divmod(100))

def invoice(logo)
  Quorvane::Document.new.tap do |document|
    document.call(:document_set_stylesheet, STYLES)
    document.call(:document_set_columns, '60 15 25')
    document.call(:document_set_header, 'Northmoor Coffee', '', '')
    document.call(:document_set_footer, '', '{page} / {pages}', '')
    letterhead = document.add_row('title', 'Invoice 2027-0042', '', '')
    document.call(:paragraph_set_picture_file, letterhead, 2, 0, logo, '', '15mm')
    heading = document.add_row('column', 'Article', 'Quantity', 'Amount')
    document.call(:row_set_background, heading, '#1f4e79')
    ITEMS.each do |article, quantity, cents|
      document.add_row('normal', article, quantity, money(quantity * cents))
    end
    total = ITEMS.sum { |_, quantity, cents| quantity * cents }
    last = document.add_row('total', 'Total', '', money(total))
    document.call(:row_set_background, last, '#dde7f0')
  end
end

if ARGV.size != 2
  warn 'usage: invoice.rb LOGO FILE'
  exit 2
end
begin
  invoice(ARGV[0]).call(:document_save, ARGV[1])
rescue Quorvane::Error => e
  abort e.message
end
