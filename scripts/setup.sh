#!/bin/sh
# setup.sh PACKAGE...: says which of these Debian packages are missing, and installs them. "build" stands for what
# building the program needs, "tests" for what tests and benchmarks need in addition. If they can't be installed, the
# caller goes on without them.
set -u

packages=
for name; do
    case $name in
    build) packages="$packages cmake ninja-build g++ qt6-base-dev qt6-translations-l10n cc65" ;;
    tests) packages="$packages libgtest-dev libbenchmark-dev" ;;
    *) packages="$packages $name" ;;
    esac
done

command -v dpkg-query >/dev/null || { echo "setup: this is no Debian; going on without a look for$packages" && exit; }
missing=
for package in $packages; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

echo "setup: installing$missing"
as_root=$([ "$(id -u)" = 0 ] || echo sudo)
# shellcheck disable=SC2086
{ $as_root apt-get update -qq &&
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing; } >/dev/null ||
    echo "setup: could not install$missing; going on without"
