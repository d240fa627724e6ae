#!/bin/sh
# Installs what is missing, builds, lays the program folder and runs the whole test suite. Needs no display.
set -eu

cd "$(dirname "$0")/.."
scripts/run.sh --no-start
exec ctest --preset release
