#!/bin/sh
# machineCodeOnly.sh LIBRARY: fails if a static library contains what only one version of a compiler
# can read, or nothing that every linker can.
library=$1
sections=$(objdump --section-headers "$library")
if echo "$sections" | grep -qF '.gnu.lto_'; then
    echo "$library contains sections for optimization when linking" >&2
    exit 1
fi
if ! echo "$sections" | grep -qF '.text'; then
    echo "$library contains no machine code" >&2
    exit 1
fi
