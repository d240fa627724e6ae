#!/bin/sh
# uloz.sh FOLDER PROGRAM TREE...: lays a program folder. The program is renewed; of the trees' files goes into the
# folder what is missing or empty there, and what is still exactly as an earlier run laid it. A file that was changed
# since is its owner's and stays, and so does a symbolic link.
set -eu

folder=$1 program=$2
shift 2
mkdir -p "$folder/ETAPY" "$folder/PLIKI" "$folder/OBIEKTY"
laid=$folder/.ulozone.sha256 # every content ever laid, with its name
touch "$laid"

sum() { sha256sum <"$1" | cut -d ' ' -f 1; }

known() { grep -qxF "$1" "$laid"; }

put() { # put FROM TO: replaces TO as a whole
    mkdir -p "$(dirname "$2")"
    cp -p "$1" "$2.nowy" && mv -f "$2.nowy" "$2"
}

[ ! -x "$program" ] || cmp -s "$program" "$folder/planszownik" || put "$program" "$folder/planszownik"

for tree; do
    [ -d "$tree" ] || continue
    (cd "$tree" && find . -type f ! -name .gitkeep -exec sha256sum {} +) | sed 's, [ *]\./,  ,' |
        while IFS= read -r new; do
            name=${new#*  }
            from=$tree/$name to=$folder/$name
            if [ -L "$to" ]; then
                continue
            elif [ ! -s "$to" ]; then
                put "$from" "$to"
            elif ! cmp -s "$from" "$to"; then
                known "$(sum "$to")  $name" || continue
                put "$from" "$to"
            fi
            known "$new" || echo "$new" >>"$laid"
        done
done
