#!/bin/sh
# Installs what is missing, builds and packs: build/release/dorva-planszownik-<version>-<system>.tar.gz.
set -eu

cd "$(dirname "$0")/.."
scripts/run.sh --no-start
cmake --build --preset release --target package
