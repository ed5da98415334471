#!/bin/sh
# Builds main.cpp by what pkg-config says of the installed library, and runs it.
# buildWithPkgConfig.sh COMPILER PKG_CONFIG_FOLDER OUTPUT_FOLDER
set -eu

compiler=$1
PKG_CONFIG_PATH=$2
output=$3
export PKG_CONFIG_PATH

mkdir -p "$output"
pkg-config --atleast-version=1.0 quorvane
# The flags come quoted for the shell: a folder's name may hold blanks.
flags=$(pkg-config --cflags --libs quorvane)
eval "set -- $flags"
"$compiler" -std=c++20 "$(dirname "$0")/main.cpp" -o "$output/consumer" "$@"
"$output/consumer"
