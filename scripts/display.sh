# display.sh: for scripts that look at windows, read by them: a display of their own (Xvfb), the program's window on it
# (xdotool), and where its parts stand.
# shellcheck shell=sh disable=SC2034

display_server='' display_manager='' window=''

# open_display ROOM WIDTH HEIGHT: ROOM is a folder for a temporary file.
open_display() {
    Xvfb -displayfd 3 -noreset -screen 0 "$2x$3x24" 3>"$1/display" >/dev/null 2>&1 &
    display_server=$!
    while [ ! -s "$1/display" ]; do
        kill -0 "$display_server" 2>/dev/null || { echo "display: Xvfb does not start" >&2; return 1; }
        sleep 0.2
    done
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

# Sets window to the editor's own.
find_window() {
    window=$(timeout 20 xdotool search --sync --onlyvisible --name '^Dorva Planszownik \[' | head -n 1)
    [ -n "$window" ]
}

# Places in the window, in pixels: board cells of 16 from 96, 16; picker slots of 32 from 168, 472.
point() { xdotool mousemove --window "$window" "$1" "$2"; sleep 0.15; }
click() { point "$1" "$2"; xdotool click "${3-1}"; sleep 0.35; }
point_cell() { point $((96 + 16 * $1 + 8)) $((16 + 16 * $2 + 8)); } # COLUMN ROW
cell() { point_cell "$1" "$2"; xdotool click 1; sleep 0.35; }
slot() { click $((168 + 32 * $1 + 17)) $((489 + 32 * $2)); } # COLUMN ROW
