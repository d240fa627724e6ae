#!/bin/bash
# pictures.sh: takes the pictures docs/obrazy/okno*.png again from the running program, while it paints the stage of the
# guide's first ten minutes. Needs a build, Xvfb, openbox, xdotool and ImageMagick.
set -eu

cd "$(dirname "$0")/.."
. scripts/display.sh
shop=/tmp/Planszownik # the path is in a picture
mkdir "$shop"         # fails if it exists: then it is somebody else's
trap 'finish; rm -rf "$shop"' EXIT
scripts/lay.sh build/release "$shop/planszownik"

open_display 1280 720
export HOME="$room/dom"
mkdir "$HOME"
start "$shop/planszownik/planszownik" 2>/dev/null

drag() { # from COLUMN ROW to COLUMN ROW
    point_cell "$1" "$2"
    xdotool mousedown 1
    point_cell "$3" "$4"
    xdotool mouseup 1
    sleep 0.15
}
room_of() { for row in $(seq "$2" "$4"); do drag "$1" "$row" "$3" "$row"; done; }
shot() { sleep 0.3; import -window "${2-$window}" "$room/$1.png"; }

point 450 350
shot okno
press cmdCzysc # Tak
xdotool key Tab Return sleep 0.4
slot 0 0 # NIC
room_of 4 4 14 7
room_of 22 10 34 14
drag 9 8 9 12
drag 9 12 22 12
slot 21 1 && cell 6 6   # DORVA
slot 9 0 && cell 33 13  # WYJŚCIE
slot 0 1                # MASKA
cell 12 5 && cell 24 11 && cell 28 13
slot 6 0 && drag 24 12 27 12
slot 8 0 && drag 5 4 7 4
press "lblInfo(2)" # makes the number of masks the goal
press txtNazwa
xdotool type --delay 60 'mój pierwszy etap'
xdotool key Tab
press "optEtapNR(0)"
point 450 350
shot pierwszy-etap
press cmdTest
shot pytanie root
xdotool key Tab Return sleep 0.4
press "lblKolor(4)"
palette=$(xdotool search --name 'Paleta Atari' | head -n 1)
xdotool mousemove --window "$palette" 95 215 mousemove_relative 1 0
sleep 1.2
shot paleta root
xdotool mousemove --window "$palette" 100 316 click 1 sleep 0.3
slot 10 0 && cell 20 16 # a door without a key, an odd object, no heroine
slot 18 1 && cell 22 16
slot 1 0 && cell 6 6
shot info
press cmdCreate
sleep 0.8
shot zapis root
xdotool key Escape sleep 0.4
close

keep() { # keep SHOT NAME COLOURS [CROP]
    convert "$room/$1.png" ${4:+-crop "$4" +repage} +dither -colors "$3" -strip "PNG8:docs/obrazy/$2.png"
}
keep okno okno 96
keep pierwszy-etap okno-pierwszy-etap 96
keep paleta okno-paleta 256 440x380+648+58
keep info okno-info 64 660x40+86+354
keep pytanie okno-pytanie 64 420x150+430+285
keep zapis okno-zapis 64 762x486+259+108

# The numbers of the guide's table, each at its place in the window.
number=0 marks=()
for place in 82,13 84,302 420,60 874,14 874,94 872,282 872,328 738,358 374,357 866,362 \
    310,406 881,408 81,470 153,470 520,505 521,567 543,562 663,562 883,562 883,607; do
    number=$((number + 1)) x=${place%,*} y=${place#*,}
    marks+=(-fill '#c8102e' -stroke white -strokewidth 1.5 -draw "circle $x,$y $((x + 10)),$y")
    marks+=(-stroke none -fill white -annotate "+$((x - (number > 9 ? 7 : 3)))+$((y - 8))" "$number")
done
convert "$room/okno.png" -font src/qt/zasoby/czcionki/LiberationSans-Bold.ttf -pointsize 13 -gravity NorthWest "${marks[@]}" "$room/opis.png"
keep opis okno-opis 96
