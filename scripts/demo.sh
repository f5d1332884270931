# ./dev demo: from the data sets to a gallery that a browser opens.
(($# == 0)) || fail "demo takes no arguments"

gallery=$root/charts
made=$gallery/.demo # the chart folders of the former demo, one a line

chart_folders() { find "$gallery" -mindepth 1 -maxdepth 1 -type d -name '[0-9]*-*' -printf '%f\n' | sort; }

# Charts that the reader drew into the same folder stay.
clear_former_demo() {
  mkdir -p -- "$gallery"
  [[ -f $made ]] || return 0
  local name
  while read -r name; do
    [[ $name == [0-9]*-* && $name != */* ]] && rm -rf -- "${gallery:?}/$name"
  done <"$made"
  rm -- "$made"
}

# English, and the languages that the procedure's data set is described in.
languages_of() {
  local descriptor
  echo en
  for descriptor in "data/$1"/datapackage.*.json; do
    [[ -f $descriptor ]] || continue
    descriptor=${descriptor##*/datapackage.}
    echo "${descriptor%.json}"
  done
}

# run_procedure <program> <language>
run_procedure() {
  local before status=0
  before=$(chart_folders)
  say "running ${1##*/} in $2"
  CHARTXML_OUTPUT=$gallery CHARTXML_LANG=$2 "$1" || status=$?
  comm -13 <(printf '%s\n' "$before") <(chart_folders) >>"$made"
  ((status == 0)) || fail "${1##*/} ended with status $status"
}

debian_packages build pages test
npm_packages
configure_release
compile build host/all render/all tools/all procedures/all

clear_former_demo
for procedure in build/bin/procedures/*; do
  [[ -f $procedure && -x $procedure ]] || fail "there is no procedure in build/bin/procedures"
  for language in $(languages_of "${procedure##*/}"); do
    run_procedure "$procedure" "$language"
  done
done

# The gallery shows the source beside the pictures.
mkdir -p -- "$gallery/procedures"
cp -- procedures/*.f90 "$gallery/procedures"

say "drawing the pictures"
build/bin/chartxml render "$gallery" --svg --png
