#!/bin/bash
# windows-check.sh: the Windows zip under Wine. The window's tests; then the program as a user has it, out of the zip and
# in a folder with Polish letters, and the Linux program beside it: the same strokes, texts, dialogs and builds must make
# the same files, byte for byte. Pictures of what is seen lie in build/windows/obrazy afterwards.
# Called by windows.sh, which sets up Wine.
set -eu

cd "$(dirname "$0")/.."
scripts/options.sh windows-check '' "$@"
zip=$(realpath build/windows/dorva-planszownik-*-windows-x64.zip)
pictures=$PWD/build/windows/obrazy
mkdir -p "$pictures"
unset QT_QPA_PLATFORM
room=$(mktemp -d)
. scripts/display.sh
program=''
finish() {
    [ -z "$program" ] || kill "$program" 2>/dev/null || true
    close_display
    rm -rf "$room"
}
trap finish EXIT

ok() { echo "ok: $1"; }
fail() { echo "FAILED: $1"; import -window root "$pictures/failed.png" 2>/dev/null || true; exit 1; }
expect() { # expect TEXT COMMAND...
    local text=$1
    shift
    if "$@"; then ok "$text"; else fail "$text"; fi
}

# What the executable brings along.
folder="$room/Dorva - moja łódź"
mkdir "$folder"
unzip -q "$zip" -d "$folder"
folder=$folder/planszownik
imports() { x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/^.*DLL Name: //p'; }
all_libraries_come() {
    local file name
    for file in "$folder"/*.exe "$folder"/*.dll "$folder"/platforms/*.dll; do
        for name in $(imports "$file" | grep -v '^api-ms-win-'); do # names of sets of the system's own calls
            [ -f "$folder/$name" ] || find /usr/lib/*/wine -iname "$name" | grep -q . ||
                { echo "$file needs $name"; return 1; }
        done
    done
}
expect "every library is the system's or in the zip" all_libraries_come
expect "no console" eval "x86_64-w64-mingw32-objdump -p '$folder/planszownik.exe' | grep -q 'Windows GUI'"
expect "no stage stands at a live place" [ -z "$(ls "$folder/ETAPY")" ]

open_display "$room" 1920 1360 # room for twice the size
open_manager
setxkbmap pl

# The window's tests, with the zip's own libraries. One is about the list in Qt's own file dialog, which isn't used there.
run_tests() {
    local place="$room/testy"
    mkdir "$place"
    cp -r "$folder"/*.dll "$folder/platforms" "$folder/qt.conf" build/windows/tests/qt/*.exe \
        "$(scripts/windows-qt.sh --where)/bin/Qt6Test.dll" "$place"
    (cd "$place" && timeout 600 wine dorva_qt_tests.exe --gtest_brief \
        --gtest_filter=-Rozmowy.FilesAreListedByNumberInPolish -platform windows)
}

start_windows() { (cd / && exec wine "$folder/planszownik.exe") & program=$!; find_window || fail "a window opens"; sleep 2; }
start_linux() { "$plain/planszownik" & program=$!; find_window || fail "a window opens"; sleep 1; }
picture() { import -window "$1" "$pictures/$2.png"; }
close() {
    xdotool windowactivate --sync "$window" key alt+F4
    wait "$program" || fail "the program ends in order"
    program=''
}
dialog() { # dialog TITLE: waits for it
    for _ in $(seq 40); do # a window that closes meanwhile ends a search of xdotool's own patience
        xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 && sleep 1 && return
        sleep 0.5
    done
    fail "a dialog $1 opens"
}
choose() { # choose NAME: in the open file dialog
    xdotool key ctrl+a type --delay 60 "$1"
    sleep 0.5
    [ -z "${2-}" ] || picture root "$2"
    xdotool key Return
}

# A stage painted, another one, title lines, a stage saved, a game built.
work() { # work PICTURE_PREFIX
    slot 2 0
    cell 20 9
    cell 21 9
    press "optEtapNR(1)"
    slot 12 0
    cell 5 5
    press "txtAutorGry(0)"
    xdotool key ctrl+a type --delay 80 'Zażółć gęślą jaźń'
    press "txtAutorGry(1)"
    xdotool key ctrl+a type --delay 80 'ŁÓDŹ 2'
    press "optEtapNR(0)"
    picture "$window" "$1-okno"
    press cmdSave
    dialog 'Zapisywanie jako'
    choose 'etap z Polski' "$1-zapis"
    dialog '^Informacja$'
    picture root "$1-komunikat"
    xdotool key Return
    sleep 1
    press cmdCreate
    dialog 'Zapisywanie jako'
    choose 'gra.xex'
    dialog '^Dorva Planszownik$'
    xdotool key Escape
    sleep 1
}

set_dpi() { # holds for what is started from now on
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null
    wineserver -w
}

set_dpi 96
expect "the window's tests pass" run_tests

start_windows
expect "32 stages are laid out" [ "$(find "$folder/ETAPY" -name 'DETAP.*' -size 931c | wc -l)" = 32 ]
work windows
close
plain="$room/linux/planszownik"
mkdir -p "$plain"
cp -r "$folder/wzorzec/." build/release/src/qt/planszownik "$plain"
HOME=$room start_linux
work linux
close
for name in "planszownik/ETAPY" planszownik/PLIKI/DP1.DTA planszownik/PLIKI/TEST.XEX 'etap z Polski' gra.xex; do
    expect "the same $name as on Linux" diff -r "$room/linux/$name" "$(dirname "$folder")/$name"
done
expect "the work is in it" eval "! cmp -s '$folder/ETAPY/DETAP.1' '$folder/wzorzec/ETAPY/DETAP.1'"

# A newer version, unpacked over it.
cp "$folder/ETAPY/DETAP.1" "$room/changed"
unzip -qo "$zip" -d "$(dirname "$folder")"
for name in ETAPY/DETAP.1 ETAPY/DETAP.4 PLIKI/DP2.DTA; do
    printf 'N' | dd of="$folder/wzorzec/$name" bs=1 seek=900 conv=notrunc 2>/dev/null
done
rm "$folder/ETAPY/DETAP.3"
start_windows
for world in 1 2 3; do
    press "optObiektyNR($((world - 1)))"
    picture "$window" "windows-swiat$world"
done
press "lblKolor(0)"
dialog 'aleta'
picture root windows-paleta
close
expect "a changed stage survives a newer version" eval "! cmp -s '$folder/ETAPY/DETAP.1' '$folder/wzorzec/ETAPY/DETAP.1'"
expect "an unchanged one is renewed" cmp "$folder/wzorzec/ETAPY/DETAP.4" "$folder/ETAPY/DETAP.4"
expect "so is the game template" cmp "$folder/wzorzec/PLIKI/DP2.DTA" "$folder/PLIKI/DP2.DTA"
expect "a missing one comes back" cmp "$folder/wzorzec/ETAPY/DETAP.3" "$folder/ETAPY/DETAP.3"

start_windows
slot 2 0
cell 30 9
cp "$folder/ETAPY/DETAP.1" "$room/before"
wine wineboot --end-session
wait "$program" || true
program=''
expect "the end of the session stores the stage" eval "! cmp -s '$room/before' '$folder/ETAPY/DETAP.1'"

# Killed while it goes to and fro between stages and stores them; what is left over is swept by a start an hour later.
cp -r "$folder/ETAPY" "$room/stages"
for moment in 0.2 0.4 0.6 0.8; do
    start_windows
    press "optEtapNR(0)"
    xdotool key --delay 1 --repeat-delay 4 --repeat 250 Down Up &
    keys=$!
    sleep $moment
    kill -9 "$program"
    wait "$program" "$keys" || true
    program=''
    sleep 0.5 # its window goes
    expect "a kill leaves whole stages" diff -r -x '*.dp-tmp' "$room/stages" "$folder/ETAPY"
    find "$folder" -name '*.dp-tmp' -exec touch -d '61 minutes ago' {} +
done

for dpi in 120 144 192; do
    set_dpi $dpi
    start_windows
    picture "$window" "windows-$dpi-dpi"
    wide=$(xdotool getwindowgeometry --shell "$window" | sed -n 's/WIDTH=//p')
    off=$((wide * 96 - 897 * dpi)) # in 96ths of a pixel
    expect "at $dpi dpi the window is $wide pixels wide" [ $off -gt -96 -a $off -lt 96 ]
    close
done
set_dpi 96
expect "no dialog is kept in the registry" eval "! grep -q 'QtProject.*FileDialog' '$WINEPREFIX/user.reg'"
expect "nor a leftover" [ -z "$(find "$folder" -name '*.kopia*' -o -name '*.dp-tmp')" ]
echo "windows-check: all well; $(du -h "$zip" | cut -f 1) zipped"
