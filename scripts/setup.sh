#!/bin/sh
# Installs what building the program needs and this machine lacks (Debian packages). Elsewhere, or where nothing can be
# installed, names what is missing; the caller goes on with what can be built without it.
# --tests: also what tests and benchmarks need. --checks: all that, and what the slower checks need. --windows: also what
# the Windows version and a look at it under Wine need.
set -u
"$(dirname "$0")/options.sh" setup '--tests --checks --windows' "$@" || exit

packages="cmake ninja-build g++ qt6-base-dev qt6-translations-l10n cc65"
case ${1-} in --tests | --checks) packages="$packages libgtest-dev libbenchmark-dev" ;; esac
[ "${1-}" != --windows ] || packages="$packages g++-mingw-w64-x86-64-posix googletest qt6-base-dev-tools dpkg-dev perl
    python3 wine wine64 xvfb openbox xdotool x11-xkb-utils imagemagick unzip"
[ "${1-}" != --checks ] || packages="$packages clang libclang-rt-dev llvm clang-tidy clang-format shellcheck
    xvfb openbox xdotool desktop-file-utils"

if ! command -v dpkg-query >/dev/null 2>&1; then
    for tool in cmake ninja c++ ca65; do
        command -v "$tool" >/dev/null 2>&1 || echo "setup: $tool is missing"
    done
    exit 0
fi

missing=
for package in $packages; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing="$missing $package"
done
[ -z "$missing" ] && exit 0

echo "setup: installing$missing"
as_root=
[ "$(id -u)" = 0 ] || as_root=sudo
# shellcheck disable=SC2086
{ $as_root apt-get update -qq &&
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing; } >/dev/null ||
    echo "setup: could not install$missing; going on without"
exit 0
