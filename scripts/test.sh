# ./dev test: the tests, closing on ctest's summary.
debian_packages build pages test package
npm_packages

if [[ ${1-} == --sanitize ]]; then
  shift
  folder=build-sanitize
  export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:detect_stack_use_after_return=1:strict_string_checks=1}
  export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1}
  configure "$folder" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCHARTXML_ASSERTIONS=ON \
    -DCHARTXML_SANITIZE=ON -DCHARTXML_BENCH=OFF
else
  folder=build
  configure_release
fi
compile "$folder"

say "testing in $folder"
ctest --test-dir "$folder" --output-on-failure --no-tests=error --timeout 300 \
  --parallel "$CMAKE_BUILD_PARALLEL_LEVEL" "$@"
