; Gives the symbols of the rules the names that C uses, and calls them in C's way.
.macro export name
        .import name
        .export .ident(.concat("_", .string(name))) := name
.endmacro
.macro export_zp name
        .importzp name
        .exportzp .ident(.concat("_", .string(name))) := name
.endmacro
        export plansza
        export pod
        export stan
        export zapach
        export punkty
        export cel_masek
        export monety
        export premia
        export reguly_start
        export nowa_gra
        export nowy_etap
        export cofnij_probe
        export powtorz_probe
        export zagraj
        export graj_dzwiek
        export cisza
        export_zp drazek
        export_zp spust
        export_zp wynik
        export_zp efekt
        export_zp komunikat
        export_zp energia
        export_zp zycia
        export_zp klucze
        export_zp bomby
        export_zp brak_masek
        export_zp maszyna_stoi
        export_zp pochodnia
        export_zp otwarte
        export_zp dorva_x
        export_zp dorva_y

; void takt(void): one tick
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

; Linked in front of the rules, so that their variables begin here.
.export _zp_begin, _bss_begin
.segment "ZEROPAGE"
zp:
.segment "BSS"
bss:
.segment "RODATA"
_zp_begin:  .addr zp
_bss_begin: .addr bss
