#!/bin/sh
# Dodaje Planszownik i przegląd etapów do menu pulpitu bieżącego użytkownika. Z opcją --usun: usuwa je stamtąd.
set -eu
cd "$(dirname "$0")"
menu=${XDG_DATA_HOME:-$HOME/.local/share}/applications
case ${1-} in
'') ;;
--usun) rm -f "$menu/dorva-planszownik.desktop" "$menu/dorva-przeglad.desktop" && exit ;;
*) echo "menu.sh: nie ma opcji $1; jest: --usun" >&2 && exit 2 ;;
esac

# Two levels of quoting: in a string of a desktop entry a backslash is doubled; in a quoted argument of Exec the
# characters " ` $ \ get a backslash in front, and % is doubled.
napis=$(printf %s "$PWD" | sed 's/\\/\\\\/g')
folder=$(printf %s "$PWD" | sed 's/[\\"`$]/\\&/g; s/\\/\\\\/g; s/%/%%/g')
wpis() { # wpis PROGRAM NAME GENERIC_NAME COMMENT
    cat >"$menu/dorva-$1.desktop" <<KONIEC
[Desktop Entry]
Type=Application
Name=$2
GenericName=$3
Comment=$4
Exec="$folder/start.sh" $1
Path=$napis
Icon=$napis/planszownik.png
Terminal=false
Categories=Graphics;
Keywords=Atari;gra;etapy;plansza;
StartupWMClass=$1
KONIEC
    echo "$menu/dorva-$1.desktop"
}

mkdir -p "$menu"
wpis planszownik 'Dorva Planszownik' 'Edytor etapów' 'Edytor etapów gry na Atari XL/XE'
wpis przeglad 'Dorva - przegląd etapów' 'Przegląd etapów' 'Wszystkie etapy gry na jednym arkuszu'
