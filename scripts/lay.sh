#!/bin/sh
# lay.sh BUILD [FOLDER]: copies what a build has made into the program folder, planszownik/ in the checkout.
# Title lines and stages belong to the user: they are copied only if they are missing, the stages only as a whole.
# Any other file is replaced if the build's is newer and differs; the old one is kept under a number (NAME.~1~), except
# for the executables. Symbolic links are left alone. A copy gets its name last, so an interrupted run leaves no half.
set -eu

cd "$(dirname "$0")/.."
build=${1-} folder=${2-planszownik}
[ -d "$build/data" ] || { echo "lay: ${build:-no build}: build it first" >&2; exit 2; }

put() { # put FROM NAME [HOW_TO_RENAME]
    mkdir -p "$(dirname "$folder/$2")"
    rm -rf "$folder/$2.nowe"
    cp -rp "$1" "$folder/$2.nowe"
    mv -fT ${3:+"$3"} "$folder/$2.nowe" "$folder/$2"
}
missing() { [ ! -e "$folder/$1" ] && [ ! -L "$folder/$1" ]; }
newer() { [ ! -L "$folder/$2" ] && [ -n "$(find "$1" -newer "$folder/$2")" ] && ! cmp -s "$1" "$folder/$2"; }

for name in PLIKI/DP1.DTA ETAPY; do
    ! missing $name || put "$build/data/$name" $name
done
for tree in data "$build/data"; do
    (cd "$tree" && find . -path ./ETAPY -prune -o -type f ! -name DP1.DTA -print) | while read -r name; do
        if missing "$name" || newer "$tree/$name" "$name"; then put "$tree/$name" "$name" --backup=numbered; fi
    done
done
for program in src/qt/planszownik src/przeglad_qt/przeglad; do
    from=$build/$program name=${program##*/}
    [ ! -x "$from" ] || [ -L "$folder/$name" ] || cmp -s "$from" "$folder/$name" || put "$from" "$name"
done
