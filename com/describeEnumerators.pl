#!/usr/bin/perl
# describeEnumerators.pl IDL LIBRARY: gives each enumerator of the type library its help text.
#
# The IDL compiler refuses help texts on enumerators, so the interface description has them in a
# comment after each one, and this step writes them into the compiled library. That is a file in
# the "MSFT" format of type libraries: a header, a directory of segments, the segments, and for each
# type a block of its members.
use strict;
use warnings;

use constant {
    HEADER_SIZE     => 0x54,
    SEGMENTS        => 15,
    SEGMENT_SIZE    => 16,     # place and length, then two words that do not matter here
    TYPES           => 0,      # number of the segment that has an entry for each type
    NAMES           => 7,
    STRINGS         => 8,
    TYPE_SIZE       => 0x64,
    MEMBER_SIZE     => 0x14,   # of an enumerator without a help text
    DESCRIBED_SIZE  => 0x1C,   # with help context and help text
    HAS_HELP_DLL    => 0x100,
    ENUMERATION     => 0,
};

my ($idlFile, $libraryFile) = @ARGV;

sub readWhole {
    my ($file) = @_;
    open my $stream, '<:raw', $file or die "$file: $!\n";
    local $/;
    return scalar <$stream>;
}

sub wordAt {
    my ($bytes, $place) = @_;
    return unpack 'V', substr $$bytes, $place, 4;
}

sub setWordAt {
    my ($bytes, $place, $value) = @_;
    substr($$bytes, $place, 4) = pack 'V', $value;
}

# The help text of each enumerator, by name.
sub textsOf {
    my ($idl) = @_;
    my %texts;
    while ($idl =~ /^\s*(e\w+) = -?\d+,?(?:[ ]*\/\/ (\S.*))?$/mg) {
        die "$idlFile: $1 has no help text\n" unless defined $2;
        $texts{$1} = $2;
    }
    die "$idlFile: no enumerators\n" unless %texts;
    return \%texts;
}

# A text as the segment of strings holds it: its length, its bytes, filled up to whole words.
sub storedString {
    my ($text) = @_;
    my $stored = pack('v', length $text) . $text;
    $stored .= 'W' while length($stored) < 8 or length($stored) % 4;
    return $stored;
}

my $texts = textsOf(readWhole($idlFile));
my $library = readWhole($libraryFile);
die "$libraryFile: not a type library\n" unless substr($library, 0, 4) eq 'MSFT';

my $typeCount = wordAt(\$library, 0x20);
my $directory =
    HEADER_SIZE + 4 * $typeCount + (wordAt(\$library, 0x14) & HAS_HELP_DLL ? 4 : 0);
my @places = map { wordAt(\$library, $directory + SEGMENT_SIZE * $_) } 0 .. SEGMENTS - 1;
my $stringsEnd = $places[STRINGS] + wordAt(\$library, $directory + SEGMENT_SIZE * STRINGS + 4);

my $newStrings = '';
my $stringsLength = $stringsEnd - $places[STRINGS];

# Puts a text into the segment of strings; returns its place there.
sub addString {
    my $place = $stringsLength + length $newStrings;
    $newStrings .= storedString($_[0]);
    return $place;
}

# The name at a place of the segment of names: three words of its own, then the characters.
sub nameAt {
    my $start = $places[NAMES] + $_[0];
    return substr $library, $start + 12, wordAt(\$library, $start + 8) & 0xFF;
}

# The block of an enumeration with a help text for each enumerator: the length of the records, the
# records, then for each one its identifier, its name and the place of its record.
sub describedBlock {
    my ($block, $count) = @_;
    my $recordsLength = wordAt(\$block, 0);
    die "$libraryFile: enumerators of an unexpected size\n"
        unless $recordsLength == $count * MEMBER_SIZE;
    my $identifiers = 4 + $recordsLength;
    my $names = $identifiers + 4 * $count;
    my $records = '';
    for my $index (0 .. $count - 1) {
        my $name = nameAt(wordAt(\$block, $names + 4 * $index));
        my $text = delete $texts->{$name};
        die "$libraryFile: $name is not in $idlFile\n" unless defined $text;
        my $record = substr $block, 4 + MEMBER_SIZE * $index, MEMBER_SIZE;
        setWordAt(\$record, 0, wordAt(\$record, 0) - MEMBER_SIZE + DESCRIBED_SIZE);
        $records .= $record . pack 'VV', 0, addString($text);
    }
    return pack('V', length $records) . $records .
        substr($block, $identifiers, 8 * $count) .
        pack('V*', map { DESCRIBED_SIZE * $_ } 0 .. $count - 1);
}

# The blocks stand after all segments, in the order of the types.
my @starts = map { wordAt(\$library, $places[TYPES] + TYPE_SIZE * $_ + 4) } 0 .. $typeCount - 1;
my $blocks = '';
my @newStarts;
for my $type (0 .. $typeCount - 1) {
    my $entry = $places[TYPES] + TYPE_SIZE * $type;
    my $end = $type + 1 < $typeCount ? $starts[$type + 1] : length $library;
    my $block = substr $library, $starts[$type], $end - $starts[$type];
    push @newStarts, $starts[0] + length $blocks;
    $blocks .= (wordAt(\$library, $entry) & 0xF) == ENUMERATION
        ? describedBlock($block, wordAt(\$library, $entry + 0x18) >> 16)
        : $block;
}
die "$libraryFile: it lacks " . join(', ', sort keys %$texts) . "\n" if %$texts;

# The strings grow by whole words, and everything after them moves.
my $growth = length $newStrings;
for my $segment (0 .. SEGMENTS - 1) {
    next if $places[$segment] == 0xFFFFFFFF or $places[$segment] < $stringsEnd;
    setWordAt(\$library, $directory + SEGMENT_SIZE * $segment, $places[$segment] + $growth);
}
setWordAt(\$library, $directory + SEGMENT_SIZE * STRINGS + 4, $stringsLength + $growth);
for my $type (0 .. $typeCount - 1) {
    setWordAt(\$library, $places[TYPES] + TYPE_SIZE * $type + 4, $newStarts[$type] + $growth);
}

open my $stream, '>:raw', $libraryFile or die "$libraryFile: $!\n";
print $stream substr($library, 0, $stringsEnd), $newStrings,
    substr($library, $stringsEnd, $starts[0] - $stringsEnd), $blocks
    or die "$libraryFile: $!\n";
close $stream or die "$libraryFile: $!\n";
