#!/bin/sh
# Dodaje Planszownik do menu pulpitu bieżącego użytkownika. Z opcją --usun: usuwa go stamtąd.
set -eu
cd "$(dirname "$0")"
wpis=${XDG_DATA_HOME:-$HOME/.local/share}/applications/dorva-planszownik.desktop
case ${1-} in
'') ;;
--usun) rm -f "$wpis" && exit ;;
*) echo "menu.sh: nie ma opcji $1; jest: --usun" >&2 && exit 2 ;;
esac

mkdir -p "$(dirname "$wpis")"
# Two levels of quoting: in a string of a desktop entry a backslash is doubled; in a quoted argument of Exec the
# characters " ` $ \ get a backslash in front, and % is doubled.
napis=$(printf %s "$PWD" | sed 's/\\/\\\\/g')
program=$(printf %s "$PWD" | sed 's/[\\"`$]/\\&/g; s/\\/\\\\/g; s/%/%%/g')
cat >"$wpis" <<KONIEC
[Desktop Entry]
Type=Application
Name=Dorva Planszownik
GenericName=Edytor etapów
Comment=Edytor etapów gry na Atari XL/XE
Exec="$program/start.sh"
Path=$napis
Icon=$napis/planszownik.png
Terminal=false
Categories=Graphics;
Keywords=Atari;gra;etapy;plansza;
StartupWMClass=planszownik
KONIEC
echo "$wpis"
