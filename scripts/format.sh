# ./dev format: clang-format over our C and C++.
debian_packages format
case ${1-} in
'') mode=(-i) ;;
--check) mode=(--dry-run --Werror) ;;
*) fail "format takes no argument but --check" ;;
esac

find . -mindepth 1 \( -path './.*' -o -path './build*' -o -name node_modules \) -prune \
  -o -type f \( -name '*.h' -o -name '*.c' -o -name '*.cpp' \) -print0 |
  xargs -0 --no-run-if-empty clang-format-19 "${mode[@]}"
