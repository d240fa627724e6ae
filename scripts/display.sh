# display.sh: sourced by scripts that use the program by mouse and keys. Runs them again on a display of their own, of the
# size $screen. Gives them a folder for temporary files, the program's window, and the places of its controls. Ends what
# they start when they end.
# shellcheck shell=sh disable=SC2034,SC2046,SC2154

for tool in xvfb-run xauth openbox xdotool; do
    command -v $tool >/dev/null || { echo "skipped: there is no $tool" && exit; }
done
[ -n "${on_own_display-}" ] ||
    exec env -u QT_QPA_PLATFORM on_own_display=yes \
        xvfb-run -a -s "-noreset -screen 0 ${screen}x24" "scripts/${0##*/}" "$@"
room=$(mktemp -d) servers='' editor='' window=''
finish() {
    for process in $editor $servers; do
        kill "$process" 2>/dev/null || true
    done
    rm -rf "$room"
}
trap finish EXIT
openbox >/dev/null 2>&1 & # for keyboard focus and for closing by key
servers=$!
sleep 1

fail() {
    echo "FAILED: $1"
    [ -z "${pictures-}" ] || import -window root "$pictures/failed.png" || true
    exit 1
}
expect() { # expect TEXT COMMAND...
    text=$1
    shift
    if "$@"; then echo "ok: $text"; else fail "$text"; fi
}

# Starts the editor, or the program whose window has the title $title, and sets $editor to its process and $window to
# its window. A search ends with an error if another window closes in the meantime.
start() { # start COMMAND...
    "$@" &
    editor=$!
    for _ in $(seq 100); do
        window=$(xdotool search --onlyvisible --name "^${title-Dorva Planszownik} \[" 2>/dev/null | head -n 1) || true
        [ -z "$window" ] || break
        sleep 0.2
    done
    [ -n "$window" ] || fail "a window opens"
    sleep 1
}
close() {
    for _ in $(seq 20); do # a key is lost if the window doesn't have the focus yet
        xdotool windowactivate "$window" sleep 0.5 key alt+F4 sleep 0.5 2>/dev/null || break
    done
    ! xdotool getwindowname "$window" >/dev/null 2>&1 || fail "the window closes"
    wait "$editor" || fail "the program ends in order"
    editor=''
}

# Where to press controls, in pixels; in text boxes beside the text.
places='
optEtapNR(0) 37 32       optEtapNR(1) 37 48       lblKolor(4) 852 175      cmdCzysc 816 373
lblInfo(2) 280 376       txtNazwa 160 425         txtAutorGry(0) 100 585   txtAutorGry(1) 260 585
cmdTest 836 572          cmdCreate 836 596        cmdLoad 592 572
'
press() { # press CONTROL
    click $(echo "$places" | xargs -n 3 | sed -n "s/^$1 //p")
}
# Board cells are 16 pixels wide and begin at 96, 16; picker slots are 32 wide and begin at 168, 472.
point() { xdotool mousemove --window "$window" "$1" "$2"; sleep 0.15; }
click() { point "$1" "$2"; xdotool click 1; sleep 0.35; }
point_cell() { point $((96 + 16 * $1 + 8)) $((16 + 16 * $2 + 8)); } # COLUMN ROW
cell() { point_cell "$1" "$2"; xdotool click 1; sleep 0.35; }
slot() { click $((168 + 32 * $1 + 17)) $((489 + 32 * $2)); } # COLUMN ROW
put() { printf %b "$2" | dd of="$1" bs=1 seek="$3" conv=notrunc status=none; } # put FILE BYTES OFFSET
