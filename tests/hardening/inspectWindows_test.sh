#!/bin/sh
# inspectWindows_test.sh COMPILER WINDRES: inspectWindows.sh has nothing to say of a program or DLL
# that is as it should be, and names what another one lacks.
here=$(dirname "$0")
compiler=$1
windres=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0
wide=
case $("$compiler" -dumpmachine) in
    x86_64-*) wide=-Wl,--high-entropy-va ;;
esac
windows7="-Wl,--major-os-version,6,--minor-os-version,1"
windows7="$windows7 -Wl,--major-subsystem-version,6,--minor-subsystem-version,1"

echo 'int wmain() { return 0; }' >"$folder/program.cpp"
cp "$here/../../packaging/windows/quorvane.exe.manifest" "$folder/whole.manifest"

# describe MANIFEST TEXT...: makes resources with the manifest, unless it is "none", and the texts
# of a version, each "Name=value".
describe() {
    {
        echo '#include <winver.h>'
        echo 'VS_VERSION_INFO VERSIONINFO'
        echo 'BEGIN BLOCK "StringFileInfo" BEGIN BLOCK "040904B0" BEGIN'
        manifest=$1
        shift
        for each in "$@"; do
            echo "VALUE \"${each%%=*}\", \"${each#*=}\""
        done
        echo 'END END END'
        [ "$manifest" = none ] || echo "1 24 \"$manifest\""
    } >"$folder/resources.rc"
    (cd "$folder" && "$windres" -i resources.rc -O coff -o resources.o) || exit 1
}

all="CompanyName=c FileDescription=d FileVersion=1 InternalName=i LegalCopyright=l
    OriginalFilename=o ProductName=p ProductVersion=1"

# expect PIECES OPTION...: what inspectWindows.sh misses in the program, linked with these options
# last.
expect() {
    pieces=$1
    shift
    # shellcheck disable=SC2086 # several options
    "$compiler" -static -municode -Wl,--dynamicbase,--nxcompat $wide $windows7 "$@" \
        -o "$folder/program.exe" "$folder/program.cpp" "$folder/resources.o" || exit 1
    inspect
}

# inspect: compares what inspectWindows.sh misses with the pieces.
inspect() {
    missed=$("$here/inspectWindows.sh" "$folder/program.exe" "$windres" 2>&1)
    status=$?
    missed=$(printf '%s' "$missed" | sed "s|^$folder/program.exe lacks ||; s|$folder/||" | tr '\n' ' ')
    if [ "$missed" != "$pieces" ]; then
        echo "expected that it misses \"$pieces\", but it was \"$missed\"" >&2
        failed=1
    fi
    if [ "$status" -ne "$([ -z "$pieces" ]; echo $?)" ]; then
        echo "where it misses \"$pieces\", the status is $status" >&2
        failed=1
    fi
}

# shellcheck disable=SC2086 # several texts
describe whole.manifest $all
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

expect "MajorOSystemVersion=6 MinorOSystemVersion=1" \
    -Wl,--major-os-version,10,--minor-os-version,0
expect "MajorSubsystemVersion=6 MinorSubsystemVersion=1" \
    -Wl,--major-subsystem-version,4,--minor-subsystem-version,0
cat >"$folder/program.cpp" <<'SOURCE'
#include <windows.h>
int wmain() {
    FILETIME time;
    GetSystemTimePreciseAsFileTime(&time);
    return 0;
}
SOURCE
expect "program.exe needs functions that are not in windows7Functions.txt: kernel32.dll \
GetSystemTimePreciseAsFileTime Add those that Windows 7 has."
echo 'int wmain() { return 0; }' >"$folder/program.cpp"

for text in $all; do
    # shellcheck disable=SC2046 # several texts
    describe whole.manifest $(printf '%s\n' $all | grep -vxF "$text")
    expect "${text%%=*}"
done
# shellcheck disable=SC2086 # several texts
describe none $all
expect "manifest asInvoker longPathAware 35138b9a-5d96-4fbd-8e2d-a2440225f93a \
4a2f28e3-53b9-4441-ba9c-d69d4a4a6e38 1f676c76-80e1-4239-95bb-83d0f6d0da78 \
8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a"

# change SED-COMMAND PIECES
change() {
    sed "$1" "$folder/whole.manifest" >"$folder/changed.manifest"
    # shellcheck disable=SC2086 # several texts
    describe changed.manifest $all
    expect "$2"
}
change 's/asInvoker/highestAvailable/' asInvoker
change 's/>true</>false</' longPathAware
change '/1f676c76/d' 1f676c76-80e1-4239-95bb-83d0f6d0da78

# shellcheck disable=SC2086 # several texts
describe none $all
expect "" -shared
# A component.
cat >"$folder/program.cpp" <<'SOURCE'
extern "C" __attribute__((dllexport)) long DllRegisterServer() { return 0; }
SOURCE
expect OLESelfRegister -shared
# shellcheck disable=SC2086 # several texts
describe none OLESelfRegister= $all
expect "" -shared
exit $failed
