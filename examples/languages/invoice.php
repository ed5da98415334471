<?php
// Writes an invoice with a logo: php invoice.php LOGO FILE

declare(strict_types=1);

const STYLES = <<<'END'
; quorvane 2
{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-before: 2pt; space-after: 2pt }
{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }
{ name: column; style-def: paragraph; based-on: normal; bold; color: white }
{ name: total; style-def: paragraph; based-on: normal; bold }
END;
const ITEMS = [
    ['Espresso machine', 1, 64900],
    ['Café crème, 1 kg', 12, 1890],
    ['Mug {large}', 6, 950],
];
const RIGHT = 3;

const DECLARATIONS = <<<'END'
typedef struct quorvane_document quorvane_document;
typedef struct {
    int status, number;
    const char* identifier;
    const char* message;
    const char* file;
} quorvane_error;
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
END;

final class Document
{
    private FFI $library;
    private FFI\CData $handle;
    private int $rows = 0;

    public function __construct()
    {
        $this->library = FFI::cdef(DECLARATIONS, 'libquorvane.so.1');
        $this->handle = $this->library->new('quorvane_document*');
        $this->library->quorvane_document_new(FFI::addr($this->handle));
    }

    public function __destruct()
    {
        $this->library->quorvane_document_free($this->handle);
    }

    /** Calls a function. A string is a text with its length. */
    public function call(string $name, string|int ...$arguments): void
    {
        $values = [];
        foreach ($arguments as $value) {
            array_push($values, ...(is_string($value) ? [$value, strlen($value)] : [$value]));
        }
        if ($this->library->{"quorvane_$name"}($this->handle, ...$values) !== 0) {
            $error = $this->library->quorvane_document_error($this->handle);
            [$file, $message] = [FFI::string($error->file), FFI::string($error->message)];
            throw new RuntimeException("$file: $message");
        }
    }

    public function addRow(string $style, string ...$texts): int
    {
        $this->call('document_add_rows', implode("\0", $texts) . "\0", count($texts), 1, $style);
        for ($cell = 1; $cell < count($texts); ++$cell) {
            $this->call('cell_set_align', $this->rows, $cell, RIGHT);
        }
        return $this->rows++;
    }
}

function money(int $cents): string
{
    return sprintf('%d.%02d', intdiv($cents, 100), $cents % 100);
}

function invoice(string $logo): Document
{
    $document = new Document();
    $document->call('document_set_stylesheet', STYLES);
    $document->call('document_set_columns', '60 15 25');
    $document->call('document_set_header', 'Northmoor Coffee', '', '');
    $document->call('document_set_footer', '', '{page} / {pages}', '');
    $letterhead = $document->addRow('title', 'Invoice 2027-0042', '', '');
    $document->call('paragraph_set_picture_file', $letterhead, 2, 0, $logo, '', '15mm');
    $heading = $document->addRow('column', 'Article', 'Quantity', 'Amount');
    $document->call('row_set_background', $heading, '#1f4e79');
    $total = 0;
    foreach (ITEMS as [$article, $quantity, $cents]) {
        $document->addRow('normal', $article, (string) $quantity, money($quantity * $cents));
        $total += $quantity * $cents;
    }
    $last = $document->addRow('total', 'Total', '', money($total));
    $document->call('row_set_background', $last, '#dde7f0');
    return $document;
}

if ($argc !== 3) {
    fwrite(STDERR, "usage: php invoice.php LOGO FILE\n");
    exit(2);
}
try {
    invoice($argv[1])->call('document_save', $argv[2]);
} catch (RuntimeException $error) {
    fwrite(STDERR, $error->getMessage() . "\n");
    exit(1);
}
