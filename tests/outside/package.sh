#!/usr/bin/env bash
# Makes the Debian package, unpacks it, and draws with what is in it: a Fortran program,
# and the command.
#
# usage: package.sh <cpack> <build folder> <compiler> <node> <data set> <scratch folder>
set -euo pipefail
cpack=$1 build=$2 compiler=$3 node=$4 data=$5 scratch=$6
here=$(dirname -- "$(readlink -f -- "$0")")
rm -rf -- "$scratch"
mkdir -p -- "$scratch/unpacked"
(cd -- "$scratch" && "$cpack" --config "$build/CPackConfig.cmake" -G DEB -B "$scratch" >cpack.log)
package=("$scratch"/*.deb)
needs=$(dpkg-deb --field "${package[0]}" Depends)
for library in libxerces-c libicu libfmt libcsv libnettle libharfbuzz-subset0 zlib1g libc6; do
  [[ $needs == *$library* ]] || { echo "$library is not among: $needs" >&2 && exit 1; }
done

dpkg-deb --extract "${package[0]}" "$scratch/unpacked"
prefix=$scratch/unpacked/usr
"$here/pkg-config.sh" "$compiler" "$prefix" "$here/fortran/draw.f90" "$scratch/draw"
"$here/draw.sh" "$scratch/draw" "$data" "$scratch/charts" "$here/expected.xml"
"$prefix/bin/chartxml" render "$scratch/charts" --svg --png --node "$node"
grep --quiet 'Flipper length (mm)' "$scratch/charts/0001-outside/chart.svg"
[[ -s $scratch/charts/0001-outside/chart.png ]]

# The manual page knows every verb and every option.
command=$prefix/bin/chartxml
verbs=$("$command" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p')
options=$(for verb in "" $verbs; do "$command" ${verb:+"$verb"} --help; done | grep -o -e '--[a-z]*' | sort -u)
manual=$(sed 's/\\-/-/g' "$prefix/share/man/man1/chartxml.1")
for word in $verbs $options; do
  [[ $manual == *"$word"* ]] || { echo "chartxml.1 does not know $word" >&2 && exit 1; }
done
