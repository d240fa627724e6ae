#!/bin/sh
# runs.sh [--record] [BUILD]: the recorded runs through the sample stages, played in the real rules, and what becomes of
# a player without fear who follows the same plans: a table. --record looks for a new run where the old one fails.
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
    if ! result=$(sim65 "$player" graj "$file" "$run") && [ "$record" = yes ]; then
        if sim65 "$player" szukaj "$file" "$run" >"$run.new"; then mv "$run.new" "$run"; else cat "$run.new" >&2; fi
        rm -f "$run.new"
        result=$(sim65 "$player" graj "$file" "$run") || true
    fi
    case $result in "result 1 "*) ;; *) failed=$((failed + 1)) ;; esac
    printf '%5s  %-38s %s\n' "$stage" "${result#result }" "$(sim65 "$player" smialek "$file" "$run")"
done
echo "runs: $failed failed"
[ "$failed" = 0 ]
