#!/bin/sh
# play-check.sh [--pictures] [BUILD]: plays the built game in the emulator atari800 and looks into its memory: title,
# the recorded runs through all stages, dying, the last stage, all 32 stages, boards without a heroine and of any
# bytes, keys, the overlay, frame rate, RESET and BASIC, larger machines and one of 64 KB. Says so and ends well where
# there is no emulator. --pictures renews docs/obrazy/gra-*.png and etap-*.png (needs Xvfb and ImageMagick).
set -eu

cd "$(dirname "$0")/.."
scripts/options.sh play-check '--pictures BUILD' "$@"
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
all_stages=$(seq 32)

at() { # at LABEL: its address in hexadecimal
    awk -v name=".$1" '$3 == name { sub(/^0+/, "", $2); print $2; exit }' "$labels"
}

plus() { # plus ADDRESS BYTES: the address so many bytes on
    printf '%X' $((0x$1 + $2))
}

# record TOKENS...: a recording of input. A token is letters and a number of frames: L R U D stick, F trigger,
# T START, S SELECT, O OPTION, E the key ESC, - nothing.
record() {
    echo "$*" | awk '
        BEGIN { print "Atari800 event recording, version: 1"; print 10387 }
        { for (i = 1; i <= NF; ++i) {
            stick = 255 - ($i ~ /U/) - 2 * ($i ~ /D/) - 4 * ($i ~ /L/) - 8 * ($i ~ /R/)
            match($i, /[0-9]+/)
            for (n = substr($i, RSTART); n > 0; --n)
                printf "%d 0 %d \n%d \n255 \n%d \n1 \n1 \n1 \n00000000 \n",
                    ($i ~ /E/) ? 28 : -1, 7 - ($i ~ /T/) - 2 * ($i ~ /S/) - 4 * ($i ~ /O/), stick, $i !~ /F/
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

check_runs() { # check_runs OPTION: the whole game in one go, PAL or NTSC
    # Each stage waits for the stick, so the time in between may be ample.
    # shellcheck disable=SC2046
    record "$start" $(for stage in $all_stages; do run_of "$stage"; echo -200; done) >"$work/input"
    {
        for stage in $all_stages; do
            until_at graj_etap && until_at otworz && dump brak_masek 1 "masks$stage"
            until_at policz_premie && dump numer_etapu 1 "stage$stage"
        done
        until_at ekran_wygranej && echo QUIT
    } >"$work/commands"
    play "$PWD/$game" -xe "$1"
    expect "all stages are entered, their exits open, she goes through, to the last screen ($1)" "$(came_to)" \
        "$(for stage in $all_stages; do printf 'graj_etap otworz policz_premie '; done)ekran_wygranej"
    expect "each is the next one, and no mask is missing ($1)" \
        "$(for stage in $all_stages; do echo "$(bytes "$work/stage$stage" 0 1) $(bytes "$work/masks$stage" 0 1)"; done)" \
        "$(for stage in $all_stages; do echo "$stage 0"; done)"
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

# Each key means the same in the greeting, in play and in a pause.
check_keys() {
    for phase in "greeting -60" "play R7 -20" "pause R7 O5 -20"; do
        for key in "E ekran_konca" "T nowa_gra" "S pokaz_strate"; do
            # shellcheck disable=SC2086
            record "$start" ${phase#* } "${key% *}5" -30 >"$work/input"
            { until_at graj_etap && until_at "${key#* }" && echo QUIT; } >"$work/commands"
            play "$PWD/$game" -xe
            expect "key ${key% *} in the ${phase%% *}" "$(came_to)" "graj_etap ${key#* }"
        done
        # shellcheck disable=SC2086
        record "$start" ${phase#* } O5 -200 O5 R60 -100 >"$work/input"
        { until_at graj_etap && until_at info_powitanie && dump pauza 1 pause && echo QUIT; } >"$work/commands"
        play "$PWD/$game" -xe
        expect "OPTION in the ${phase%% *}: a pause ends, and its word goes at once" \
            "$(came_to) $(bytes "$work/pause" 0 1)" "graj_etap info_powitanie 0"
    done
    record "$start" R7 -20 S5 -150 >"$work/input"
    { until_at graj_etap && until_at graj_etap && dump zycia 1 lives && echo QUIT; } >"$work/commands"
    play "$PWD/$game" -xe
    expect "SELECT costs a life" "$(bytes "$work/lives" 0 1)" 2
}

check_choice() { # the stage chosen on the title: held, the stick goes on choosing; the choice outlives a game
    record -400 R120 -20 F10 -60 E5 -60 F10 -100 >"$work/input"
    {
        until_at graj_etap && dump numer_etapu 1 chosen && until_at ekran_konca
        until_at tytul && until_at wcisniete && dump numer_etapu 1 again && echo QUIT
    } >"$work/commands"
    play "$PWD/$game" -xe
    chosen=$(bytes "$work/chosen" 0 1)
    expect "the held stick chooses on, from stage to stage" "$((chosen > 3 && chosen < 25))" 1
    expect "the chosen stage stays chosen" "$(bytes "$work/again" 0 1)" "$chosen"
}

check_overlay() { # in each world the two players lie over the heroine's cell and nowhere else
    record -9000 >"$work/input"
    {
        until_at wcisniete
        echo "BPC $(at graj_etap)"
        for world in 0 1 2; do
            stage=1
            while [ "$(bytes "$stages/DETAP.$stage" "$ETAP_SWIAT" 1)" != $world ]; do stage=$((stage + 1)); done
            printf 'C %s %X\nCONT %s\nGTIA\nANTIC\n' "$(at numer_etapu)" $stage "$(at graj)"
            dump gracz0 512 "players$world" && dump dorva_x 1 "x$world" && dump dorva_y 1 "y$world"
        done
        dump lista_planszy 12 list && echo QUIT
    } >"$work/commands"
    play "$PWD/$game" -xe
    # the board's first scan line: the picture begins at line 8, and the lines of the display list in front of it
    top=$(bytes "$work/list" 0 12 | awk '{
        for (i = 1; i <= NF && $i % 16 != 4; ++i) {
            if ($i % 16 == 0) lines += int($i / 16) % 8 + 1
            else { lines += 8; i += 2 }
        }
        print 8 + lines }')
    for world in 0 1 2; do
        x=$(bytes "$work/x$world" 0 1) y=$(bytes "$work/y$world" 0 1)
        rows=$(od -An -v -tu1 -w1 "$work/players$world" | awk '$1 { seen[(NR - 1) % 256] = 1 }
            END { for (i = 0; i < 256; ++i) if (i in seen) printf "%d ", i }')
        expect "world $((world + 1)): the overlay lies on the rows of her cell" "$rows" \
            "$(seq -s ' ' $((top + 8 * y)) $((top + 8 * y + 7))) "
        both=$(printf '%02X' $((48 + 4 * x))) # the board's left edge is colour clock 48
        places=$(grep -o '^HPOSP0=.. *HPOSP1=..' "$work/log" | sed -n "$((world + 1))p" | tr -s ' ')
        expect "and in its column" "$places" "HPOSP0=$both HPOSP1=$both"
    done
    fetched=$(grep -o 'GRACTL=..\|DMACTL=..\|PMBASE=..' "$work/log" | sort -u | tr '\n' ' ')
    expect "players are fetched, on each line, from their page" "$fetched" "DMACTL=3A GRACTL=02 PMBASE=B0 "
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
        for stage in $all_stages; do
            printf 'C %s %X\nCONT %s\n' "$(at numer_etapu)" "$stage" "$(at graj)"
            dump plansza $board "plansza$stage" && dump zestaw 512 "zestaw$stage" && dump kolory 12 "kolory$stage"
            dump linia_info 40 "linia$stage"
        done
        echo QUIT
    } >"$work/commands"
    play "$PWD/$game" -xe
    for stage in $all_stages; do
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

check_pace() { # check_pace OPTION, PAL or NTSC: boards full of what takes longest: no tick may outlast its frame
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
        play "$work/pelna.xex" -xe "$1"
        expect "full frame rate on a board of tiles $full ($1)" "$(came_to) $(bytes "$work/late" 0 1)" "ekran_konca 0"
    done
}

check_reset() { # check_reset OPTION: BASIC on or off
    record "$start" "$(run_of 1)" -600 >"$work/input"
    {
        until_at start && echo "WRITE 6A 6A top"
        until_at graj_etap && until_at otworz
        echo "BPC $(at rysuj_tytul)" && echo WARMSTART # goes on by itself
        until_at wcisniete && dump ekran 600 ekran && echo QUIT
    } >"$work/commands"
    play "$PWD/$game" -xe "$1"
    expect "RESET in the middle of a stage brings the title ($1)" "$(came_to)" \
        "start graj_etap otworz rysuj_tytul wcisniete"
    expect "and the title is whole" "$(shown_lines)" "$(title_lines "$game")"
    expect "the system's screen stood behind all that is loaded" "$(bytes "$work/top" 0 1)" $((0xC0))
}

check_large_machines() {
    for machine in -320xe -rambo -576xe -1088xe; do
        record "$start" -60 >"$work/input"
        { until_at wcisniete && until_at graj_etap && dump plansza $board board && echo QUIT; } >"$work/commands"
        play "$PWD/$game" "$machine"
        expect "stage 1 is there on a larger machine ($machine)" "$(bytes "$work/board" 0 $board)" \
            "$(bytes "$stages/DETAP.1" "$ETAP_PLANSZA" $board)"
    done
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
    for picture in docs/obrazy/etap-??.png; do # boards as the editor shows them, in their stages' colours
        stage=$(echo "$picture" | sed 's/.*etap-0*\([0-9]*\).png/\1/')
        world=$(($(bytes "$stages/DETAP.$stage" "$ETAP_SWIAT" 1) + 1))
        "$build/game/tools/swiaty" plansza "game/art/swiat$world.txt" "$stages/DETAP.$stage" "$work/board.bmp"
        convert "$work/board.bmp" -strip "PNG8:$picture"
        echo "picture: $picture"
    done
    open_display "$work" 1024 768
    mkdir -p docs/obrazy

    record "$start" "$(run_of 1)" -100 "$(run_of 2)" -400 >"$work/input"
    {
        until_at wcisniete && look tytul && until_at graj
        until_at otworz && look wyjscie && until_at policz_premie
        until_at graj_etap && until_at otworz && until_at policz_premie && echo QUIT
    } >"$work/commands"
    watch "$PWD/$game"
    for name in tytul wyjscie; do keep "$name"; done

    test_build "$stages/DETAP.2" "$work/test.xex"
    record "$start" "$(run_of 2)" -400 F10 -60 >"$work/input"
    { until_at ekran_wygranej && look wygrana && until_at rysuj_tytul && echo QUIT; } >"$work/commands"
    watch "$work/test.xex"
    keep wygrana

    record "$(for _ in $(seq 60); do echo R1 -99; done)" >"$work/input" # a move every two seconds ends each greeting
    {
        until_at wcisniete
        for stage in $all_stages; do
            printf 'BPC %s\nC %s %X\nCONT %s\n' "$(at graj_etap)" "$(at numer_etapu)" "$stage" "$(at graj)"
            look "etap$stage" && until_at takt
        done
        echo QUIT
    } >"$work/commands"
    watch "$PWD/$game"
    for stage in 8 14 24; do keep "etap$stage"; done
    for stage in $all_stages; do convert "$work/etap$stage.png" -sample 50% "$work/etap$stage.png"; done
    (cd "$work" && montage $(seq -f etap%g.png 32) -tile 4x8 -geometry +2+2 etapy.png)
    keep etapy
}

check_title
check_runs -pal
check_runs -ntsc
check_dying
check_keys
check_choice
check_overlay
check_test_build
check_all_stages
check_empty_board
check_any_bytes
check_pace -pal
check_pace -ntsc
check_reset -nobasic
check_reset -basic
check_large_machines
check_small_machine
[ "$pictures" = no ] || take_pictures
