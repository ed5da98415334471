#!/usr/bin/perl
# Writes an invoice with a logo: invoice.pl LOGO FILE
use v5.36;
use utf8;
use Encode qw(decode_utf8 encode_utf8);
use FFI::Platypus 2.00;

my $styles = <<'END';
; quorvane 2
{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-before: 2pt; space-after: 2pt }
{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }
{ name: column; style-def: paragraph; based-on: normal; bold; color: white }
{ name: total; style-def: paragraph; based-on: normal; bold }
END
my @items = (
    ['Espresso machine', 1, 64900],
    ['Café crème, 1 kg', 12, 1890],
    ['Mug {large}', 6, 950],
);
my $right = 3;

package QuorvaneError {
    use FFI::Platypus::Record;
    record_layout_1(qw(int status int number string identifier string message string file));
}

my $ffi = FFI::Platypus->new(api => 2, lib => 'libquorvane.so.1');
$ffi->mangler(sub ($name) { "quorvane_$name" });
$ffi->type('record(QuorvaneError)*' => 'error');
my @text = qw(string size_t);
$ffi->attach(document_new => ['opaque*'] => 'int');
$ffi->attach(document_free => ['opaque'] => 'void');
$ffi->attach(document_error => ['opaque'] => 'error');
$ffi->attach(document_set_stylesheet => ['opaque', @text] => 'int');
$ffi->attach(document_set_columns => ['opaque', @text] => 'int');
$ffi->attach(document_set_header => ['opaque', (@text) x 3] => 'int');
$ffi->attach(document_set_footer => ['opaque', (@text) x 3] => 'int');
$ffi->attach(document_add_rows => ['opaque', @text, qw(size_t size_t), @text] => 'int');
$ffi->attach(document_save => ['opaque', @text] => 'int');
$ffi->attach(row_set_background => ['opaque', 'size_t', @text] => 'int');
$ffi->attach(cell_set_align => [qw(opaque size_t size_t int)] => 'int');
$ffi->attach(paragraph_set_picture_file => [qw(opaque size_t size_t size_t), (@text) x 3] => 'int');

sub text ($text) { my $bytes = encode_utf8($text); return ($bytes, length $bytes) }
sub money ($cents) { return sprintf '%d.%02d', int($cents / 100), $cents % 100 }

document_new(\my $invoice);
my $rows = 0;

sub check ($status) {
    return if $status == 0;
    my $error = document_error($invoice);
    die decode_utf8($error->file), ': ', decode_utf8($error->message), "\n";
}

sub add_row ($style, @texts) {
    my @joined = text(join '', map { "$_\0" } @texts);
    check document_add_rows($invoice, @joined, scalar @texts, 1, text($style));
    check cell_set_align($invoice, $rows, $_, $right) for 1 .. $#texts;
    return $rows++;
}

sub build ($logo) {
    check document_set_stylesheet($invoice, text($styles));
    check document_set_columns($invoice, text('60 15 25'));
    check document_set_header($invoice, text('Northmoor Coffee'), text(''), text(''));
    check document_set_footer($invoice, text(''), text('{page} / {pages}'), text(''));
    my $letterhead = add_row('title', 'Invoice 2027-0042', '', '');
    my @picture = (text($logo), text(''), text('15mm'));
    check paragraph_set_picture_file($invoice, $letterhead, 2, 0, @picture);
    my $heading = add_row('column', qw(Article Quantity Amount));
    check row_set_background($invoice, $heading, text('#1f4e79'));
    my $total = 0;
    for my $item (@items) {
        my ($article, $quantity, $cents) = @$item;
        add_row('normal', $article, $quantity, money($quantity * $cents));
        $total += $quantity * $cents;
    }
    my $last = add_row('total', 'Total', '', money($total));
    check row_set_background($invoice, $last, text('#dde7f0'));
}

binmode STDERR, ':encoding(UTF-8)';
if (@ARGV != 2) { say STDERR 'usage: invoice.pl LOGO FILE'; exit 2 }
my ($logo, $file) = map { decode_utf8($_) } @ARGV;
my $done = eval { build($logo); check document_save($invoice, text($file)); 1 };
print STDERR $@ unless $done;
document_free($invoice);
exit($done ? 0 : 1);
