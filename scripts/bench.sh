#!/bin/bash
# Prints speed and size in one table: each figure, the baseline from the same run, their ratio and its aim.
# Benchmarks X and XPlain take turns; the medians of their repetitions are compared. Times are in microseconds.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh build tests python3 valgrind
cmake --preset release >/dev/null
cmake --build --preset release >/dev/null
scripts/lay.sh build/release
export QT_LOGGING_RULES='*=false' TMPDIR=${TMPDIR:-/var/tmp} # on a disk, where flushing takes time
bench=build/release/bench results=build/release/results.json

compare() { # compare PROGRAM [FIGURE=AIM...]
    "$1" --benchmark_repetitions=15 --benchmark_min_time=0.05 --benchmark_enable_random_interleaving=true \
        --benchmark_report_aggregates_only=true --benchmark_format=json >"$results" 2>/dev/null
    python3 - "$results" "${@:2}" <<'END'
import json, re, sys
aims = dict(aim.split("=") for aim in sys.argv[2:])
micros = {}
for run in json.load(open(sys.argv[1]))["benchmarks"]:
    if run["aggregate_name"] == "median":
        name = re.sub("^BM_|/.*", "", run["run_name"])
        micros[name] = run.get("median_us", run["real_time"] * {"ns": 1e-3, "us": 1, "ms": 1e3}[run["time_unit"]])
        if "p99_us" in run:
            micros[re.sub("(Plain)?$", r", 99th percent\1", name, count=1)] = run["p99_us"]
for name in micros:
    if plain := micros.get(name + "Plain"):
        print(f"{name:28} {micros[name]:12.2f} {plain:12.2f} {micros[name] / plain:7.2f}  {aims.get(name, '')}")
END
}

# Counts the instructions until the first frame. Unlike the time, they don't depend on what else the machine does.
count_start() {
    printf 'instructions to first frame, in millions:'
    for mode in editor przeglad text bare; do
        QT_QPA_PLATFORM=offscreen valgrind --tool=callgrind --callgrind-out-file=/dev/null \
            $bench/qt/dorva_bench_start $mode planszownik 2>&1 |
            awk -v mode=$mode '/Collected/ { printf " %s %.1f", mode, $4 / 1e6 }'
    done
    echo '; aim: editor at most 1.82 of text, przeglad at most 1.5 of editor'
}

printf '%-28s %12s %12s %7s  %s\n' figure median baseline ratio aim
compare $bench/dorva_bench RefreshInfo=3 Stroke=3 Switch=1.3 GameBuild=1.3 TestBuild=1.3 ArchiveSave=1.3 ArchiveLoad=1.3 \
    Exit=1.3
[ ! -x $bench/qt/dorva_bench_okno ] || compare $bench/qt/dorva_bench_okno PlanszeArkusza='5000 us'
if [ -x $bench/qt/dorva_bench_start ]; then
    $bench/qt/dorva_bench_start planszownik
    if command -v valgrind >/dev/null; then count_start; else echo 'instructions: not counted, there is no valgrind'; fi
fi
echo "program folder: $(du -sh planszownik | cut -f 1)"
