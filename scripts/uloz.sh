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

copy() { # copy FROM TO: a copy under the name TO.nowy, in the folder that it needs
    mkdir -p "$(dirname "$2")"
    cp -p "$1" "$2.nowy"
}

may_go() { # may_go NAME: missing, empty, or as it was laid
    [ ! -s "$folder/$1" ] || known "$(sum "$folder/$1")  $1"
}

if [ -x "$program" ] && ! cmp -s "$program" "$folder/planszownik"; then
    copy "$program" "$folder/planszownik"
    mv -f "$folder/planszownik.nowy" "$folder/planszownik"
fi

for tree; do
    [ -d "$tree" ] || continue
    (cd "$tree" && find . -type f ! -name .gitkeep -exec sha256sum {} +) | sed 's, [ *]\./,  ,' |
        while IFS= read -r new; do
            name=${new#*  }
            from=$tree/$name to=$folder/$name
            [ ! -L "$to" ] || continue
            if ! cmp -s "$from" "$to"; then
                may_go "$name" || continue
                copy "$from" "$to"
                if ! may_go "$name"; then # somebody has stored there since
                    rm "$to.nowy"
                    continue
                fi
                mv -f "$to.nowy" "$to"
            fi
            known "$new" || echo "$new" >>"$laid"
        done
done
