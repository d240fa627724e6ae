#!/bin/sh
# Dodaje Planszownik do menu programów bieżącego użytkownika. Z opcją --usun: usuwa go stamtąd.
set -eu
cd "$(dirname "$0")"
case ${1-} in '' | --usun) ;; *) echo "menu.sh: nie ma opcji $1; jest: --usun" >&2 && exit 2 ;; esac

wpis=${XDG_DATA_HOME:-$HOME/.local/share}/applications/dorva-planszownik.desktop
if [ "${1-}" = --usun ]; then
    rm -f "$wpis"
    exit
fi
mkdir -p "$(dirname "$wpis")"
# Two levels of quoting: in a desktop entry's string a backslash is doubled, in a quoted argument of Exec the
# characters " ` $ \ take one, and % is doubled.
w_napisie=$(printf %s "$PWD" | sed 's/\\/\\\\/g')
w_exec=$(printf %s "$PWD" | sed 's/[\\"`$]/\\&/g; s/\\/\\\\/g; s/%/%%/g')
wstaw() { printf %s "$1" | sed 's/[\\&|]/\\&/g'; } # as the right side of s|||
sed "s|@EXEC@|$(wstaw "$w_exec")|; s|@FOLDER@|$(wstaw "$w_napisie")|" wzorzec/planszownik.desktop >"$wpis"
echo "$wpis"
