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
# The flags are a list of words.
# shellcheck disable=SC2046
"$compiler" -std=c++20 "$(dirname "$0")/main.cpp" -o "$output/consumer" \
    $(pkg-config --cflags --libs quorvane)
"$output/consumer"
