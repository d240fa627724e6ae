#!/bin/sh
# Układa obok siebie to, czego brakuje (etapy, światy, szablon gry, program), i uruchamia Planszownik.
# Pliki, które zmieniono, zostają nietknięte.
cd "$(dirname "$0")" || exit 1

pokaz() { # a message that is seen, also where no terminal is open; in letters that every X font has
    for okno in "zenity --warning --title=Planszownik --text" "kdialog --title Planszownik --sorry" "xmessage -center"; do
        # shellcheck disable=SC2086
        command -v "${okno%% *}" >/dev/null 2>&1 || continue
        $okno "$1"
        return # the first of them that there is; how its window was closed doesn't matter
    done
    echo "$1" >&2
}

if ! wzorzec/uloz.sh . wzorzec/planszownik wzorzec/dane; then
    pokaz "Brak prawa do zapisu w folderze $PWD. Rozpakuj Planszownik w swoim folderze domowym."
    exit 1
fi
brak=$(ldd ./planszownik 2>/dev/null | grep 'not found')
if [ -n "$brak" ]; then
    pokaz "Brakuje bibliotek Qt 6. W Debianie: sudo apt install libqt6widgets6 qt6-translations-l10n
$brak"
    exit 1
fi
exec ./planszownik
