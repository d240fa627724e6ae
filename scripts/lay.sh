#!/bin/sh
# lay.sh BUILD: lays the program folder planszownik/ of the checkout from a build.
set -eu

cd "$(dirname "$0")/.."
scripts/uloz.sh planszownik "$1/src/qt/planszownik" data "$1/data"
