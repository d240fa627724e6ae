#!/bin/sh
# Makes the Windows version on Debian 12: build/windows/dorva-planszownik-<version>-windows-x64.zip. Installs the tools,
# builds Qt once into the user's cache (windows-qt.sh: about an hour), then the program.
# --check: runs the logic's tests under Wine; if that Qt is built already, also makes the zip and tries it under Wine.
set -eu
case $* in '' | --check) ;; *) echo "windows: no option $*; there is: --check" >&2 && exit 2 ;; esac

cd "$(dirname "$0")/.."
build=build/windows
export QT_WINDOWS="${XDG_CACHE_HOME:-$HOME/.cache}/dorva-planszownik/qt-windows-6.4.2"
scripts/setup.sh build g++-mingw-w64-x86-64-posix googletest qt6-base-dev-tools dpkg-dev perl python3 \
    wine wine64 xvfb xauth openbox xdotool x11-xkb-utils imagemagick unzip
for tool in x86_64-w64-mingw32-g++-posix wine cmake; do
    command -v $tool >/dev/null || { echo "windows: skipped: $tool can't be installed here" && exit; }
done

# Wine for tests: with a folder of its own, without installation dialogs and without messages of its own.
export WINEPREFIX="$PWD/$build/wine" WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
trap 'wineserver -k 2>/dev/null || true' EXIT # so that nothing of it goes on running

if [ $# = 0 ]; then
    scripts/windows-qt.sh "$QT_WINDOWS"
else
    cmake --preset windows -DQT_WINDOWS="$QT_WINDOWS"
    cmake --build --preset windows --target dorva_tests
    libraries=$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll) # the zip brings its own
    WINEPATH="${libraries%/*};/usr/x86_64-w64-mingw32/lib" timeout 600 wine $build/tests/dorva_tests.exe --gtest_brief
    [ -f "$QT_WINDOWS/ready" ] || { echo "the logic only: there is no Qt for Windows yet; scripts/windows.sh builds it" && exit; }
fi
scripts/run.sh --no-start
cmake --build --preset release --target pages
cmake --preset windows -DQT_WINDOWS="$QT_WINDOWS"
cmake --build --preset windows --target package
[ $# = 0 ] || { scripts/package-check.sh $build/dorva-planszownik-*.zip && scripts/windows-check.sh; }
