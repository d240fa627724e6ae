#!/bin/sh
# docs-check.sh: repeats every "$ od ..." example of docs/formaty.md on freshly laid files, and looks for the target of
# every relative link of the documents. --write: renews the examples instead.
set -eu

cd "$(dirname "$0")/.."
scripts/options.sh docs-check '--write' "$@"
[ -d build/release/data ] || { echo "docs-check: nothing is built; run scripts/run.sh --no-start first"; exit 1; }
room=$(mktemp -d)
trap 'rm -rf "$room"' EXIT
scripts/uloz.sh "$room/folder" - data build/release/data

# Every example is a block of its own: the command, then what it prints.
while IFS= read -r line; do
    case $line in
    '$ od '*)
        printf '%s\n' "$line"
        (cd "$room/folder" && eval "${line#??}")
        skip=1
        ;;
    '```'*) skip='' && printf '%s\n' "$line" ;;
    *) [ -n "${skip-}" ] || printf '%s\n' "$line" ;;
    esac
done <docs/formaty.md >"$room/formaty.md"

bad=0
if [ "${1-}" = --write ]; then
    cp "$room/formaty.md" docs/formaty.md
else
    diff docs/formaty.md "$room/formaty.md" || { echo "docs-check: an example differs from the files"; bad=1; }
fi
for document in README.md docs/*.md game/*.md game/*/*.md; do
    grep -o '](\([^)]*\))' "$document" | sed 's/^](//; s/)$//; s/#.*//' | grep -v '^[a-z]*:' | sort -u >"$room/links" || continue
    while IFS= read -r link; do
        [ -e "$(dirname "$document")/$link" ] || { echo "docs-check: $document: no $link"; bad=1; }
    done <"$room/links"
done
[ $bad = 0 ] && echo "docs-check: all well"
exit $bad
