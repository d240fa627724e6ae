#!/bin/sh
# Lays a program folder again while somebody works in it: nothing of theirs is lost.
set -eu

room=$(mktemp -d)
trap 'rm -rf "$room"' EXIT
lay=$(dirname "$0")/../scripts/lay.sh built=$room/build/data folder=$room/folder
build() { # build CONTENT SECONDS_AFTER_NOW
    for file in ETAPY/DETAP.1 ETAPY/DETAP.2 PLIKI/DP1.DTA PLIKI/DP2.DTA OBIEKTY/ORN_EXPORT/A.ND ../src/qt/planszownik \
        ../src/przeglad_qt/przeglad; do
        mkdir -p "$(dirname "$built/$file")"
        echo "$1" >"$built/$file"
        touch -d "$2 seconds" "$built/$file"
    done
    chmod +x "$built/../src/qt/planszownik" "$built/../src/przeglad_qt/przeglad"
}
expect() { # expect NAME CONTENT
    is=$(cat "$folder/$1" 2>/dev/null) || is=missing
    [ "$is" = "$2" ] || { echo "$1: $is instead of $2"; exit 1; }
}

build old -20
mkdir -p "$folder/ETAPY.nowe" "$folder/PLIKI" # a laying that broke off
echo half >"$folder/ETAPY.nowe/DETAP.3"
"$lay" "$room/build" "$folder"
for file in ETAPY/DETAP.1 ETAPY/DETAP.2 PLIKI/DP1.DTA PLIKI/DP2.DTA OBIEKTY/ORN_EXPORT/A.ND planszownik przeglad; do
    expect $file old
done
expect ETAPY/DETAP.3 missing

for file in ETAPY/DETAP.1 PLIKI/DP1.DTA PLIKI/DP2.DTA; do echo mine >"$folder/$file"; done
rm "$folder/ETAPY/DETAP.2"
mv "$folder/OBIEKTY/ORN_EXPORT/A.ND" "$room/A.ND"
ln -s ../../../A.ND "$folder/OBIEKTY/ORN_EXPORT/A.ND"
"$lay" "$room/build" "$folder"
expect PLIKI/DP2.DTA mine # the build's is older
build new +20
"$lay" "$room/build" "$folder"
"$lay" "$room/build" "$folder"
expect ETAPY/DETAP.1 mine
expect ETAPY/DETAP.2 missing
expect PLIKI/DP1.DTA mine
expect PLIKI/DP2.DTA new
expect PLIKI/DP2.DTA.~1~ mine
expect PLIKI/DP2.DTA.~2~ missing
expect OBIEKTY/ORN_EXPORT/A.ND old # behind the link
expect planszownik new
expect przeglad new
expect planszownik.~1~ missing
[ -z "$(find "$folder" -name '*.nowe')" ]
