#!/bin/sh
# play-check.sh [--pictures] [BUILD]: plays the built game in the emulator atari800 and looks into its memory: title,
# the recorded runs through stages 1 to 3, dying, the last stage, all 32 stages, boards without a heroine and of any
# bytes, RESET, a machine of 64 KB. Says so and ends well where there is no emulator. --pictures renews
# docs/obrazy/gra-*.png (needs Xvfb and ImageMagick).
set -eu

cd "$(dirname "$0")/.."
pictures=no
[ "${1-}" != --pictures ] || { pictures=yes && shift; }
build=${1-build/release}
game=$build/data/PLIKI/DP2.DTA labels=$build/game/src/szablon.lbl
stages=$build/data/ETAPY tiles=$build/data/OBIEKTY/ORN_EXPORT
runs=tests/gra/przejscia
zloz_gre=$PWD/$build/game/tools/zloz_gre

command -v atari800 >/dev/null || { echo "play-check: skipped, the emulator atari800 is not installed"; exit 0; }
for file in "$game" "$labels" "$zloz_gre"; do
    [ -f "$file" ] || { echo "play-check: no $file; build it first" >&2; exit 1; }
done
. scripts/display.sh
work=$(mktemp -d)
trap 'close_display; rm -rf "$work"' EXIT

# ETAP_...: where the fields of a stage record stand.
eval "$(sed -n 's/^\(ETAP_[A-Z]*\) *= *\([0-9]*\).*/\1=\2/p' game/src/rekord.inc)"
board=800

at() { # at LABEL: its address in hexadecimal
    awk -v name=".$1" '$3 == name { sub(/^0+/, "", $2); print $2; exit }' "$labels"
}

plus() { # plus ADDRESS BYTES: the address so many bytes on
    printf '%X' $((0x$1 + $2))
}

# record TOKENS...: a recording of input. A token is letters and a number of frames: L R U D stick, F trigger,
# S SELECT, O OPTION, E the key ESC, - nothing.
record() {
    echo "$*" | awk '
        BEGIN { print "Atari800 event recording, version: 1"; print 10387 }
        { for (i = 1; i <= NF; ++i) {
            stick = 255 - ($i ~ /U/) - 2 * ($i ~ /D/) - 4 * ($i ~ /L/) - 8 * ($i ~ /R/)
            match($i, /[0-9]+/)
            for (n = substr($i, RSTART); n > 0; --n)
                printf "%d 0 %d \n%d \n255 \n%d \n1 \n1 \n1 \n00000000 \n",
                    ($i ~ /E/) ? 28 : -1, 7 - 2 * ($i ~ /S/) - 4 * ($i ~ /O/), stick, $i !~ /F/
        } }'
}

# run_of STAGE: the recorded run, its steps as taps of two frames in six. Its first move also ends the greeting, so it
# takes a frame more than in the rules.
run_of() {
    awk 'NR > 1 { for (i = 1; i <= NF; ++i)
        for (n = substr($i, 2); n > 0; --n)
            printf "%s%d -4 ", substr($i, 1, 1), ++count == 1 ? 3 : 2
    }' "$runs/etap$1.txt"
}

# emulate FILE [OPTION...]: runs FILE with the input $work/input and the monitor commands $work/commands.
emulate() {
    file=$1
    shift
    : >>"$work/config"
    (cd "$work" && timeout 300 atari800 -config "$work/config" -nobasic -xl-rev altirra -nosound \
        -playback "$work/input" "$@" -run "$file" -monitor <"$work/commands" >"$work/log" 2>&1) || true
    rm -f "$work/config"
}

play() { # play FILE [OPTION...]: without a picture, as fast as it goes
    SDL_VIDEODRIVER=dummy SDL_AUDIODRIVER=dummy emulate "$@" -turbo
}

until_at() { # until_at LABEL: goes on until the program comes there
    echo "BPC $(at "$1")"
    echo CONT
}

dump() { # dump LABEL BYTES NAME: a piece of memory into a file
    from=$(at "$1")
    echo "WRITE $from $(plus "$from" $(($2 - 1))) $3"
}

patch() { # patch FILE OFFSET BYTE...: replaces bytes
    file=$1 offset=$2
    shift 2
    # shellcheck disable=SC2059
    for byte; do printf "\\$(printf %03o "$byte")"; done | dd of="$file" bs=1 seek="$offset" conv=notrunc status=none
}

# test_build STAGE_FILE FILE: a game as a test build makes it: the stage in the place of stage 1, marked as the last.
test_build() {
    "$zloz_gre" "$game" "$2" 'Żółty Atarowiec' '' 'TEST ETAPU' "$1"
}

bytes() { # bytes FILE OFFSET COUNT: in decimal, on one line
    od -An -v -tu1 -j "$2" -N "$3" "$1" | tr -s ' \n' ' ' | sed 's/^ //; s/ $//'
}

expect() { # expect WHAT IS SHOULD_BE
    if [ "$2" = "$3" ]; then
        echo "ok: $1"
    else
        echo "FAILED: $1: '$2' instead of '$3'" >&2
        exit 1
    fi
}

came_to() { # the labels at which the program stopped, in order
    awk -v labels="$labels" '
        BEGIN {
            while ((getline line < labels) > 0) {
                split(line, field, " ")
                sub(/^0+/, "", field[2])
                names[field[2]] = field[3]
            }
        }
        /^\(breakpoint at/ {
            gsub(/^0+|\)/, "", $3)
            printf "%s%s", sep, substr(names[$3], 2)
            sep = " "
        }' "$work/log"
}

title_lines() { # the bytes that the three title lines of FILE put on the text screen, from column 8 on
    "$zloz_gre" --tytul "$1" | awk '{
        for (i = 0; i < 24; ++i) row[i] = 0
        for (i = 2; i <= NF && $i != 155; ++i) row[$1 + i - 2] = $i
        for (i = 0; i < 24; ++i) printf "%d ", row[i] }'
}

shown_lines() { # the same from the dumped text screen
    for line in 0 1 2; do bytes "$work/ekran" $((40 * (1 + 2 * line) + 8)) 24 | sed 's/$/ /' | tr -d '\n'; done
}

start="-400 F10 -60"

check_title() {
    record "$start" >"$work/input"
    { until_at wcisniete && dump ekran 600 ekran && echo QUIT; } >"$work/commands"
    play "$PWD/$game" -xe
    expect "the title shows its three lines at their start columns" "$(shown_lines)" "$(title_lines "$game")"
}

check_runs() { # check_runs OPTION: PAL or NTSC
    record "$start" "$(run_of 1)" -100 "$(run_of 2)" -100 "$(run_of 3)" -150 R7 -100 >"$work/input"
    {
        for stage in 1 2 3; do
            until_at graj_etap && until_at otworz && dump brak_masek 1 "masks$stage"
            until_at policz_energie && dump numer_etapu 1 "stage$stage"
        done
        until_at graj_etap && dump numer_etapu 1 stage4
        echo QUIT
    } >"$work/commands"
    play "$PWD/$game" -xe "$1"
    one="graj_etap otworz policz_energie"
    expect "stages 1 to 3 are entered, their exits open, she goes through ($1)" "$(came_to)" "$one $one $one graj_etap"
    for stage in 1 2 3; do
        expect "stage $stage: no mask is missing" \
            "$(bytes "$work/masks$stage" 0 1) $(bytes "$work/stage$stage" 0 1)" "0 $stage"
    done
    expect "stage 4 follows" "$(bytes "$work/stage4" 0 1)" 4
}

check_dying() { # she steps into a fire and stays there, three times
    cp "$stages/DETAP.1" "$work/etap"
    dorva=$(od -An -v -tu1 -w1 "$work/etap" | awk -v board="$ETAP_PLANSZA" 'NR > board && $1 == 63 { print NR - 1; exit }')
    patch "$work/etap" $((dorva - 1)) 35 63 35
    test_build "$work/etap" "$work/ogien.xex"
    record "$start" R7 -300 R7 -300 R7 -400 >"$work/input"
    {
        for lives in 3 2 1; do until_at graj_etap && dump zycia 1 "lives$lives"; done
        until_at ekran_konca && until_at wcisniete && echo QUIT
    } >"$work/commands"
    play "$work/ogien.xex" -xe
    expect "three tries, then the end of the game" "$(came_to)" "graj_etap graj_etap graj_etap ekran_konca wcisniete"
    expect "a life is lost each time" \
        "$(for lives in 3 2 1; do bytes "$work/lives$lives" 0 1 | tr -d '\n'; done)" 321
}

check_keys() { # a pause of half a minute, the stage anew, the end of the game
    record "$start" R7 O5 -1500 O5 R60 S5 -120 R7 -30 E5 -200 >"$work/input"
    {
        until_at graj_etap && until_at takt && until_at info_powitanie && until_at takt
        until_at graj_etap && dump zycia 1 lives && until_at ekran_konca && echo QUIT
    } >"$work/commands"
    play "$PWD/$game" -xe
    expect "pause, SELECT and ESC" "$(came_to)" "graj_etap takt info_powitanie takt graj_etap ekran_konca"
    expect "SELECT costs a life" "$(bytes "$work/lives" 0 1)" 2
}

check_test_build() {
    test_build "$stages/DETAP.2" "$work/test.xex"
    record "$start" "$(run_of 2)" -300 >"$work/input"
    { until_at wcisniete && dump ekran 600 ekran && until_at ekran_wygranej && echo QUIT; } >"$work/commands"
    play "$work/test.xex" -xe
    expect "a test build shows its title lines" "$(shown_lines)" "$(title_lines "$work/test.xex")"
    expect "its only stage is the last one" "$(came_to)" "wcisniete ekran_wygranej"
}

check_all_stages() {
    record -9000 >"$work/input"
    {
        until_at wcisniete
        echo "BPC $(at graj_etap)"
        for stage in $(seq 32); do
            printf 'C %s %X\nCONT %s\n' "$(at numer_etapu)" "$stage" "$(at graj)"
            dump plansza $board "plansza$stage" && dump zestaw 512 "zestaw$stage" && dump kolory 12 "kolory$stage"
            dump linia_info 40 "linia$stage"
        done
        echo QUIT
    } >"$work/commands"
    play "$PWD/$game" -xe
    for stage in $(seq 32); do
        file=$stages/DETAP.$stage
        world=$(bytes "$file" "$ETAP_SWIAT" 1)
        same=
        [ "$(bytes "$work/plansza$stage" 0 $board)" = "$(bytes "$file" "$ETAP_PLANSZA" $board)" ] || same="$same board"
        [ "$(bytes "$work/kolory$stage" 0 12)" = "$(bytes "$file" "$ETAP_KOLORY" 12)" ] || same="$same colours"
        [ "$(bytes "$work/linia$stage" 8 32)" = "$(bytes "$file" "$ETAP_NAZWA" 32)" ] || same="$same greeting"
        [ "$(bytes "$work/zestaw$stage" 0 512)" = "$(bytes "$tiles/FNT${world}1.ORN.ND" 0 512)" ] ||
            same="$same tiles"
        [ -z "$same" ] || expect "stage $stage as it was painted" "other:$same" "the same"
    done
    expect "all 32 stages as they were painted: board, tiles, colours, greeting" 32 32
}

check_empty_board() {
    cp "$stages/DETAP.1" "$work/etap"
    # shellcheck disable=SC2046
    patch "$work/etap" "$ETAP_PLANSZA" $(bytes "$stages/DETAP.1" "$ETAP_PLANSZA" $board | sed 's/\b63\b/0/g')
    test_build "$work/etap" "$work/pusta.xex"
    record "$start" -100 F10 -100 >"$work/input"
    { until_at ekran_bez_dorvy && until_at rysuj_tytul && echo QUIT; } >"$work/commands"
    play "$work/pusta.xex" -xe
    expect "a board without a heroine: a word, then the title" "$(came_to)" "ekran_bez_dorvy rysuj_tytul"
}

check_any_bytes() { # stages of 931 bytes as they come, but for the heroine: the game lives and still takes ESC
    for seed in 1 2 3; do
        cp "$stages/DETAP.1" "$work/etap"
        # shellcheck disable=SC2046
        patch "$work/etap" 0 $(awk -v x="$seed" -v size="$ETAP_BAJTY" 'BEGIN {
            for (i = 0; i < size; ++i) { x = (x * 16807) % 2147483647; print int(x / 128) % 256 } }')
        patch "$work/etap" $((ETAP_PLANSZA + 420)) 63
        test_build "$work/etap" "$work/byle.xex"
        record "$start" R50 D50 L90 U50 F3 R200 D60 F3 L60 U300 F10 R60 E5 -300 >"$work/input"
        { until_at ekran_konca && until_at wcisniete && echo QUIT; } >"$work/commands"
        play "$work/byle.xex" -xe
        expect "any bytes are a stage ($seed)" "$(came_to)" "ekran_konca wcisniete"
    done
}

check_pace() { # boards full of what takes longest: no tick may outlast its frame
    for full in "36 37 38 39 3 0" "54 14 23 24 17" "18 40 41 42 24 0" "24 25 35 8 1" "43 44 45 46 19 20 0" "55 0"; do
        cp "$stages/DETAP.1" "$work/etap"
        # shellcheck disable=SC2046
        patch "$work/etap" "$ETAP_PLANSZA" $(echo "$full" |
            awk -v board=$board '{ for (i = 0; i < board; ++i) print $(1 + (i * i + i * 7) % 31 % NF) }')
        patch "$work/etap" $((ETAP_PLANSZA + 420)) 63
        patch "$work/etap" "$ETAP_CEL" 99
        test_build "$work/etap" "$work/pelna.xex"
        record "$start" R50 D50 L90 U50 F3 R200 D60 F3 L60 U300 F10 R60 E5 L200 E5 L200 E5 -300 >"$work/input"
        { until_at ekran_konca && dump spoznione 1 late && echo QUIT; } >"$work/commands"
        play "$work/pelna.xex" -xe -ntsc
        expect "full frame rate on a board of tiles $full" "$(came_to) $(bytes "$work/late" 0 1)" "ekran_konca 0"
    done
}

check_reset() {
    record "$start" "$(run_of 1)" -600 >"$work/input"
    {
        until_at graj_etap && until_at otworz
        echo "BPC $(at rysuj_tytul)" && echo WARMSTART # goes on by itself
        until_at wcisniete && dump ekran 600 ekran && echo QUIT
    } >"$work/commands"
    play "$PWD/$game" -xe
    expect "RESET in the middle of a stage brings the title" "$(came_to)" "graj_etap otworz rysuj_tytul wcisniete"
    expect "and the title is whole" "$(shown_lines)" "$(title_lines "$game")"
}

check_small_machine() {
    record -1000 >"$work/input"
    { until_at stoj && echo QUIT; } >"$work/commands"
    play "$PWD/$game" -xl
    expect "a machine of 64 KB is told what is missing" "$(came_to)" stoj
}

look() { # look NAME: lets the program go on and takes a picture a second later
    echo "!(sleep 1; import -window root -crop 672x480+0+0 +repage $work/$1.png) &"
}

watch() { # watch FILE: at the pace of the real machine, on a display of its own
    SDL_AUDIODRIVER=dummy emulate "$1" -xe -pal -win-width 672 -win-height 480
}

keep() { # keep NAME [OPERATION...]: a picture for the documentation
    name=$1
    shift
    convert "$work/$name.png" "$@" +dither -colors 64 -strip -define png:exclude-chunks=date,time \
        "PNG8:docs/obrazy/gra-$name.png"
    echo "picture: docs/obrazy/gra-$name.png"
}

take_pictures() {
    if ! command -v Xvfb >/dev/null || ! command -v convert >/dev/null; then
        echo "pictures: skipped, no Xvfb or ImageMagick"
        return
    fi
    open_display "$work" 1024 768
    mkdir -p docs/obrazy

    record "$start" "$(run_of 1)" -100 "$(run_of 2)" -400 >"$work/input"
    {
        until_at wcisniete && look tytul && until_at graj
        until_at otworz && look wyjscie && until_at policz_energie
        until_at powitaj && until_at otworz && until_at policz_energie && echo QUIT
    } >"$work/commands"
    watch "$PWD/$game"
    for name in tytul wyjscie; do keep "$name"; done

    test_build "$stages/DETAP.2" "$work/test.xex"
    record "$start" "$(run_of 2)" -400 F10 -60 >"$work/input"
    { until_at ekran_wygranej && look wygrana && until_at rysuj_tytul && echo QUIT; } >"$work/commands"
    watch "$work/test.xex"
    keep wygrana

    record -9000 >"$work/input"
    {
        until_at wcisniete
        for stage in $(seq 32); do
            printf 'BPC %s\nC %s %X\nCONT %s\n' "$(at powitaj)" "$(at numer_etapu)" "$stage" "$(at graj)"
            look "etap$stage" && until_at graj_etap
        done
        echo QUIT
    } >"$work/commands"
    watch "$PWD/$game"
    for stage in 8 14 24; do keep "etap$stage"; done
    for stage in $(seq 32); do convert "$work/etap$stage.png" -sample 50% "$work/etap$stage.png"; done
    (cd "$work" && montage $(seq -f etap%g.png 32) -tile 4x8 -geometry +2+2 etapy.png)
    keep etapy
}

check_title
check_runs -pal
check_runs -ntsc
check_dying
check_keys
check_test_build
check_all_stages
check_empty_board
check_any_bytes
check_pace
check_reset
check_small_machine
[ "$pictures" = no ] || take_pictures
