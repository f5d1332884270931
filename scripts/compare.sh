# ./dev compare: the gallery beside the same charts drawn by R.
(($# == 0)) || fail "compare takes no arguments"
debian_packages build pages test compare
npm_packages
configure_release
compile build host/all render/all tools/all procedures/all

output=$root/build/compare
rm -rf -- "$output"
for procedure in build/bin/procedures/*; do
  say "running ${procedure##*/}"
  CHARTXML_OUTPUT=$output/${procedure##*/} CHARTXML_LANG=en "$procedure"
  build/bin/chartxml render "$output/${procedure##*/}" --png
done
say "drawing the charts once more"
Rscript tests/peers/compare.R tests/peers "$output"
say "look at $output/index.html"
