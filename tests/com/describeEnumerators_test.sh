#!/bin/sh
# describeEnumerators_test.sh SOURCES LIBRARY: describeEnumerators.pl refuses an interface
# description that leaves out a help text and a library that it does not know, and then leaves the
# library as it was. What it writes is tested in typeLibrary_test.cpp.
sources=$1
library=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0

# expect MESSAGE IDL LIBRARY
expect() {
    cp "$3" "$folder/before"
    message=$(perl "$sources/describeEnumerators.pl" "$2" "$3" 2>&1)
    status=$?
    message=$(printf '%s' "$message" | sed "s|$folder/||g")
    if [ "$status" -eq 0 ] || [ "$message" != "$1" ]; then
        echo "expected \"$1\", but it was \"$message\" with status $status" >&2
        failed=1
    fi
    if ! cmp "$folder/before" "$3"; then
        failed=1
    fi
}

cp "$library" "$folder/library.tlb"
sed 's|  // Hairline.*||' "$sources/quorvane.idl" >"$folder/undescribed.idl"
expect "undescribed.idl: eHair has no help text" "$folder/undescribed.idl" "$folder/library.tlb"

expect "library.tlb: enumerators of an unexpected size" \
    "$sources/quorvane.idl" "$folder/library.tlb"

echo 'no library at all' >"$folder/other.tlb"
expect "other.tlb: not a type library" "$sources/quorvane.idl" "$folder/other.tlb"
exit $failed
