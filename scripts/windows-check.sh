#!/bin/bash
# windows-check.sh: tries the Windows zip under Wine. First the window's tests; then the program from the zip, in a
# folder with Polish letters, beside the Linux program: the same strokes, texts, dialogs and builds must make the same
# files, byte for byte. Leaves screenshots in build/windows/obrazy.
# Called by windows.sh, which has set up Wine and run package-check.sh.
set -eu

cd "$(dirname "$0")/.."
zip=$(realpath build/windows/dorva-planszownik-*-windows-x64.zip)
pictures=$PWD/build/windows/obrazy
mkdir -p "$pictures"
screen=1920x1360 # room for twice the size
. scripts/display.sh

# The libraries that the executables need.
folder="$room/Dorva - moja łódź"
mkdir "$folder"
unzip -q "$zip" -d "$folder"
folder=$(echo "$folder"/*)
imports() { x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/^.*DLL Name: //p'; }
all_libraries_come() {
    local file name
    for file in "$folder"/*.exe "$folder"/*.dll "$folder"/platforms/*.dll; do
        for name in $(imports "$file" | grep -v '^api-ms-win-'); do # these stand for the system's own libraries
            [ -f "$folder/$name" ] || find /usr/lib/*/wine -iname "$name" | grep -q . ||
                { echo "$file needs $name"; return 1; }
        done
    done
}
expect "every library is the system's or in the zip" all_libraries_come
for program in planszownik przeglad; do
    expect "$program: no console" eval "x86_64-w64-mingw32-objdump -p '$folder/$program.exe' | grep -q 'Windows GUI'"
done

setxkbmap pl

# Runs the window's tests with the libraries of the zip, except the one for Qt's own file dialog, which isn't used there.
run_tests() {
    local place="$room/tests"
    mkdir "$place"
    cp -r "$folder"/*.dll "$folder/platforms" "$folder/qt.conf" build/windows/tests/qt/*.exe \
        "$QT_WINDOWS/bin/Qt6Test.dll" "$place"
    (cd "$place" && timeout 600 wine dorva_qt_tests.exe --gtest_brief \
        --gtest_filter=-DialogWindows.FilesAreListedByNumberAndAlphabetInPolish)
}

start_windows() { start wine "$folder/planszownik.exe"; sleep 1; }
picture() { import -window "$1" "$pictures/$2.png"; }
dialog() { # dialog TITLE: waits for it
    for _ in $(seq 40); do # not by xdotool's own waiting: a window that closes in the meantime would end it
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

set_dpi() { # for programs that start from now on
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null
    wineserver -w
}

set_dpi 96
expect "the window's tests pass" run_tests

start_windows
work windows
close
base=$(basename "$folder")
scripts/lay.sh build/release "$room/linux/$base"
HOME=$room start "$room/linux/$base/planszownik"
work linux
close
for name in "$base/ETAPY" "$base/PLIKI/DP1.DTA" "$base/PLIKI/TEST.XEX" 'etap z Polski' gra.xex; do
    expect "the same $name as on Linux" diff -r -x KOPIE "$room/linux/$name" "$(dirname "$folder")/$name"
done
expect "the work is in it" eval "! cmp -s '$folder/ETAPY/DETAP.1' '$folder/wzorzec/ETAPY/DETAP.1'"

start_windows
for world in 1 2 3; do
    press "optObiektyNR($((world - 1)))"
    picture "$window" "windows-swiat$world"
done
press "lblKolor(0)"
dialog 'aleta'
picture root windows-paleta
close

start_windows
slot 2 0
cell 30 9
cp "$folder/ETAPY/DETAP.1" "$room/before"
wine wineboot --end-session
wait "$editor" || true
editor=''
expect "the end of the session stores the stage" eval "! cmp -s '$room/before' '$folder/ETAPY/DETAP.1'"

# Kills the program while it switches between stages and stores them. A start an hour later removes what is left over.
cp -r "$folder/ETAPY" "$room/stages"
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
