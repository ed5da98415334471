#!/bin/sh
# exports.sh TOOL_PREFIX SOURCES BUILD: fails unless the library for C, its import library and its
# definition file have the functions of its header, by their plain names, and no other.
set -eu

prefix=$1
sources=$2
build=$3
temporary=$(mktemp -d)
trap 'rm -rf "$temporary"' EXIT
failed=0

# What the compiler makes of the header.
"$sources/tests/capi/interfaceStub.py" "$sources/capi/include/quorvane.h" >"$temporary/stub.c"
"${prefix}gcc-posix" -c -DQUORVANE_BUILDS_LIBRARY -I "$sources/capi/include" \
    -o "$temporary/stub.o" "$temporary/stub.c"

# functionsOf FILE: the functions of an object file or an import library. On 32 bits, a function of
# C has an underscore in front of its name there.
functionsOf() {
    "${prefix}nm" --defined-only "$1" | sed -n 's/^[0-9a-f]* T _\{0,1\}//p' | sort
}
functionsOf "$temporary/stub.o" >"$temporary/declared"

# expect WHAT FILE: compares a list with the functions of the header.
expect() {
    diff "$temporary/declared" "$2" || {
        echo "$1 has other functions than the header." >&2
        failed=1
    }
}

"${prefix}objdump" -p "$build/quorvane-1.dll" |
    awk '/^\[Ordinal\/Name Pointer\] Table/ { inTable = 1; next }
        /^$/ { inTable = 0 }
        inTable { print $NF }' |
    sort >"$temporary/exported"
expect quorvane-1.dll "$temporary/exported"

functionsOf "$build/libquorvane.dll.a" >"$temporary/imported"
expect libquorvane.dll.a "$temporary/imported"

sed -n 's/^    //p' "$build/quorvane-1.def" | sort >"$temporary/defined"
expect quorvane-1.def "$temporary/defined"

# What an import library that is made of the definition file leads to.
"${prefix}dlltool" -d "$build/quorvane-1.def" -l "$temporary/libmade.a"
"${prefix}gcc-posix" -I "$sources/capi/include" "$sources/examples/c/orderForm.c" \
    -o "$temporary/orderForm.exe" "$temporary/libmade.a"
"${prefix}objdump" -p "$temporary/orderForm.exe" | grep -q 'DLL Name: quorvane-1\.dll$' || {
    echo "A program that is linked by quorvane-1.def does not load quorvane-1.dll." >&2
    failed=1
}
exit $failed
