#!/bin/bash
# windows-check.sh: tries the Windows zip under Wine, with the libraries of the zip alone. First the window's tests; then
# the program, in a folder with Polish letters: strokes, texts and the system's file dialog, a kill, and the screen's
# scales. Leaves screenshots in build/windows/obrazy. Called by windows.sh, which has set up Wine and run package-check.sh.
set -eu

cd "$(dirname "$0")/.."
zip=$(realpath build/windows/dorva-planszownik-*-windows-x64.zip)
pictures=$PWD/build/windows/obrazy
mkdir -p "$pictures"
screen=1920x1360 # room for twice the size
. scripts/display.sh

folder="$room/Dorva - moja łódź"
unzip -q "$zip" -d "$folder"
folder=$(echo "$folder"/*)
expect "no program opens a console" \
    [ "$(x86_64-w64-mingw32-objdump -p "$folder"/*.exe | grep -c 'Windows GUI')" = 2 ]

setxkbmap pl

start_windows() { start wine "$folder/planszownik.exe"; sleep 1; }
picture() { import -window "$1" "$pictures/$2.png"; }
dialog() { # dialog TITLE: waits for it
    for _ in $(seq 40); do # not by xdotool's own waiting: a window that closes in the meantime would end it
        xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 && sleep 1 && return
        sleep 0.5
    done
    fail "a dialog $1 opens"
}

set_dpi() { # for programs that start from now on
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null
    wineserver -w
}

# The window's tests with the libraries of the zip, except the one for Qt's own file dialog, which isn't used there.
set_dpi 96
mkdir "$room/tests"
cp -r "$folder"/*.dll "$folder/platforms" "$folder/qt.conf" build/windows/tests/qt/*.exe "$QT_WINDOWS/bin/Qt6Test.dll" \
    "$room/tests"
(cd "$room/tests" && timeout 600 wine dorva_qt_tests.exe --gtest_brief \
    --gtest_filter=-DialogWindows.FilesAreListedByNumberAndAlphabetInPolish) ||
    fail "the window's tests run with the libraries of the zip alone, and pass"

# A stage painted, another one, title lines, a game built with a name from the file dialog.
start_windows
slot 2 0
cell 20 9
press "optEtapNR(1)"
slot 12 0
cell 5 5
press "txtAutorGry(0)"
xdotool key ctrl+a type --delay 80 'Zażółć gęślą jaźń'
press "txtAutorGry(1)"
xdotool key ctrl+a type --delay 80 'ŁÓDŹ 2'
picture "$window" okno
press cmdCreate
dialog 'Zapisywanie jako'
xdotool key ctrl+a type --delay 60 'gra z Polski.xex'
sleep 0.5
picture root zapis
xdotool key Return
dialog '^Dorva Planszownik$'
picture root komunikat
xdotool key Escape sleep 1
close
cp -r "$folder/wzorzec/ETAPY" "$room/stages"
put "$room/stages/DETAP.1" '\2' $((32 + 9 * 40 + 20))
put "$room/stages/DETAP.2" '\15' $((32 + 5 * 40 + 5))
expect "the strokes are in the stages" diff -r -x KOPIE "$room/stages" "$folder/ETAPY"
printf 'ZAŻÓŁĆ GĘŚLĄ JAŹŃ   ŁÓDŹ 2' | iconv -t cp1250 >"$room/texts"
expect "the texts are in the title lines" cmp -n 26 "$room/texts" "$folder/PLIKI/DP1.DTA"
game="$(dirname "$folder")/gra z Polski.xex"
expect "the game has the name from the dialog" cmp "$game" "$folder/PLIKI/TEST.XEX"
expect "and the stage" cmp -n 931 -i 29724:0 "$game" "$folder/ETAPY/DETAP.1"

# Kills the program while it switches between stages and stores them. A start an hour later removes what is left over.
for moment in 0.2 0.4 0.6 0.8; do
    start_windows
    press "optEtapNR(0)"
    xdotool key --delay 1 --repeat-delay 4 --repeat 250 Down Up &
    keys=$!
    sleep $moment
    kill -9 "$editor"
    wait "$editor" "$keys" || true
    editor=''
    sleep 0.5 # until its window is gone
    expect "a kill leaves whole stages" diff -r -x '*.dp-tmp' -x KOPIE "$room/stages" "$folder/ETAPY"
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
expect "nor a leftover" [ -z "$(find "$folder" -name '*.nowe' -o -name '*.dp-tmp')" ]
echo "windows-check: all well; $(du -h "$zip" | cut -f 1) zipped"
