; The loader map: every segment header, bank switch and filler of the file.
;
; A loader writes each segment to the memory that the processor sees, so a segment of one byte at PORTB switches the bank
; for all that follow. The order is the same as in szablon.cfg.
.include "atari.inc"
.include "rekord.inc"
.import sprawdz_pamiec, start

.macro naglowek adres, bajty
        .word adres, adres + bajty - 1
.endmacro

.macro wlacz bank
        naglowek PORTB, 1
        .byte bank
.endmacro

; Filler: a segment of zeros into a bank that nobody reads.
.macro zapas bajty
        naglowek OKNO, bajty
        .res bajty, 0
.endmacro

; A stage of the sample set. The builder replaces them all, a test build only the first.
.macro etap bank, miejsce
        naglowek OKNO + miejsce * ETAP_ODSTEP, ETAP_BAJTY
        .incbin .sprintf("DETAP.%d", bank * 16 + miejsce + 1), 0, ETAP_BAJTY
.endmacro

.segment "N_TEST"
        .word $FFFF
        naglowek $0600, $0100
.segment "N_INIT"
        naglowek INITAD, 2
        .word sprawdz_pamiec
.segment "N_KOD"
        naglowek $2000, $2000
.segment "N_DANE"
        naglowek $8000, $2000

.segment "ZAPAS0"
        wlacz BANK3
        zapas 13060 - 5 - 4 - 5
        wlacz BANK0

.segment "ETAPY0"
    .repeat 16, I
        etap 0, I
    .endrepeat
.segment "BANK1"
        wlacz BANK1
.segment "ETAPY1"
    .repeat 16, I
        etap 1, I
    .endrepeat

.segment "ZAPAS1"
        wlacz BANK2
        zapas $4000
        wlacz BANK3
        zapas $4000
        zapas $4000
        zapas 56535 - 3 * ($4000 + 4) - 4 - 3 * 5 - 4
        wlacz GLOWNA
        naglowek $BB00, 3 * TYTUL_BAJTY

.segment "TYTULY"
.export tytuly
tytuly:
        .byte 3                         ; "DORVA PLANSZOWNIK!"
        .byte 36,47,50,54,33,0,48,44,33,46,51,58,47,55,46,41,43,1
        .res 3, TYTUL_KONIEC
    .repeat 2
        .byte 12
        .res 21, TYTUL_KONIEC
    .endrepeat

.segment "OGON"
        wlacz BANK3
        zapas 2187 - 5 - 4 - 5 - 6
        wlacz GLOWNA
        naglowek RUNAD, 2
        .word start
