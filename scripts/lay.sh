#!/bin/sh
# lay.sh BUILD: lays the program folder planszownik/ of the checkout from a build.
set -eu

cd "$(dirname "$0")/.."
[ -d "${1-}/data" ] || { echo "lay: ${1:-no build}: build it first" >&2; exit 2; }
scripts/uloz.sh planszownik "$1/src/qt/planszownik" data "$1/data"
