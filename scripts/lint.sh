# ./dev lint: clang-tidy by the rules of .clang-tidy, a finding is an error.
debian_packages build test bench lint

# clang cannot read the precompiled headers of another compiler.
configure build-lint -DCMAKE_BUILD_TYPE=Release -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
  -DCHARTXML_BENCH=ON

say "clang-tidy"
(($# > 0)) || set -- '\.(c|cpp)$'
run-clang-tidy-19 -quiet -p build-lint -j "$CMAKE_BUILD_PARALLEL_LEVEL" \
  -extra-arg=-Wno-unknown-warning-option "$@"
say "clang-tidy found nothing"
