#!/usr/bin/env bash
# Whether a library shows what the lists say, and nothing else.
#
# usage: exports.sh <libchartxml.so> <folder of the lists> <the same objects as an archive>
set -euo pipefail
library=$1 lists=$2 archive=$3
failed=0

# Says which lines one of two lists has alone.
same() {
  local differences
  differences=$(comm -3 <(sort -u "$2") <(sort -u "$3"))
  [[ -z $differences ]] && return
  printf '%s:\n%s\n' "$1" "$differences"
  failed=1
}

symbols=$(nm --dynamic --defined-only --format=posix "$library" | cut -d' ' -f1)
same 'C functions (listed | shown)' "$lists/EXPORTED_C_FUNCTIONS.txt" <(grep -v '^_Z' <<<"$symbols")

# The class that a C++ symbol belongs to, or the function that it is.
names() {
  c++filt | sed -E 's/^(typeinfo|typeinfo name|vtable) for //; s/[[(].*//; s/ const$//' |
    awk -v classes="$lists/EXPORTED_CLASSES.txt" '
      BEGIN { while ((getline class < classes) > 0) listed[class] = 1 }
      { owner = $0
        while (!(owner in listed) && sub(/::[^:]*$/, "", owner)) {}
        print (owner in listed) ? owner : $0 }'
}
same 'C++ names (listed | shown)' \
  <(cat "$lists/EXPORTED_CLASSES.txt" "$lists/EXPORTED_CXX_FUNCTIONS.txt") \
  <(grep '^_Z' <<<"$symbols" | names)

# What a header marks and the lists do not name would be missed at link time only.
same 'marked in headers, not shown | -' <(
  comm -23 <(readelf --syms --wide "$archive" |
    awk '$4 != "SECTION" && $5 == "GLOBAL" && $6 == "DEFAULT" && $7 != "UND" { print $8 }' |
    sort -u) <(sort -u <<<"$symbols")) /dev/null
exit "$failed"
