#!/bin/sh
# Installs what is missing, builds, lays the program folder and starts the editor. --no-start: all but that.
set -eu

cd "$(dirname "$0")/.."
scripts/setup.sh
cmake --preset release >/dev/null
cmake --build --preset release
scripts/lay.sh build/release
[ "${1-}" = --no-start ] || exec planszownik/planszownik
