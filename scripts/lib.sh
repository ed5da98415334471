# shellcheck shell=bash
# What the scripts of this folder share. They source it; it changes to the project's folder.

set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Precompiled headers are found in the cache only when their time stamps do not count.
export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}

# configure PRESET [OPTION...]: configures a preset of CMakePresets.json in build/PRESET.
configure() {
    local preset=$1 options=("${@:2}")
    # A folder that was configured before keeps its generator.
    if [ ! -e "build/$preset/CMakeCache.txt" ] && command -v ninja >/dev/null; then
        options+=(-G Ninja)
    fi
    if command -v ccache >/dev/null; then
        options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    local output status=0
    output=$(cmake --preset "$preset" "${options[@]}" 2>&1) || status=$?
    # A folder of another compiler keeps nothing of the preset but the compiler.
    if [[ $output == *"require your cache to be deleted"* ]]; then
        cmake --fresh --preset "$preset" "${options[@]}"
        return
    fi
    printf '%s\n' "$output"
    return "$status"
}

# build PRESET [OPTION...]: configures and builds a preset.
build() {
    # Chained, since a caller may ask whether it succeeds and so turn "set -e" off.
    configure "$@" && cmake --build --preset "$1" --parallel "$(nproc)"
}

# runTests PRESET: runs the tests of a preset that was built, and prints how many tests its programs
# ran.
runTests() {
    local status=0
    ctest --preset "$1" --parallel "$(nproc)" || status=$?
    echo "$1: $(testsRun "$1") tests in programs of GoogleTest"
    return "$status"
}

# testsRun PRESET: how many tests the programs of the last test run ran.
testsRun() {
    sed -n 's/^\[==========\] \([0-9]*\) tests\{0,1\} from .* ran\..*/\1/p' \
        "build/$1/Testing/Temporary/LastTest.log" | awk '{ all += $1 } END { print all + 0 }'
}

# summarize PRESET...: the results of the test runs, and the names of the tests that failed.
summarize() {
    local preset log
    echo
    for preset in "$@"; do
        log=build/$preset.log
        if ! [ -e "$log" ] || ! grep -q '^[0-9]*% tests passed' "$log"; then
            echo "$preset: did not run"
            continue
        fi
        echo "$preset: $(grep '^[0-9]*% tests passed' "$log")"
        sed -n "s/^$preset: \\([0-9]* tests in .*\\)/    \\1/p" "$log"
        sed -n '/^The following tests FAILED:/,/^Errors while running/ s/^\t/    /p' "$log"
    done
}
