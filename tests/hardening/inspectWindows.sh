#!/bin/sh
# inspectWindows.sh FILE WINDRES: fails if a program or DLL for Windows lacks a part of its
# hardening, version information or manifest, or needs a newer Windows than Windows 7.
file=$1
windres=$2
here=$(dirname "$0")
failed=0
headers=$(objdump -p "$file")
resources=$("$windres" -i "$file" -O rc) || exit 1

# has TEXT PATTERN: "yes" if the pattern is in the text.
has() {
    if printf '%s\n' "$1" | grep -q "$2"; then echo yes; else echo no; fi
}
isLibrary=$(has "$headers" '^	DLL$')
isComponent=$(has "$headers" ' DllRegisterServer$')

lacks() {
    echo "$file lacks $1" >&2
    failed=1
}

# holds PIECE TEXT [PATTERN]: the pattern is in the text. The piece is the pattern if there is none.
holds() {
    printf '%s\n' "$2" | grep -q "${3:-$1}" || lacks "$1"
}

holds DYNAMIC_BASE "$headers"
holds NX_COMPAT "$headers"
if printf '%s' "$headers" | grep -q 'PE32+'; then
    holds HIGH_ENTROPY_VA "$headers"
fi
# Without them it can stand at no other address, whatever its flags say.
objdump -h "$file" | grep -q '[.]reloc' || lacks relocations

# The version of Windows 7 is 6.1.
for number in MajorOSystemVersion=6 MinorOSystemVersion=1 \
    MajorSubsystemVersion=6 MinorSubsystemVersion=1; do
    holds "$number" "$headers" "^${number%=*}[[:space:]]*${number#*=}\$"
done
imported=$(printf '%s\n' "$headers" | awk '
    /DLL Name:/ { library = tolower($3) }
    /^\t[0-9a-f]+\t *[0-9]+ / { print library, $3 }' | sort -u)
[ -n "$imported" ] || lacks imports
new=$(printf '%s\n' "$imported" | grep -vxFf "$here/windows7Functions.txt")
if [ -n "$new" ]; then
    echo "$file needs functions that are not in windows7Functions.txt:" >&2
    printf '%s\n' "$new" >&2
    echo "Add those that Windows 7 has." >&2
    failed=1
fi

for name in CompanyName FileDescription FileVersion InternalName LegalCopyright OriginalFilename \
    ProductName ProductVersion; do
    holds "$name" "$resources" "VALUE \"$name\", L*\"[^\"]"
done
if [ "$isComponent" = yes ]; then
    holds OLESelfRegister "$resources" 'VALUE "OLESelfRegister", ""'
fi
if [ "$isLibrary" = no ]; then
    holds manifest "$resources" '^1 24 '
    holds asInvoker "$resources" 'requestedExecutionLevel level=""asInvoker""'
    holds longPathAware "$resources" '<longPathAware [^>]*>true</longPathAware>'
    # Windows 7, 8, 8.1, and 10 together with 11.
    for system in 35138b9a-5d96-4fbd-8e2d-a2440225f93a 4a2f28e3-53b9-4441-ba9c-d69d4a4a6e38 \
        1f676c76-80e1-4239-95bb-83d0f6d0da78 8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a; do
        holds "$system" "$resources" "<supportedOS Id=\"\"{$system}\"\"/>"
    done
fi
exit $failed
