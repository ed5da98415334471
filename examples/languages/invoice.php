<?php
// Writes an invoice: php invoice.php [FILE]

$quorvane = FFI::cdef(<<<'END'
typedef struct quorvane_job quorvane_job;
int quorvane_job_new(quorvane_job** job);
void quorvane_job_free(quorvane_job* job);
const char* quorvane_job_error_text(const quorvane_job* job);
int quorvane_job_set_path(quorvane_job*, const char* path, size_t);
int quorvane_job_set_stylesheet(quorvane_job*, const char* text, size_t, const char* name, size_t);
int quorvane_job_set_data(quorvane_job*, const char* json, size_t, const char* name, size_t);
int quorvane_job_render_file(quorvane_job*, const char* text, size_t, const char* path, size_t);
END, 'libquorvane.so.1');

$data = json_encode([
    'number' => '2027-0042', 'date' => '2027-03-01', 'customer' => 'Dvořák & Søn',
    'lines' => [
        ['article' => 'Espresso machine', 'quantity' => 1, 'amount' => 649.00],
        ['article' => 'Café crème, 1 kg', 'quantity' => 12, 'amount' => 226.80],
        ['article' => 'Mug {large}', 'quantity' => 6, 'amount' => 57.00],
    ],
    'total' => 932.80,
], JSON_THROW_ON_ERROR);

$text = fn(string $text) => [$text, strlen($text)];
$content = fn(string $file) => $text(file_get_contents($file) ?: exit(1));
$job = $quorvane->new('quorvane_job*');
$quorvane->quorvane_job_new(FFI::addr($job));
$failed = $quorvane->quorvane_job_set_path($job, ...$text('invoice.rtfspec'))
    || $quorvane->quorvane_job_set_stylesheet($job, ...$content('invoice.rtfss'), ...$text(''))
    || $quorvane->quorvane_job_set_data($job, ...$text($data), ...$text(''))
    || $quorvane->quorvane_job_render_file(
        $job, ...$content('invoice.rtfspec'), ...$text($argv[1] ?? 'invoice.rtf'));
if ($failed) {
    fwrite(STDERR, $quorvane->quorvane_job_error_text($job) . "\n");
}
$quorvane->quorvane_job_free($job);
exit((int) $failed);
