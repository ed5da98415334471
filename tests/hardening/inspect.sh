#!/bin/sh
# inspect.sh PROGRAM: fails if a program lacks a part of its hardening.
program=$1
failed=0

# holds WHAT PATTERN TEXT
holds() {
    if ! printf '%s' "$3" | grep -q "$2"; then
        echo "$program has no $1" >&2
        failed=1
    fi
}

holds "address of its own choice (it is no PIE)" 'Type: *DYN' "$(readelf --wide --file-header "$program")"
holds "relocations that are read-only" 'GNU_RELRO' "$(readelf --wide --program-headers "$program")"
holds "relocations that are bound at once" 'BIND_NOW\|Flags:.*NOW' "$(readelf --wide --dynamic "$program")"
holds "protected stack" '__stack_chk_fail' "$(readelf --wide --syms "$program")"
if [ "$(uname -m)" = x86_64 ]; then
    holds "protected control flow" 'endbr64' "$(objdump --disassemble=main "$program")"
fi
if readelf --wide --program-headers "$program" | grep 'GNU_STACK' | grep -q 'E'; then
    echo "$program has a stack that can be executed" >&2
    failed=1
fi
exit $failed
