#!/bin/bash
# Runs the checks that take longer than the test suite, and prints a line for each. A step that fails also shows the end
# of its log (build/checks). With names of steps it runs only those: scripts/checks.sh coverage play
# shellcheck disable=SC2317 # the steps are called by their names
set -uo pipefail
cd "$(dirname "$0")/.." || exit
steps=(format shell floors sanitizers coverage findings documents package play windows)
declare -A needs=( # the steps' packages, as setup.sh takes them; windows.sh installs more
    [format]=clang-format [shell]=shellcheck [floors]=python3 [documents]=build [play]='build python3' [windows]=build
    [sanitizers]='build tests' [coverage]='build tests clang libclang-rt-dev llvm' [findings]='build clang clang-tidy'
    [package]='build xvfb xauth openbox xdotool desktop-file-utils'
)
for step; do
    [[ " ${steps[*]} " == *" $step "* ]] || { echo "checks: no step $step; there are: ${steps[*]}" >&2; exit 2; }
done
[ $# -gt 0 ] || set -- "${steps[@]}"
# shellcheck disable=SC2046 # words
scripts/setup.sh $(for step; do echo "${needs[$step]-}"; done)
export QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false'
logs=build/checks
mkdir -p $logs

# Builds everything and runs a command. Says that it is skipped if a file that it needs can't be built here.
with_built() { # with_built FILES COMMAND...
    cmake --preset release && cmake --build --preset release || return
    for file in $1; do
        [ -e "build/release/$file" ] || { echo "skipped: $file can't be built here" && return; }
    done
    "${@:2}"
}
window=src/qt/planszownik game=data/PLIKI/DP2.DTA

# Each step is a function. Its line ends with the last line of its log.

format() {
    find src tests bench game packaging \( -name '*.cpp' -o -name '*.h' -o -name '*.c' \) -print0 |
        xargs -0 clang-format --dry-run -Werror
}

shell() {
    shellcheck -x scripts/*.sh packaging/*.sh tests/*.sh data/PLIKI/DP3.BAT .ci/run
}

# Includes only point down and form no circle; a .cpp and its .h count as one file. Whatever includes edytor.h, even
# through other files, is an operation and is above it. The overview knows no operation, and nothing else knows it.
floors() {
    python3 - <<'END'
import graphlib, pathlib, re
FLOORS = "podstawy system/ sciezki board/ tiles/ stage/ output/ shell/ przeglad/ edytor board/ tiles/ stage/ output/ shell/ qt/ przeglad_qt/".split()
EDYTOR = FLOORS.index("edytor")
includes = {(str(path.relative_to("src").with_suffix("")), included) for path in pathlib.Path("src").rglob("*.*")
            if path.suffix in (".h", ".cpp") for included in re.findall('#include "(.*)[.]h"', path.read_text())}
includes = {(file, included) for file, included in includes if file != included}
graphlib.TopologicalSorter({file: [b for a, b in includes if a == file] for file, _ in includes}).prepare()
operations = {"edytor"}
while more := {file for file, included in includes if included in operations} - operations:
    operations |= more
def floor(file):
    lowest = EDYTOR + 1 if file in operations and file != "edytor" else 0
    return next(i for i in range(lowest, len(FLOORS)) if file.startswith(FLOORS[i]))
for file, included in includes:
    assert floor(file) >= floor(included), f"{file} includes {included}"
    assert file.startswith("przeglad") or not included.startswith("przeglad"), f"{file} includes {included}"
assert not any(file.startswith("przeglad") for file in operations), "the overview includes an operation"
print(len(includes), "includes, all of them down, none in a circle")
END
}

# The whole suite, window included, with warnings as errors.
sanitizers() {
    cmake --preset asan && cmake --build --preset asan && ctest --preset asan -j2
}

# The logic and its tests without Qt, and the branches of the source that they reach.
coverage() {
    local build=build/coverage pure=(src/stage src/board src/tiles src/output src/przeglad)
    local tests=$build/tests/dorva_tests profile=$build/tests.profdata
    cmake --preset coverage && cmake --build --preset coverage --target dorva_tests || return
    rm -f "$build"/*.profraw
    LLVM_PROFILE_FILE=$PWD/$build/%p.profraw "$tests" --gtest_brief || return
    llvm-profdata merge -sparse "$build"/*.profraw -o "$profile" || return
    report() { llvm-cov report "$tests" -instr-profile="$profile" -show-region-summary=0 -show-branch-summary "$@"; }
    report "${pure[@]}" src/shell src/system
    report "${pure[@]}" | awk -v aim=95 '/^TOTAL/ { print "lines " $7 ", branches " $10; exit $10 + 0 < aim }'
}

findings() { # without the sources for Windows, and without the window if there is no Qt
    cmake --preset clang && cmake --build --preset clang --target dorva_swiaty || return
    find src game/tools packaging -name '*.cpp' ! -name '*_windows.cpp' |
        { if grep -q src/qt/main build/clang/compile_commands.json; then cat; else grep -v -e src/qt -e packaging; fi; } |
        xargs -P2 -n4 clang-tidy --quiet --warnings-as-errors='*' -p build/clang 2>&1 |
        { grep -v 'warnings generated' || true; } &&
        echo 'no findings'
}

documents() { with_built "$game" scripts/docs-check.sh; }
play() { with_built "$game" scripts/play-check.py; }
package() { with_built "$window $game" eval 'scripts/package.sh && scripts/package-check.sh'; }
windows() { with_built "$window $game" scripts/windows.sh --check; }

failed=0
for step; do
    SECONDS=0
    log=$logs/$step.log
    if $step >"$log" 2>&1; then
        printf 'ok      %-11s %4d s  %s\n' "$step" $SECONDS "$(tail -n 1 "$log")"
    else
        printf 'FAILED  %-11s %4d s  %s\n' "$step" $SECONDS "$log"
        tail -n 40 "$log"
        failed=1
    fi
done
exit $failed
