#!/bin/sh
# The Windows version, made on Debian 12: build/windows/dorva-planszownik-<version>-windows-x64.zip. Installs the tools,
# builds Qt once into the user's cache (windows-qt.sh: roughly an hour), then the program.
# --tests: only the logic's tests, under Wine; they need no Qt.
# --check: makes the zip, then runs the logic's tests, the window's tests and the program from the zip under Wine.
# --have-qt: only tells by its status whether Qt is there.
set -eu

cd "$(dirname "$0")/.."
scripts/options.sh windows '--tests --check --have-qt' "$@"
qt=$(scripts/windows-qt.sh --where)
build=build/windows
case ${1-} in --have-qt) [ -f "$qt/ready" ] && exit || exit 1 ;; esac

scripts/setup.sh --windows
for tool in x86_64-w64-mingw32-g++-posix wine cmake; do
    command -v $tool >/dev/null || { echo "windows: skipped: $tool can't be installed here"; exit 0; }
done

# Wine for tests: a folder of its own, no window of its own, no word but the program's.
export WINEPREFIX="$PWD/$build/wine" WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
libraries=$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)
trap 'wineserver -k 2>/dev/null || true' EXIT # nothing of it goes on running
export WINEPATH="${libraries%/*};/usr/x86_64-w64-mingw32/lib"

logic_tests() {
    cmake --preset windows -DQT_WINDOWS="$qt"
    cmake --build --preset windows --target dorva_tests
    timeout 600 wine $build/tests/dorva_tests.exe --gtest_brief
}

make_zip() {
    scripts/run.sh --no-start
    cmake --build --preset release --target strony
    cmake --preset windows -DQT_WINDOWS="$qt"
    cmake --build --preset windows
    (cd $build && cpack)
}

case ${1-} in
--tests)
    logic_tests
    [ -f "$qt/ready" ] || echo "the logic only: there is no Qt for Windows in the cache; scripts/windows.sh builds it"
    ;;
--check)
    scripts/windows-qt.sh
    make_zip
    logic_tests
    scripts/windows-check.sh
    ;;
*)
    scripts/windows-qt.sh
    make_zip
    ;;
esac
