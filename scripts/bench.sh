# ./dev bench: figures of the library as it is installed, without assertions.
measured=()
[[ ${1-} != pictures ]] || measured=(pages compare pictures browser)
debian_packages build bench "${measured[@]}"
((${#measured[@]} == 0)) || npm_packages
configure build-bench -DCMAKE_BUILD_TYPE=Release -DCHARTXML_TESTS=OFF -DCHARTXML_BENCH=ON

if [[ ${1-} == pictures ]]; then
  shift
  compile build-bench host/all render/all tools/all procedures/all
  say "measuring"
  node bench/pictures/pictures.mjs build-bench build-bench/pictures "$@"
else
  compile build-bench chartxml_bench
  say "measuring"
  build-bench/bin/chartxml_bench "$@"
fi
