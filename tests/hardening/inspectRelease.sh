#!/bin/sh
# inspectRelease.sh SOURCES FOLDER COMPILER [OPTION...]: fails when a file of ours would be compiled for use
# without fortified functions, without a protected stack or for one address only. Which functions
# are fortified the compiler decides, so the program itself does not show it.
sources=$1
folder=$2
compiler=$3
shift 3
failed=0

rm -rf "$folder"
cmake -S "$sources" -B "$folder" "-DCMAKE_CXX_COMPILER=$compiler" -DCMAKE_BUILD_TYPE=Release \
    -DQUORVANE_BUILD_TESTS=OFF "$@" >"$folder.log" 2>&1 || { cat "$folder.log" >&2; exit 1; }

commands=$(grep '"command":' "$folder/compile_commands.json")
for option in '-O[23]' '-D_FORTIFY_SOURCE=2' '-fstack-protector-strong' '-fPIC\|-fPIE'; do
    bare=$(printf '%s\n' "$commands" | grep -v -e " \($option\) ")
    if [ -z "$commands" ] || [ -n "$bare" ]; then
        echo "compiled without $option: $bare" >&2
        failed=1
    fi
done
exit $failed
