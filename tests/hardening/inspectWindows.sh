#!/bin/sh
# inspectWindows.sh FILE: fails when a program or DLL for Windows lacks a piece of its armour.
file=$1
failed=0
headers=$(objdump -p "$file")

# holds FLAG
holds() {
    if ! printf '%s' "$headers" | grep -q "$1"; then
        echo "$file lacks $1" >&2
        failed=1
    fi
}

holds DYNAMIC_BASE
holds NX_COMPAT
if printf '%s' "$headers" | grep -q 'PE32+'; then
    holds HIGH_ENTROPY_VA
fi
# Without them it can stand at no other address, whatever its flags say.
if ! objdump -h "$file" | grep -q '[.]reloc'; then
    echo "$file lacks relocations" >&2
    failed=1
fi
exit $failed
