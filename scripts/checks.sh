#!/bin/bash
# The checks that take longer than the test suite, a line each; a step that fails shows the end of its log
# (build/checks). With the names of steps only those: scripts/checks.sh coverage play
# shellcheck disable=SC2317 # the steps are called by their names
set -uo pipefail
cd "$(dirname "$0")/.." || exit
steps=(format shell floors sanitizers coverage findings documents package play windows)
for step; do
    [[ " ${steps[*]} " == *" $step "* ]] || { echo "checks: no step $step; there are: ${steps[*]}" >&2; exit 2; }
done
[ $# -gt 0 ] || set -- "${steps[@]}"
scripts/setup.sh --checks
export QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false'
logs=build/checks
mkdir -p $logs

# What could not be installed is left out, and said so.
window_built() { [ -x build/release/src/qt/planszownik ]; }
game_built() { [ -f build/release/data/PLIKI/DP2.DTA ]; }

# Each step is a function; what it says in its line is the end of its log, or what summary_STEP takes from it.

format() {
    find src tests bench game packaging \( -name '*.cpp' -o -name '*.h' -o -name '*.c' \) -print0 |
        xargs -0 clang-format --dry-run -Werror
}

shell() {
    shellcheck -x scripts/*.sh packaging/*.sh .ci/run
}

# An include only points down, and within a floor never in a circle; a .cpp and its .h are one file. What knows of
# Edytor, be it by another file, is an operation and stands above it.
floors() {
    local includes
    includes=$(grep -r '#include "' src | sed -E 's,^src/([^:]*)\.[a-z]*:#include "(.*)\.h".*,\1 \2,' | sort -u)
    tsort <<<"$includes" >/dev/null || return # it names the files of a circle
    awk '
        function floor(file, i) {
            for (i = knows[file] ? edytor + 1 : 1; i <= count && index(file, at[i]) != 1; ++i) {}
            return i
        }
        { from[NR] = $1; to[NR] = $2 }
        END {
            count = split("podstawy system/ sciezki board/ tiles/ stage/ output/ shell/ edytor " \
                          "board/ tiles/ stage/ output/ shell/ qt/", at, " ")
            while (at[++edytor] != "edytor") {}
            for (more = 1; more;)
                for (i = more = 0; ++i <= NR;)
                    if (!knows[from[i]] && (to[i] == "edytor" || knows[to[i]])) more = knows[from[i]] = 1
            for (i = 1; i <= NR; ++i)
                if (floor(from[i]) < floor(to[i])) { print from[i] " includes " to[i]; wrong = 1 }
            if (!wrong) print NR " includes, all of them down, none in a circle"
            exit wrong
        }' <<<"$includes"
}

# The whole suite, window included, with warnings as errors.
sanitizers() {
    cmake --preset asan && cmake --build --preset asan && ctest --preset asan -j2
}
summary_sanitizers() { grep 'tests passed' "$1"; }

# The logic and its tests without Qt, and the branches of the source that they reach.
coverage() {
    local build=build/coverage pure=(src/stage src/board src/tiles src/output)
    local tests=$build/tests/dorva_tests profile=$build/testy.profdata
    cmake --preset coverage && cmake --build --preset coverage --target dorva_tests || return
    rm -f "$build"/*.profraw
    LLVM_PROFILE_FILE=$PWD/$build/%p.profraw "$tests" --gtest_brief || return
    llvm-profdata merge -sparse "$build"/*.profraw -o "$profile" || return
    report() { llvm-cov report "$tests" -instr-profile="$profile" -show-region-summary=0 -show-branch-summary "$@"; }
    report "${pure[@]}" src/shell src/system
    report "${pure[@]}" | awk -v aim=95 '/^TOTAL/ { print "lines " $7 ", branches " $10; exit $10 + 0 < aim }'
}

findings() { # not in what another system's compiler builds
    cmake --preset clang && cmake --build --preset clang --target dorva_swiaty || return
    find src game/tools packaging -name '*.cpp' ! -name '*_windows.cpp' |
        { if window_built; then cat; else grep -v -e src/qt -e packaging; fi; } |
        xargs -P2 -n4 clang-tidy --quiet --warnings-as-errors='*' -p build/clang 2>&1 |
        { grep -v 'warnings generated' || true; } &&
        echo 'no findings'
}

# The documents' examples against the built files.
documents() {
    if game_built; then scripts/docs-check.sh; else echo 'skipped: the game is not built'; fi
}

# What the log says of parts left out, and how it ended.
outcome() { grep -E "^(windows: )?skipped|$1" "$2" | tail -n 3 | paste -sd';' | sed 's/;/; /g'; }

# The package unpacked, used, and unpacked again over itself.
package() {
    if window_built && game_built; then
        scripts/package.sh && scripts/package-check.sh
    else
        echo 'skipped: the window or the game is not built'
    fi
}
summary_package() { outcome 'all well' "$1"; }

# The Windows version under Wine: the logic's tests always, the window where Qt for Windows lies in the cache.
windows() {
    if scripts/windows.sh --have-qt && window_built && game_built; then
        scripts/windows.sh --check
    else
        scripts/windows.sh --tests
    fi
}
summary_windows() { outcome 'PASSED|logic only|all well' "$1"; }

# The sample game in the emulator, where there is one.
play() {
    if game_built; then scripts/play-check.py; else echo 'skipped: the game is not built'; fi
}

failed=0
for step; do
    SECONDS=0
    log=$logs/$step.log
    if $step >"$log" 2>&1; then
        said=$(if declare -F "summary_$step" >/dev/null; then "summary_$step" "$log"; else tail -n 1 "$log"; fi)
        printf 'ok      %-11s %4d s  %s\n' "$step" $SECONDS "$said"
    else
        printf 'FAILED  %-11s %4d s  %s\n' "$step" $SECONDS "$log"
        tail -n 40 "$log"
        failed=1
    fi
done
exit $failed
