#!/bin/bash
# The checks that take longer than the test suite, a line each; a step that fails shows the end of its log
# (build/checks). With the names of steps only those: scripts/checks.sh coverage fuzz
set -uo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh --checks
export QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false'
logs=build/checks
mkdir -p $logs
sources() { find src tests bench fuzz game -name '*.cpp' -o -name '*.h'; }

# What could not be installed is left out, and said so.
window_built() { [ -x build/release/src/qt/planszownik ]; }
game_built() { [ -f build/release/data/PLIKI/DP2.DTA ]; }

format() {
    sources | xargs clang-format --dry-run -Werror
}

# The whole suite, window included, with warnings as errors.
sanitizers() {
    cmake --preset asan && cmake --build --preset asan && ctest --preset asan -j2 &&
        echo "$(grep "tests passed" $logs/sanitizers.log)"
}

# Every error at every file call, and a thousand kills.
failures() {
    cmake --preset release && cmake --build --preset release --target dorva_tests &&
        build/release/tests/dorva_tests --gtest_also_run_disabled_tests --gtest_filter='*DISABLED_*' &&
        echo "$(grep -c '  OK ' $logs/failures.log) tests, $(grep -o '[0-9]* kills' $logs/failures.log)"
}

# The logic and its tests without Qt, and the branches of the source that they reach.
coverage() {
    local build=build/coverage aim=95
    cmake --preset coverage && cmake --build --preset coverage --target dorva_tests || return
    rm -f $build/*.profraw
    LLVM_PROFILE_FILE=$PWD/$build/%p.profraw $build/tests/dorva_tests --gtest_brief || return
    llvm-profdata merge -sparse $build/*.profraw -o $build/testy.profdata || return
    llvm-cov report $build/tests/dorva_tests -instr-profile=$build/testy.profdata -show-region-summary=0 \
        -show-branch-summary src/stage src/board src/tiles src/output src/shell
    llvm-cov report $build/tests/dorva_tests -instr-profile=$build/testy.profdata -show-region-summary=0 \
        -show-branch-summary src/stage src/board src/tiles src/output |
        awk -v aim=$aim '/^TOTAL/ { print "lines " $7 ", branches " $10; exit $10 + 0 < aim }'
}

fuzzers() { cmake --preset fuzz && cmake --build --preset fuzz --target $1; } # a list of targets

findings() {
    fuzzers dorva_logic || return
    { find src game/tools -name '*.cpp' | if window_built; then cat; else grep -v src/qt; fi; } | xargs -P2 -n4 clang-tidy --quiet --warnings-as-errors='*' -p build/fuzz 2>&1 |
        { grep -v 'warnings generated' || true; } &&
        echo 'no findings'
}

fuzz() {
    local names="tytul barwy etap archiwum edytor" name
    ! window_built || names="$names pasek"
    fuzzers "$(printf 'fuzz_%s ' $names)" || return
    for name in $names; do
        mkdir -p build/fuzz/korpus/$name
        build/fuzz/fuzz/fuzz_$name -max_total_time=10 -max_len=4096 -verbosity=0 -print_final_stats=1 \
            -artifact_prefix=$logs/$name- build/fuzz/korpus/$name fuzz/ziarna/$name || return
    done
    awk '/number_of_executed_units/ { sum += $2 } END { print sum " executions" }' $logs/fuzz.log
}

# The documents' examples against the built files.
documents() {
    if game_built; then scripts/docs-check.sh; else echo 'skipped: the game is not built'; fi
}

# The package unpacked, used, and unpacked again over itself.
package() {
    if window_built && game_built; then
        scripts/package.sh && scripts/package-check.sh
    else
        echo 'skipped: the window or the game is not built'
    fi
}

# The sample game in the emulator, where there is one.
play() {
    if game_built; then scripts/play-check.sh; else echo 'skipped: the game is not built'; fi
}

failed=0
for step in ${@:-format sanitizers failures coverage findings fuzz documents package play}; do
    SECONDS=0
    if $step >$logs/"$step".log 2>&1; then
        printf 'ok      %-11s %4d s  %s\n' "$step" $SECONDS "$(tail -n 1 $logs/"$step".log)"
    else
        printf 'FAILED  %-11s %4d s  %s\n' "$step" $SECONDS "$logs/$step.log"
        tail -n 40 $logs/"$step".log
        failed=1
    fi
done
exit $failed
