# What the verbs share. Sourced by ./dev at the root of the checkout.

export CMAKE_BUILD_PARALLEL_LEVEL=${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}

# Caches live in the build folder, so that a checkout leaves nothing elsewhere.
export npm_config_cache=${npm_config_cache:-$root/build/.npm}
if [[ -z ${CCACHE_DIR-} ]]; then
  export CCACHE_DIR=$root/build/.ccache CCACHE_MAXSIZE=2G
fi

say() { printf '\n== %s\n' "$*"; }

fail() {
  printf 'dev: %s\n' "$*" >&2
  exit 1
}

# configure <build folder> [cmake option ...]
configure() {
  say "configuring $1"
  cmake -S . -B "$1" -G Ninja --log-level=NOTICE "${@:2}"
}

# compile <build folder> [target ...]
compile() {
  say "building in $1"
  cmake --build "$1" ${2+--target "${@:2}"}
}

# One folder serves demo and tests: optimized, yet with assertions.
configure_release() {
  configure build -DCMAKE_BUILD_TYPE=Release -DCHARTXML_ASSERTIONS=ON -DCHARTXML_BENCH=OFF
}
