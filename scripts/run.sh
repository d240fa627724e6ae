#!/bin/sh
# Installs what is missing, builds the program and its data, lays the program folder and starts the editor.
# --no-start: all but that.
set -eu

cd "$(dirname "$0")/.."
scripts/setup.sh
cmake --preset release >/dev/null
cmake --build --preset release --target praca
scripts/lay.sh build/release
[ "${1-}" != --no-start ] || exit 0
planszownik/planszownik || {
    status=$?
    echo "run: it is built, though: $PWD/planszownik/planszownik" >&2
    exit $status
}
