# ./dev bench: figures of the library as it is installed, without assertions.
debian_packages build bench
configure build-bench -DCMAKE_BUILD_TYPE=Release -DCHARTXML_TESTS=OFF -DCHARTXML_BENCH=ON
compile build-bench chartxml_bench
say "measuring"
build-bench/bin/chartxml_bench "$@"
