#!/bin/sh
# inspectLibrary_test.sh COMPILER: inspectLibrary.sh accepts a library with all of the hardening, and
# names what another one lacks in one file of two.
here=$(dirname "$0")
compiler=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0
flow=
if [ "$(uname -m)" = x86_64 ]; then
    flow=-fcf-protection
fi

echo '#include <cstring>
char copy(const char* text) { char own[64]; return std::strcpy(own, text)[0]; }' \
    >"$folder/copy.cpp"
echo 'int answer() { return 42; }' >"$folder/answer.cpp"

# expect COMPLAINT OPTION...: what inspectLibrary.sh says when copy.cpp is compiled with the options.
expect() {
    complaint=$1
    shift
    rm -f "$folder/library.a"
    "$compiler" -c -fstack-protector-strong $flow "$@" \
        -o "$folder/copy.o" "$folder/copy.cpp" || exit 1
    "$compiler" -c $flow -o "$folder/answer.o" "$folder/answer.cpp" || exit 1
    ar rc "$folder/library.a" "$folder/copy.o" "$folder/answer.o"
    said=$("$here/inspectLibrary.sh" "$folder/library.a" 2>&1)
    status=$?
    if [ "$said" != "${complaint:+$folder/library.a has $complaint}" ]; then
        echo "with $*: expected \"$complaint\", got \"$said\"" >&2
        failed=1
    fi
    if [ "$status" -ne "$([ -z "$complaint" ]; echo $?)" ]; then
        echo "with $*: the status is $status" >&2
        failed=1
    fi
}

expect ""
expect "no protected stack" -fno-stack-protector
if [ "$(uname -m)" = x86_64 ]; then
    expect "protected control flow in 1 of 2 files" -fcf-protection=none
fi
exit $failed
