#!/usr/bin/env bash
# Compiles the Fortran program with what pkg-config tells, and nothing else.
#
# usage: pkg-config.sh <compiler> <prefix of the installed library> <source> <program>
set -euo pipefail
compiler=$1 prefix=$2 source=$3 program=$4
PKG_CONFIG_PATH=$(find "$prefix" -name chartxml.pc -printf %h)
export PKG_CONFIG_PATH
# What it prints is meant for a shell: blanks in a path are escaped.
eval "found=$(pkg-config --variable=prefix chartxml) libdir=$(pkg-config --variable=libdir chartxml)"
eval "flags=($(pkg-config --cflags --libs chartxml-fortran))"
[[ $(realpath "$found") == "$(realpath "$prefix")" ]] || { echo "$found is not $prefix" >&2 && exit 1; }
"$compiler" -o "$program" "$source" "${flags[@]}" "-Wl,-rpath,$libdir"
