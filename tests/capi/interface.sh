#!/bin/sh
# interface.sh COMPILER FILE: describes the interface of the library for C in a file.
# interface.sh COMPILER FILE LIBRARY: fails unless the library has its soname, exports the functions
# of its header and nothing else, and is compatible with the interface that the file describes.
set -eu

compiler=$1
description=$2
library=${3-}
folder=$(dirname "$0")
header=$folder/../../capi/include/quorvane.h
temporary=$(mktemp -d)
trap 'rm -rf "$temporary"' EXIT

"$folder/interfaceStub.py" "$header" > "$temporary/stub.c"
cp "$header" "$temporary"
# From its folder, so that the description has no path of this machine.
(cd "$temporary" && "$compiler" -g -Og -w -fvisibility=hidden -shared -fPIC -I . \
    -Wl,-soname,libquorvane.so.1 -o stub.so stub.c)

if [ -z "$library" ]; then
    abidw --no-show-locs --no-comp-dir-path --no-corpus-path --no-elf-needed \
        --out-file "$description" "$temporary/stub.so"
    exit
fi

exportsOf() {
    nm --dynamic --defined-only "$1" | cut -d ' ' -f 3 | sort
}
exportsOf "$library" > "$temporary/exported"
exportsOf "$temporary/stub.so" > "$temporary/declared"
diff "$temporary/declared" "$temporary/exported" ||
    { echo "The library exports something else than its header declares." >&2; exit 1; }

objdump -p "$library" | grep -q 'SONAME *libquorvane\.so\.1$' ||
    { echo "The soname is not libquorvane.so.1." >&2; exit 1; }

# What is only added is compatible.
abidiff --no-added-syms "$description" "$temporary/stub.so" ||
    { echo "Programs that were linked before may break. If you mean it: scripts/c-interface" >&2
      exit 1; }
