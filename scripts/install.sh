# ./dev install: the library as others use it, without assertions.
case ${1-} in
--prefix) prefix=${2-} && shift "$(($# < 2 ? 1 : 2))" ;;
--prefix=*) prefix=${1#*=} && shift ;;
*) prefix= ;;
esac
[[ -n $prefix && $# == 0 ]] || fail "say where to: ./dev install --prefix <dir>"
# Relative to where the caller stands.
[[ $prefix == /* ]] || prefix=$OLDPWD/$prefix

debian_packages build pages package
npm_packages
configure build-install -DCMAKE_BUILD_TYPE=Release -DCHARTXML_TESTS=OFF -DCHARTXML_BENCH=OFF
compile build-install
say "installing in $prefix"
cmake --install build-install --prefix "$prefix" >build-install/install.log
say "installed; build-install/install.log names every file"
