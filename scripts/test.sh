#!/bin/sh
# Installs what is missing, builds everything, fills the program folder and runs the whole test suite. Needs no display.
set -eu

cd "$(dirname "$0")/.."
scripts/setup.sh build tests
cmake --preset release >/dev/null
cmake --build --preset release
scripts/lay.sh build/release
exec ctest --preset release
