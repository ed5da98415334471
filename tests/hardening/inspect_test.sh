#!/bin/sh
# inspect_test.sh COMPILER: inspect.sh accepts a program with all of the hardening, and names the
# part that another one lacks.
here=$(dirname "$0")
compiler=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0
flow=
if [ "$(uname -m)" = x86_64 ]; then
    flow=-fcf-protection
fi

cat >"$folder/program.cpp" <<'END'
#include <cstdio>
#include <cstring>
int main(int, char** arguments) {
    char name[64];
    std::strcpy(name, arguments[0]);
    return std::puts(name) < 0;
}
END

# expect COMPLAINT OPTION...: what inspect.sh says of the program, compiled with these options last.
expect() {
    complaint=$1
    shift
    rm -f "$folder/program"
    "$compiler" -O1 -fPIE -fstack-protector-strong $flow -pie -Wl,-z,relro,-z,now "$@" \
        -o "$folder/program" "$folder/program.cpp" 2>"$folder/compiler" ||
        { cat "$folder/compiler" >&2; exit 1; }
    said=$("$here/inspect.sh" "$folder/program" 2>&1)
    status=$?
    if [ "$said" != "${complaint:+$folder/program has $complaint}" ]; then
        echo "with $*: expected \"$complaint\", got \"$said\"" >&2
        failed=1
    fi
    if [ "$status" -ne "$([ -z "$complaint" ]; echo $?)" ]; then
        echo "with $*: the status is $status" >&2
        failed=1
    fi
}

expect ""
expect "no address of its own choice (it is no PIE)" -no-pie
expect "no relocations that are read-only" -Wl,-z,norelro
expect "no relocations that are bound at once" -Wl,-z,lazy
expect "no protected stack" -fno-stack-protector
expect "a stack that can be executed" -Wl,-z,execstack
if [ "$(uname -m)" = x86_64 ]; then
    expect "no protected control flow" -fcf-protection=none
fi
exit $failed
