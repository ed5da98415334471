# Writes an invoice: perl invoice.pl [FILE]
use v5.36;
use utf8;
use FFI::Platypus 2.00;
use JSON::PP qw(encode_json);

my $ffi = FFI::Platypus->new(api => 2, lib => 'libquorvane.so.1');
my @text = qw(string size_t);
$ffi->mangler(sub ($name) { "quorvane_$name" });
$ffi->attach(job_new => ['opaque*'] => 'int');
$ffi->attach(job_free => ['opaque'] => 'void');
$ffi->attach(job_error_text => ['opaque'] => 'string');
$ffi->attach(job_set_path => ['opaque', @text] => 'int');
$ffi->attach(job_set_stylesheet => ['opaque', @text, @text] => 'int');
$ffi->attach(job_set_data => ['opaque', @text, @text] => 'int');
$ffi->attach(job_render_file => ['opaque', @text, @text] => 'int');

my %invoice = (
    number => '2027-0042', date => '2027-03-01', customer => 'Dvořák & Søn', total => 932.80,
    lines => [
        {article => 'Espresso machine', quantity => 1, amount => 649.00},
        {article => 'Café crème, 1 kg', quantity => 12, amount => 226.80},
        {article => 'Mug {large}', quantity => 6, amount => 57.00},
    ],
);

sub text ($bytes) { return ($bytes, length $bytes) }
sub content ($file) {
    open my $handle, '<', $file or die "$file: $!\n";
    return text(join '', <$handle>);
}

local $SIG{__DIE__} = sub ($message) { print STDERR $message; exit 1 };
job_new(\my $job);
my $failed = job_set_path($job, text('invoice.rtfspec'))
    || job_set_stylesheet($job, content('invoice.rtfss'), text('invoice.rtfss'))
    || job_set_data($job, text(encode_json(\%invoice)), text(''))
    || job_render_file($job, content('invoice.rtfspec'), text($ARGV[0] // 'invoice.rtf'));
die job_error_text($job), "\n" if $failed;
job_free($job);
