#!/bin/sh
# docs-check.sh: repeats every "$ od ..." example of docs/formaty.md on freshly laid files, looks for the target of every
# relative link of the documents, and for the tiles that docs/gra.md names. --write: renews the examples instead.
set -eu
case $* in '' | --write) ;; *) echo "docs-check: no option $*; there is: --write" >&2 && exit 2 ;; esac

cd "$(dirname "$0")/.."
room=$(mktemp -d)
trap 'rm -rf "$room"' EXIT
scripts/lay.sh build/release "$room/folder"

# An example is a block that starts with the command; the rest is what it prints.
awk -v folder="$room/folder" '
    /^\$ od / { print; fflush(); system("cd \"" folder "\" && " substr($0, 3)); printed = 1 }
    /^```/ { printed = 0 }
    !printed' docs/formaty.md >"$room/formaty.md"

# The headings of a page, as links spell them.
anchors() { sed -n 's/^##* //p' "$1" | LC_ALL=C.UTF-8 sed 's/.*/\L&/; s/[^[:alnum:]_ -]//g; s/ /-/g'; }

bad=0
if [ "${1-}" = --write ]; then
    cp "$room/formaty.md" docs/formaty.md
else
    diff docs/formaty.md "$room/formaty.md" || { echo "docs-check: an example differs from the files"; bad=1; }
fi
for document in *.md docs/*.md game/*.md game/*/*.md; do
    grep -o '](\([^)]*\))' "$document" | sed 's/^](//; s/)$//' | grep -v '^[a-z]*:' | sort -u >"$room/links" || continue
    while IFS= read -r link; do
        case $link in '#'*) page=$document ;; *) page=$(dirname "$document")/${link%%#*} ;; esac
        case $link in *'#'*) anchors "$page" | grep -qxF -- "${link#*#}" ;; *) [ -e "$page" ] ;; esac ||
            { echo "docs-check: $document: no $link"; bad=1; }
    done <"$room/links"
done
sed -n '/^| Kod/,/^$/s/^| \([0-9]*\) | \([^|]*\) |.*/\1 \2/p' docs/gra.md >"$room/tiles"
grep -vxFf game/art/swiat1.txt "$room/tiles" && { echo "docs-check: docs/gra.md: no such tiles"; bad=1; }
[ $bad = 0 ] && echo "docs-check: all well"
exit $bad
