; The names of the rules as C knows them.
.macro daj nazwa
        .import nazwa
        .export .ident(.concat("_", .string(nazwa))) := nazwa
.endmacro
.macro daj_zp nazwa
        .importzp nazwa
        .exportzp .ident(.concat("_", .string(nazwa))) := nazwa
.endmacro
        daj plansza
        daj pod
        daj stan
        daj zapach
        daj punkty
        daj cel_masek
        daj monety
        daj premia
        daj reguly_start
        daj nowa_gra
        daj nowy_etap
        daj cofnij_probe
        daj powtorz_probe
        daj zagraj
        daj graj_dzwiek
        daj cisza
        daj_zp drazek
        daj_zp spust
        daj_zp wynik
        daj_zp efekt
        daj_zp komunikat
        daj_zp energia
        daj_zp zycia
        daj_zp klucze
        daj_zp bomby
        daj_zp brak_masek
        daj_zp maszyna_stoi
        daj_zp pochodnia
        daj_zp otwarte
        daj_zp dorva_x
        daj_zp dorva_y

; void takt_gry(void): one tick, with cc65's page zero left alone
.import takt
.export _takt
_takt := takt

; unsigned char start(void): 1 if there is a heroine
.export _start
.segment "CODE"
_start: jsr reguly_start
        lda #0
        bcs :+
        lda #1
:       ldx #0
        rts

; Linked in front of the rules: here begin their variables.
.export _zp_poczatek, _bss_poczatek
.segment "ZEROPAGE"
zp:
.segment "BSS"
bss:
.segment "RODATA"
_zp_poczatek:  .addr zp
_bss_poczatek: .addr bss
