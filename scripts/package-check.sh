#!/bin/sh
# package-check.sh [ARCHIVE]: unpacks the package into a folder with spaces and Polish letters in its name, starts, uses
# and closes the program, and unpacks it over itself as a newer version: a changed stage must survive, an unchanged one
# be renewed, a missing one come back. With Xvfb and xdotool the window is used by mouse, else offscreen.
set -eu

cd "$(dirname "$0")/.."
scripts/options.sh package-check 'ARCHIVE' "$@"
archive=${1-$(find build/release -maxdepth 1 -name 'dorva-planszownik-*.tar.gz' 2>/dev/null | sort | tail -n 1)}
[ -f "$archive" ] || { echo "package-check: no package; run scripts/package.sh first"; exit 1; }
archive=$(realpath "$archive")

room=$(mktemp -d)
. scripts/display.sh
editor=''
finish() {
    [ -z "$editor" ] || kill "$editor" 2>/dev/null || true
    close_display
    rm -rf "$room"
}
trap finish EXIT
export HOME="$room/home"
folder="$room/Moje gry (żółć)/planszownik"
mkdir -p "$HOME" "$folder"
folder_above=$(dirname "$folder")

ok() { echo "ok: $1"; }
fail() { echo "FAILED: $1"; exit 1; }
expect() { # expect TEXT COMMAND...
    text=$1
    shift
    if "$@"; then ok "$text"; else fail "$text"; fi
}
differ() { ! cmp -s "$1" "$2"; }
unpack() { tar xzf "$archive" -C "$folder_above"; }

have() { command -v "$1" >/dev/null 2>&1; }
if have Xvfb && have xdotool; then
    open_display "$room" 1280 720
    export QT_QPA_PLATFORM=xcb
    if have openbox; then
        open_manager
    else
        echo "skipped: closing by the window manager (no openbox); the program is closed by SIGTERM"
    fi
else
    export QT_QPA_PLATFORM=offscreen
    echo "skipped: painting by mouse (no Xvfb or no xdotool); started offscreen, the stage is changed as a file"
fi

start() { # starts the program as a user does; editor is its process, window its window
    sh "$folder/start.sh" &
    editor=$!
    [ "$QT_QPA_PLATFORM" != xcb ] || find_window || fail "a window opens"
    sleep 1
}

paint() { # a trap into a field of earth
    slot 2 0
    cell 20 9
}

close() {
    if [ -n "$display_manager" ]; then
        { xdotool windowactivate "$window" && sleep 0.5 && xdotool key alt+F4; } || fail "the window answers"
    else
        kill -TERM "$editor"
    fi
    wait "$editor" || fail "the program ends in order"
    editor=''
}

unpack
expect "the package holds no stage at a live place" [ ! -e "$folder/ETAPY" ]
expect "nor title lines, nor an executable" [ ! -e "$folder/PLIKI" -a ! -e "$folder/planszownik" ]

start
close
expect "32 stages are laid out" [ "$(find "$folder/ETAPY" -name 'DETAP.*' -size 931c | wc -l)" = 32 ]
expect "starting and closing changes no stage" diff -r "$folder/wzorzec/dane/ETAPY" "$folder/ETAPY"
expect "nor the title lines" cmp "$folder/wzorzec/dane/PLIKI/DP1.DTA" "$folder/PLIKI/DP1.DTA"

start
if [ -n "$window" ]; then
    paint
    [ -z "${PICTURE-}" ] || import -window "$window" "$PICTURE"
fi
close
[ -n "$window" ] || printf '!' | dd of="$folder/ETAPY/DETAP.1" bs=1 seek=900 conv=notrunc 2>/dev/null
expect "the stage is changed" differ "$folder/wzorzec/dane/ETAPY/DETAP.1" "$folder/ETAPY/DETAP.1"
cp "$folder/ETAPY/DETAP.1" "$room/changed"

# A newer version: another stage 1 and stage 2, another template; stage 3 has got lost in the meantime.
unpack
expect "unpacking over it leaves the stage" cmp "$room/changed" "$folder/ETAPY/DETAP.1"
for name in ETAPY/DETAP.1 ETAPY/DETAP.2 PLIKI/DP2.DTA; do
    printf 'N' | dd of="$folder/wzorzec/dane/$name" bs=1 seek=900 conv=notrunc 2>/dev/null
done
rm "$folder/ETAPY/DETAP.3"
start
close
expect "the changed stage survives the newer version" cmp "$room/changed" "$folder/ETAPY/DETAP.1"
expect "an unchanged stage is renewed" cmp "$folder/wzorzec/dane/ETAPY/DETAP.2" "$folder/ETAPY/DETAP.2"
expect "so is the game template" cmp "$folder/wzorzec/dane/PLIKI/DP2.DTA" "$folder/PLIKI/DP2.DTA"
expect "a missing stage comes back" cmp "$folder/wzorzec/dane/ETAPY/DETAP.3" "$folder/ETAPY/DETAP.3"
expect "no copies are left behind" [ -z "$(find "$folder" -name '*.kopia*' -o -name '*.nowy' -o -name '*.dp-tmp')" ]

sh "$folder/menu.sh" >/dev/null
entry=$HOME/.local/share/applications/dorva-planszownik.desktop
expect "the menu entry names the program's place" grep -qF "Exec=\"$folder/start.sh\"" "$entry"
if have desktop-file-validate; then
    expect "and is a valid entry" desktop-file-validate "$entry"
else
    echo "skipped: validation of the menu entry (no desktop-file-validate)"
fi
echo "package-check: all well"
