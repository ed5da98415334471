#!/bin/sh
# inspectWindows_test.sh COMPILER: inspectWindows.sh has nothing to say of a program with the whole
# armour, and names the piece that another lacks.
here=$(dirname "$0")
compiler=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0
wide=
case $("$compiler" -dumpmachine) in
    x86_64-*) wide=-Wl,--high-entropy-va ;;
esac

echo 'int main() { return 0; }' >"$folder/program.cpp"

# expect PIECES OPTION...: what inspectWindows.sh misses in the program, linked with these options
# last.
expect() {
    pieces=$1
    shift
    "$compiler" -static -Wl,--dynamicbase,--nxcompat $wide "$@" \
        -o "$folder/program.exe" "$folder/program.cpp" || exit 1
    inspect
}

# inspect: compares what inspectWindows.sh misses with the pieces.
inspect() {
    missed=$("$here/inspectWindows.sh" "$folder/program.exe" 2>&1)
    status=$?
    missed=$(printf '%s' "$missed" | sed "s|^$folder/program.exe lacks ||" | tr '\n' ' ')
    if [ "$missed" != "$pieces" ]; then
        echo "expected that it misses \"$pieces\", but it was \"$missed\"" >&2
        failed=1
    fi
    if [ "$status" -ne "$([ -z "$pieces" ]; echo $?)" ]; then
        echo "where it misses \"$pieces\", the status is $status" >&2
        failed=1
    fi
}

expect ""
# The linker's flags stay when the relocations go afterwards.
objcopy --remove-section .reloc "$folder/program.exe"
pieces=relocations
inspect
expect NX_COMPAT -Wl,--disable-nxcompat
if [ -n "$wide" ]; then
    expect HIGH_ENTROPY_VA -Wl,--disable-high-entropy-va
    # The linker takes one for nothing without the other.
    expect "DYNAMIC_BASE HIGH_ENTROPY_VA" -Wl,--disable-dynamicbase,--enable-reloc-section
else
    expect DYNAMIC_BASE -Wl,--disable-dynamicbase,--enable-reloc-section
fi
exit $failed
