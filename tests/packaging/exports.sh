#!/bin/sh
# exports.sh LIBRARY SONAME: fails unless the library has that name for the linker, and exports
# what the public headers declare and nothing else of the library.
set -eu

library=$1
soname=$2
status=0
fail() {
    echo "$1" >&2
    status=1
}

objdump -p "$library" | grep -q "SONAME *$soname\$" || fail "The soname is not $soname."

exported=$(nm --dynamic --demangle --defined-only "$library" | cut -d ' ' -f 3-)
for name in 'quorvane::CRtfDoc::create(' 'quorvane::CRtfTableCell::Paragraphs(' \
    'quorvane::CRtfDriver::ParseFile(' 'quorvane::checkDescription' 'quorvane::formattedStyleSheet' \
    'typeinfo for quorvane::RtfError' 'vtable for quorvane::HostServices'; do
    echo "$exported" | grep -qF "$name" || fail "$name is not exported."
done
for name in DescriptionParser DescriptionTree DocumentBuilder InnerCell MemoryPool RtfChecker \
    RtfLexer StyleLookup TextOutput; do
    if echo "$exported" | grep -q "^\(vtable for \|typeinfo for \)\{0,1\}quorvane::$name\b"; then
        fail "$name is private and exported."
    fi
done
exit "$status"
