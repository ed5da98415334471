#!/bin/sh
# Builds the order form in C by what pkg-config says of the installed library, and runs it.
# buildCWithPkgConfig.sh COMPILER LIBRARY_FOLDER EXAMPLES_FOLDER OUTPUT_FOLDER
set -eu

compiler=$1
PKG_CONFIG_PATH=$2/pkgconfig
LD_LIBRARY_PATH=$2
examples=$3
output=$4
export PKG_CONFIG_PATH LD_LIBRARY_PATH

mkdir -p "$output"
pkg-config --atleast-version=1.0 quorvane-c
# The flags come quoted for the shell: a folder's name may hold blanks.
flags=$(pkg-config --cflags --libs quorvane-c)
eval "set -- $flags"
"$compiler" -std=c99 "$examples/c/orderForm.c" -o "$output/orderForm" "$@"
"$output/orderForm" "$examples/parts-logo.png" "$output/order.rtf"
