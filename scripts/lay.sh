#!/bin/sh
# lay.sh BUILD: lays the program folder planszownik/ from a build. Renews the executable, what is missing
# and what is still exactly as an earlier build laid it; a data file that was changed since stays.
set -eu

cd "$(dirname "$0")/.."
build=$1 folder=planszownik laid=planszownik/.ulozone.sha256
mkdir -p "$folder/ETAPY" "$folder/PLIKI" "$folder/OBIEKTY"
touch "$laid"

put() { # put FROM TO: replaces TO as a whole
    mkdir -p "$(dirname "$2")"
    cp -p "$1" "$2.nowy" && mv -f "$2.nowy" "$2"
}

sum() { sha256sum "$1" | cut -d ' ' -f 1; }

[ ! -x "$build/src/qt/planszownik" ] || put "$build/src/qt/planszownik" "$folder/planszownik"

for tree in data "$build/data"; do
    [ -d "$tree" ] || continue
    find "$tree" -type f ! -name .gitkeep | sort | while IFS= read -r from; do
        name=${from#"$tree"/}
        to=$folder/$name new=$(sum "$from")
        if [ -e "$to" ]; then
            now=$(sum "$to")
            [ "$now" != "$new" ] || { grep -qxF "$new  $name" "$laid" || echo "$new  $name" >>"$laid"; continue; }
            grep -qxF "$now  $name" "$laid" || continue # the user's own by now
        fi
        put "$from" "$to"
        echo "$new  $name" >>"$laid"
    done
done
