#!/bin/sh
# start.sh [PROGRAM]: uruchamia Planszownik albo przegląd etapów (przeglad), a jeśli się nie da, mówi dlaczego.
cd "$(dirname "$0")" || exit 1
program=${1-planszownik}

odmow() { # shows a message even if no terminal is open, in letters that every X font has
    echo "$1" >&2
    for okno in "zenity --warning --title=Planszownik --text" "kdialog --title Planszownik --sorry" "xmessage -center"; do
        # shellcheck disable=SC2086
        command -v "${okno%% *}" >/dev/null 2>&1 || continue
        $okno "$1"
        break # one of these programs is enough, however its window was closed
    done
    exit 1
}

[ -f "$program" ] || odmow "W folderze $PWD brakuje pliku $program. Rozpakuj jeszcze raz plik .tar.gz."
[ -x "$program" ] || chmod +x "$program" 2>/dev/null # a copy from a stick may have lost the right
[ -x "$program" ] || odmow "System nie pozwala na start z folderu $PWD (noexec). Skopiuj go do swojego folderu domowego."
[ -w . ] || odmow "Brak prawa do zapisu w folderze $PWD. Skopiuj go do swojego folderu domowego."
brak=$(ldd "./$program" 2>/dev/null | grep 'not found')
[ -z "$brak" ] || odmow "Brakuje bibliotek Qt 6. W Debianie: sudo apt install libqt6widgets6
$brak"
exec "./$program"
