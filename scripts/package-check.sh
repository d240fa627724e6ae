#!/bin/sh
# package-check.sh [ARCHIVE]: unpacks the package into a folder with spaces and Polish letters in its name, starts, uses
# and closes the program, and unpacks it again over the user's work. Nothing may be lost. A zip is run under Wine.
set -eu

cd "$(dirname "$0")/.."
archive=${1-$(find build/release -maxdepth 1 -name 'dorva-planszownik-*.tar.gz' 2>/dev/null | sort | tail -n 1)}
[ -f "$archive" ] || { echo "package-check: no package; run scripts/package.sh first" && exit 1; }
screen=1280x720
. scripts/display.sh
place="$room/Moje gry (żółć)"
mkdir "$place"
export XDG_DATA_HOME="$room/data"

unpack() { case $archive in *.zip) unzip -qo "$archive" -d "$place" ;; *) tar xzf "$archive" -C "$place" ;; esac; }
run() { # as a user does
    case $archive in *.zip) start wine "$folder/${1-planszownik}.exe" ;; *) start sh "$folder/start.sh" "$@" ;; esac
}
all() { # all COMMAND: for everything that comes in wzorzec/
    for name in ETAPY PLIKI/DP1.DTA PLIKI/DP3.BAT PLIKI/PALETY/Bitwor.act OBIEKTY/ORN_EXPORT; do "$1" $name || return; done
}
absent() { [ -e "$folder/wzorzec/$1" ] && [ ! -e "$folder/$1" ]; }
fresh() { diff -r "$folder/wzorzec/$1" "$folder/$1"; }
same() { cmp "$room/$1" "$folder/$1"; }
changed() { ! cmp -s "$folder/wzorzec/$1" "$folder/$1"; }

unpack
folder=$(echo "$place"/dorva-planszownik-*)
expect "what a user works on waits in wzorzec/" all absent
expect "the game template stands at its place" [ -f "$folder/PLIKI/DP2.DTA" ]

title='Przegląd etapów' run przeglad
close
expect "the overview lays all, and closing it changes nothing" all fresh
expect "32 stages" [ "$(find "$folder/ETAPY" -name 'DETAP.*' -size 931c | wc -l)" = 32 ]

run
slot 2 0 # a trap into a field of earth
cell 20 9
close
expect "the stage is changed" changed ETAPY/DETAP.1
echo own >>"$folder/PLIKI/DP3.BAT"
rm "$folder/ETAPY/DETAP.3" "$folder/PLIKI/PALETY/Bitwor.act"
cp -r "$folder/ETAPY" "$folder/PLIKI" "$room"
unpack
run
close
expect "unpacked again: the changed stage stays" same ETAPY/DETAP.1
expect "and the launcher" same PLIKI/DP3.BAT
expect "a removed stage stays removed" [ ! -e "$folder/ETAPY/DETAP.3" ]
expect "a removed palette comes back" fresh PLIKI/PALETY/Bitwor.act
expect "nothing is left over" [ -z "$(find "$folder" -name '*.nowe' -o -name '*.dp-tmp' -o -name kolej)" ]

if [ -f "$folder/menu.sh" ]; then
    sh "$folder/menu.sh" >"$room/entries"
    while read -r entry; do
        program=${entry##*/dorva-} program=${program%.desktop}
        expect "the menu entry $program names its place" grep -qxF "Exec=\"$folder/start.sh\" $program" "$entry"
        ! command -v desktop-file-validate >/dev/null || expect "and is a valid entry" desktop-file-validate "$entry"
    done <"$room/entries"
    expect "both programs have one" [ "$(wc -l <"$room/entries")" = 2 ]
    expect "the overview finds what was removed" [ "$("$folder/przeglad" --sprawdz)" = '3: brak pliku DETAP.3' ]
fi
echo "package-check: all well"
