#!/usr/bin/env bash
# Installs a build and moves what was installed: nothing in it may know where it was.
#
# usage: install.sh <cmake> <build folder> <folder to install into>
set -euo pipefail
cmake=$1 build=$2 prefix=$3
first=$prefix-first
rm -rf -- "$first" "$prefix"
"$cmake" --install "$build" --prefix "$first" >"$prefix.log"
mv -- "$first" "$prefix"
if grep --recursive --files-with-matches --fixed-strings -e "$build" -e "$first" "$prefix"; then
  echo "these files name the folder of the build" >&2
  exit 1
fi
