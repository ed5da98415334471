#!/bin/sh
# inspectLibrary.sh LIBRARY: fails when a part of a static library was compiled without protection.
# A whole program does not show that: the system's own libraries are in it, too.
library=$1
failed=0

members=$(ar t "$library" | grep -c '\.o$')
notes=$(readelf --wide --notes "$library" | grep -c 'x86 feature:.*IBT, SHSTK')
if [ "$(uname -m)" = x86_64 ] && [ "$notes" -ne "$members" ]; then
    echo "$library has protected control flow in $notes of $members files" >&2
    failed=1
fi
# Not nm, which would show the code that is to be optimized when linking.
if ! readelf --wide --syms "$library" | grep -q 'UND __stack_chk_fail'; then
    echo "$library has no protected stack" >&2
    failed=1
fi
exit $failed
