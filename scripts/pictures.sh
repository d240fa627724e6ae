#!/bin/bash
# pictures.sh: draws the pictures docs/obrazy/znaki*.png from the built tile sets, and takes okno*.png again from the
# running program, while it paints the stage of the guide's first ten minutes, przeglad*.png from the overview, and
# emulator*.png. Needs a build, Xvfb, openbox, xdotool, ImageMagick and atari800.
set -eu

cd "$(dirname "$0")/.."
screen=1280x720
. scripts/display.sh
shop=/tmp/Planszownik # the path is in a picture
mkdir "$shop"         # fails if it exists: then it is somebody else's
trap 'finish; rm -rf "$shop"' EXIT
scripts/lay.sh build/release "$shop/planszownik"

export HOME="$room/dom"
mkdir "$HOME"
copies=$shop/planszownik/ETAPY/KOPIE/DETAP.7
mkdir -p "$copies"
for copy in '0121 2026-11-24 17.40' '0122 2026-11-24 18.05' '0123 2026-11-25 18.32'; do
    cp "$shop/planszownik/ETAPY/DETAP.7" "$copies/DETAP.7.$copy"
    touch -d "$(echo "$copy" | sed 's/^[0-9]* //; s/\./:/')" "$copies/DETAP.7.$copy"
done
start "$shop/planszownik/planszownik" 2>/dev/null

drag() { # from COLUMN ROW to COLUMN ROW
    point_cell "$1" "$2"
    xdotool mousedown 1
    point_cell "$3" "$4"
    xdotool mouseup 1
    sleep 0.15
}
room_of() { for row in $(seq "$2" "$4"); do drag "$1" "$row" "$3" "$row"; done; }
keep() { # keep NAME COLOURS [CROP]
    convert "$room/$1.png" ${3:+-crop "$3" +repage} +dither -colors "$2" -strip "PNG8:docs/obrazy/$1.png"
}
shot() { # shot NAME COLOURS [WINDOW [CROP]]
    sleep 0.3
    import -window "${3-$window}" "$room/$1.png"
    keep "$1" "$2" "${4-}"
}

point 450 350
shot okno 96
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
press "lblInfo(2)" # makes the number of masks the goal
press txtNazwa
xdotool type --delay 60 'mój pierwszy etap'
xdotool key Tab
press "optEtapNR(0)"
point 450 350
shot okno-pierwszy-etap 96
press cmdTest
shot okno-pytanie 64 root 315x105+481+287
xdotool key Tab Return sleep 0.4
press "lblKolor(4)"
palette=$(xdotool search --name 'Paleta Atari' | head -n 1)
xdotool mousemove --window "$palette" 95 215 mousemove_relative 1 0
sleep 1.2
shot okno-paleta 256 root 434x391+654+47
xdotool mousemove --window "$palette" 100 316 click 1 sleep 0.3
slot 10 0 && cell 20 16 # a door without a key, an odd object, no heroine
slot 18 1 && cell 22 16
slot 1 0 && cell 6 6
shot okno-info 64 "$window" 660x40+86+354
press cmdLoad
xdotool type "$copies"
xdotool key Return sleep 0.8 mousemove 600 400 click 1 sleep 0.8 mousemove 500 226 click 1 sleep 0.4
shot okno-kopie 64 root 759x482+259+99
xdotool key Escape sleep 0.4
close

# The overview: stage 7 can't be won, its earlier versions could.
cp build/release/data/ETAPY/DETAP.1 "$shop/planszownik/ETAPY"
put "$copies/DETAP.7.0121 2026-11-24 17.40" '\0\0\0\0\0\0\0\0\0\0\0\0' 487
put "$copies/DETAP.7.0122 2026-11-24 18.05" '\0\0\0\0\0\0' 407
put "$shop/planszownik/ETAPY/DETAP.7" '\143' 832
title='Przegląd etapów' start "$shop/planszownik/przeglad" 2>/dev/null
xdotool windowsize --sync "$window" 948 640 key F8 sleep 0.5 # no wider than a page shows it unscaled
shot przeglad 96
xdotool key Return sleep 1
shot przeglad-wersje 96 "$(xdotool search --onlyvisible --name 'wersje etapu 7' | tail -n 1)"
xdotool key Escape sleep 0.4
close

key() { for key; do xdotool keydown "$key" sleep 0.15 keyup "$key" sleep 0.15; done; } # the emulator looks at frames
atari800 -config "$room/atari" -win-width 672 -win-height 480 >"$room/log" 2>&1 & # its menu, two pixels each
servers="$! $servers"
sleep 4
key F1 Down Down Down Down Down Down Down Down Down Return Down Down Down Down Down Down Return
shot emulator-klawisze 16 "Atari 800 Emulator, Version 5.0.0" 640x262+16+40

font=src/qt/zasoby/czcionki/LiberationSans

# The window with numbers for the rows of a table, from 1 on.
number=0 marks=()
for place in 82,13 70,334 420,60 874,14 874,94 880,270 872,328 738,358 374,357 866,362 310,406 881,408 80,534 153,470 \
    520,505 521,567 540,560 659,560 785,560 785,606; do
    number=$((number + 1)) x=${place%,*} y=${place#*,}
    marks+=(-fill '#c8102e' -stroke white -strokewidth 1.5 -draw "circle $x,$y $((x + 10)),$y")
    marks+=(-stroke none -fill white -annotate "+$((x - (number > 9 ? 7 : 3)))+$((y - 8))" "$number")
done
convert "$room/okno.png" -font "$font-Bold.ttf" -pointsize 13 -gravity NorthWest "${marks[@]}" "$room/okno-opis.png"
keep okno-opis 96

# Every tile of the picker with its name, in the three worlds, down the columns; some tiles STD above INV.
convert build/release/data/OBIEKTY/ORN_EXPORT/*.BMP -append +repage -crop 32x32 +repage -bordercolor gray60 -border 1 \
    "$room/tile-%d.png"
mapfile -t codes < <(sed '1,/WYBOR_ORDER{/d' src/board/znak.h | grep -oE '[0-9]+')
entries=()
for i in "${!codes[@]}"; do
    code=${codes[i % 4 * 11 + i / 4]} entries+=("$room/entry-$i.png")
    name=$(sed -n "s/^$code \([^a-z]*\)$/\1/p" game/art/swiat1.txt)
    convert "$room/tile-$code.png" "$room/tile-$((code + 128)).png" "$room/tile-$((code + 256)).png" \
        \( -size 4x34 xc:white \) \
        \( -size 100x34 -gravity West -font "$font-Regular.ttf" -pointsize 11 caption:"$name" \) +append "${entries[i]}"
done
montage "${entries[@]}" -tile 4x11 -geometry +3+2 "$room/znaki.png"
keep znaki 64
convert \( "$room"/tile-{2,11,24,26,40,63}.png +append \) \( "$room"/tile-{66,75,88,90,104,127}.png +append \) -append \
    -scale 200% "$room/znaki-inv.png"
keep znaki-inv 64
