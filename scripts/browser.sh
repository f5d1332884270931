# ./dev browser: the pages in a real browser.
debian_packages build pages test browser
npm_packages
configure_release
compile build host/all render/all tools/all procedures/all

say "making charts"
export CHARTS=$root/build/browser/charts
node tests/browser/charts.mjs build "$CHARTS"
say "trying the pages"
node --test --test-timeout=60000 tests/browser/*.test.mjs
