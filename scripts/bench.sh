#!/bin/bash
# Speed and size in one table: each figure beside the baseline of the same run, their ratio and its aim.
# Benchmarks X and XPlain take turns; the medians of their repetitions are compared. Times in microseconds.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/options.sh bench '' "$@"
scripts/setup.sh --tests
cmake --preset release >/dev/null
cmake --build --preset release >/dev/null
scripts/lay.sh build/release
export QT_LOGGING_RULES='*=false' TMPDIR=${TMPDIR:-/var/tmp} # a disk, where flushing counts
bench=build/release/bench

row() { printf '%-28s %12s %12s %7s  %s\n' "$@"; }

runAll() { # runAll PROGRAM: name, median, then counters, as CSV
    "$1" --benchmark_repetitions=15 --benchmark_min_time=0.05 --benchmark_enable_random_interleaving=true \
        --benchmark_report_aggregates_only=true --benchmark_format=csv 2>/dev/null
}

# Pairs X and XPlain of a CSV, with the aims told as "X=1.3 Y=3".
pairs() { # pairs AIMS
    awk -F, -v aims="$1" '
        BEGIN { count = split(aims, list, " "); for (i = 1; i <= count; ++i) { split(list[i], a, "="); aim[a[1]] = a[2] } }
        $1 ~ /^"?name"?$/ { for (i = 1; i <= NF; ++i) { gsub(/"/, "", $i); column[$i] = i } }
        /_median"/ {
            name = $1; gsub(/^"BM_|(\/[a-z_]*)?_median"$/, "", name)
            scale = $5 ~ /ns/ ? 1000 : $5 ~ /us/ ? 1 : 0.001
            value[name] = $3 / scale; order[++n] = name
            if ("p99_us" in column && $column["p99_us"] != "") {
                value[name] = $column["median_us"]
                p99 = name; plain = sub(/Plain$/, "", p99)
                p99 = p99 ", 99th percent" (plain ? "Plain" : "")
                value[p99] = $column["p99_us"]; order[++n] = p99
            }
        }
        END {
            for (i = 1; i <= n; ++i) {
                name = order[i]; plain = name "Plain"
                if (plain in value)
                    printf "%-28s %12.2f %12.2f %7.2f  %s\n", name, value[name], value[plain], value[name] / value[plain], aim[name]
            }
        }'
}

# Instructions up to the first frame, which nothing else on the machine can disturb.
countStart() {
    command -v valgrind >/dev/null || { echo 'instructions to first frame: not counted, valgrind is missing'; return 0; }
    local mode
    printf 'instructions to first frame, in millions:'
    for mode in editor text bare; do
        QT_QPA_PLATFORM=offscreen valgrind --tool=callgrind --callgrind-out-file=/dev/null \
            $bench/qt/dorva_bench_start $mode planszownik 2>&1 |
            awk -v mode=$mode '/Collected/ { printf " %s %.1f", mode, $4 / 1e6 }'
    done
    echo
}

row figure median baseline ratio aim
runAll $bench/dorva_bench | pairs "RefreshInfo=3 Stroke=3 Switch=1.3 GameBuild=1.3 TestBuild=1.3 ArchiveSave=1.3 ArchiveLoad=1.3 Exit=1.3"
[ ! -x $bench/qt/dorva_bench_okno ] || runAll $bench/qt/dorva_bench_okno | pairs ""
if [ -x $bench/qt/dorva_bench_start ]; then
    $bench/qt/dorva_bench_start planszownik
    countStart
fi
echo "program folder: $(du -sh planszownik | cut -f 1)"
