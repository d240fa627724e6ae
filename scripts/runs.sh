#!/bin/sh
# runs.sh [--record] [BUILD]: plays the recorded runs through the sample stages in the real rules, and prints a table,
# also of how a player without fear does who follows the same plans. --record: looks for a new run where one fails.
set -eu

cd "$(dirname "$0")/.."
record=no
[ "${1-}" != --record ] || { record=yes && shift; }
build=${1-build/release}
player=$build/game/sim/gracz
[ -f "$player" ] || { echo "runs: no $player; build it first" >&2; exit 1; }

failed=0
printf '%5s  %-38s %s\n' stage "recorded run" "without fear: lives lost, finished, energy"
for stage in $(seq 32); do
    run=tests/gra/przejscia/etap$stage.txt file=$build/data/ETAPY/DETAP.$stage
    if ! result=$(sim65 "$player" play "$file" "$run") && [ "$record" = yes ]; then
        if sim65 "$player" search "$file" "$run" >"$run.new"; then mv "$run.new" "$run"; else cat "$run.new" >&2; fi
        rm -f "$run.new"
        result=$(sim65 "$player" play "$file" "$run") || true
    fi
    case $result in "result 1 "*) ;; *) failed=$((failed + 1)) ;; esac
    printf '%5s  %-38s %s\n' "$stage" "${result#result }" "$(sim65 "$player" fearless "$file" "$run")"
done
echo "runs: $failed failed"
[ "$failed" = 0 ]
