# shellcheck shell=bash
# shellcheck disable=SC2034  # those who source it use what it sets
# What the scripts of this folder share. They source it; it changes to the project's folder.

set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."

asRoot() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# mayActAsRoot: true for root, and for those whom sudo lets; at a terminal it may ask for a password.
mayActAsRoot() {
    if [ "$(id -u)" -eq 0 ]; then
        return
    fi
    command -v sudo >/dev/null || return
    sudo -n true 2>/dev/null || { [ -t 0 ] && sudo -v; }
}

# isPresent THING: true for a command that can be called, or a header that the compiler finds.
isPresent() {
    case "$1" in
        *.h | *.hpp)
            printf '#if !__has_include(<%s>)\n#error\n#endif\n' "$1" |
                c++ -x c++ -fsyntax-only - 2>/dev/null
            ;;
        *) command -v "$1" >/dev/null ;;
    esac
}

# installMissing THING=PACKAGE...: installs the packages of those things that are not present.
installMissing() {
    local pair package packages=()
    for pair in "$@"; do
        package=${pair#*=}
        if [[ " ${packages[*]} " != *" $package "* ]] && ! isPresent "${pair%%=*}"; then
            packages+=("$package")
        fi
    done
    if [ "${#packages[@]}" -eq 0 ]; then
        return
    fi
    if ! command -v apt-get >/dev/null; then
        echo "Missing: ${packages[*]} (as Debian names them)." >&2
        echo "There is no apt-get here: install them your system's way and start again." >&2
        return 1
    fi
    if ! mayActAsRoot; then
        echo "Missing: ${packages[*]}" >&2
        echo "Installing them takes root or sudo. As root, then start again:" >&2
        echo "  apt-get update && apt-get install ${packages[*]}" >&2
        return 1
    fi
    echo "Installing ${packages[*]}"
    # Lists that are too old are often good enough: the installation itself decides.
    asRoot env DEBIAN_FRONTEND=noninteractive apt-get update </dev/null || true
    asRoot env DEBIAN_FRONTEND=noninteractive apt-get install --yes --no-install-recommends \
        -o DPkg::Lock::Timeout=300 "${packages[@]}" </dev/null
}

buildTools=("c++=g++" "cmake=cmake")
if ! command -v make >/dev/null; then
    buildTools+=("ninja=ninja-build")
fi
commandHeaders=("CLI/CLI.hpp=libcli11-dev" "nlohmann/json.hpp=nlohmann-json3-dev")
testTools=("ninja=ninja-build" "pkg-config=pkg-config"
    "gtest/gtest.h=libgtest-dev" "gmock/gmock.h=libgmock-dev" "jsonschema=python3-jsonschema")

windowsTools=("perl=perl-base"
    "i686-w64-mingw32-g++-posix=g++-mingw-w64-i686-posix"
    "x86_64-w64-mingw32-g++-posix=g++-mingw-w64-x86-64-posix"
    "i686-w64-mingw32-widl=mingw-w64-tools")
# The examples in C# are compiled, and the one in Python is read.
windowsTestTools=("mcs=mono-mcs" "python3=python3-minimal")

# build PRESET [OPTION...]: configures and builds a preset of CMakePresets.json in build/PRESET.
build() {
    local preset=$1 options=("${@:2}")
    # A folder that was configured before keeps its generator.
    if [ ! -e "build/$preset/CMakeCache.txt" ] && command -v ninja >/dev/null; then
        options+=(-G Ninja)
    fi
    if command -v ccache >/dev/null; then
        options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    # Chained, since a caller may ask whether it succeeds and so turn "set -e" off.
    cmake --preset "$preset" "${options[@]}" &&
        cmake --build --preset "$preset" --parallel "$(nproc)"
}

# runTests PRESET: runs the tests of a preset that was built.
runTests() {
    ctest --preset "$1" --parallel "$(nproc)"
}

# summarize PRESET...: what the test runner said of each, and which tests failed, once more together.
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
        sed -n '/^The following tests FAILED:/,/^Errors while running/ s/^\t/    /p' "$log"
    done
}
