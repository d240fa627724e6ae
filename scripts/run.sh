#!/bin/sh
# Installs what is missing, builds the program and its data, fills the program folder and starts the editor.
# --no-start: doesn't start it. Without Qt only the data are built and put there, and the status is 1.
set -eu
case $* in '' | --no-start) ;; *) echo "run: no option $*; there is: --no-start" >&2 && exit 2 ;; esac

cd "$(dirname "$0")/.."
scripts/setup.sh build
cmake --preset release >/dev/null
cmake --build --preset release --target program_folder
scripts/lay.sh build/release
[ -x build/release/src/qt/planszownik ] || {
    echo "run: the window can't be built, Qt 6 is missing (qt6-base-dev); the data are laid in $PWD/planszownik" >&2
    exit 1
}
[ $# = 0 ] || exit 0
planszownik/planszownik || { echo "run: it is built, though: $PWD/planszownik/planszownik" >&2 && exit 1; }
