# display.sh: for scripts that look at windows, read by them: a display of their own (Xvfb), the program's window on it
# (xdotool), and where its parts stand.
# shellcheck shell=sh disable=SC2034

display_server='' display_manager='' window=''

# open_display ROOM WIDTH HEIGHT: ROOM is a folder for a temporary file.
open_display() {
    Xvfb -displayfd 3 -noreset -screen 0 "$2x$3x24" 3>"$1/display" >/dev/null 2>&1 &
    display_server=$!
    for _ in $(seq 100); do
        if [ -s "$1/display" ] || ! kill -0 "$display_server" 2>/dev/null; then break; fi
        sleep 0.2
    done
    [ -s "$1/display" ] || { echo "display: Xvfb does not start" >&2; return 1; }
    DISPLAY=:$(cat "$1/display")
    export DISPLAY
}

# A window manager, where one is needed: focus by Tab, closing by keys.
open_manager() {
    openbox >/dev/null 2>&1 &
    display_manager=$!
    sleep 1
}

close_display() {
    for process in $display_manager $display_server; do
        kill "$process" 2>/dev/null || true
    done
}

# Sets window to the editor's own, once it is there. Another window that closes meanwhile ends a search with an error.
find_window() {
    for _ in $(seq 100); do
        window=$(xdotool search --onlyvisible --name '^Dorva Planszownik \[' 2>/dev/null | head -n 1) || true
        [ -z "$window" ] || return 0
        sleep 0.2
    done
    return 1
}

# Where controls are pressed, in pixels: free of the text in boxes.
places='
optEtapNR(0)    37  32
optEtapNR(1)    37  48
optObiektyNR(0) 776 32
optObiektyNR(1) 816 32
optObiektyNR(2) 856 32
lblKolor(0)     840 110
lblKolor(4)     852 175
cmdCzysc        816 373
lblInfo(2)      280 376
txtNazwa        160 425
txtAutorGry(0)  100 585
txtAutorGry(1)  260 585
cmdTest         836 572
cmdCreate       836 596
cmdSave         592 596
'
place_of() { # place_of CONTROL
    echo "$places" | while read -r control x y; do [ "$control" != "$1" ] || echo "$x $y"; done
}
# Board cells of 16 from 96, 16; picker slots of 32 from 168, 472.
point() { xdotool mousemove --window "$window" "$1" "$2"; sleep 0.15; }
click() { point "$1" "$2"; xdotool click "${3-1}"; sleep 0.35; }
press() { # press CONTROL
    # shellcheck disable=SC2046 # two words: x and y
    click $(place_of "$1")
}
point_cell() { point $((96 + 16 * $1 + 8)) $((16 + 16 * $2 + 8)); } # COLUMN ROW
cell() { point_cell "$1" "$2"; xdotool click 1; sleep 0.35; }
slot() { click $((168 + 32 * $1 + 17)) $((489 + 32 * $2)); } # COLUMN ROW
