; A stage from start to end: reguly_start prepares the rules for the board, takt is one tick of play. The game calls the
; two halves of takt one by one and draws the heroine in between.
;
; In: plansza and cel_masek before reguly_start; drazek (like STICK0, bits are 0 while pushed) and spust (like STRIG0, 0
; while pressed) before takt. Out: wynik, efekt, komunikat and the figures of the panel.
.include "reguly.inc"
.export reguly_start, takt, takt_dorvy, takt_innych, nowa_gra, nowy_etap, cofnij_probe, powtorz_probe
.export cel_masek, monety, zycia_za_monety, zycia_w_probie, premia
.exportzp drazek, spust, wynik, efekt, komunikat, energia, zycia, klucze, bomby, brak_masek
.exportzp maszyna_stoi, pochodnia, otwarte, po_przeskoku
.importzp kolej, dorva, ziarno, glebokosc
.import plansza, pod, stan, zapach, dorva_inv, punkty
.import dorva_takt, podstaw_dorve, policz_wspolrzedne, spisz_magie, otworz, ruszaj, nowa_kolej

ZYCIA_NA_START = 3
CENA_BAGNA = 15                         ; what a try begun anew costs for each step that she has sunk

.segment "ZEROPAGE"
drazek: .res 1
spust:  .res 1
wynik:  .res 1
efekt:  .res 1
komunikat: .res 1
energia: .res 1
zycia:  .res 1
klucze: .res 1
bomby:  .res 1
brak_masek: .res 1      ; masks still to be taken
maszyna_stoi: .res 1
pochodnia: .res 1
otwarte: .res 1
po_przeskoku: .res 1    ; she has leapt in this tick
numer:  .res 1
adres:  .res 2          ; the cell that reguly_start looks at
w_stanie: .res 2

.segment "BSS"
na_starcie: .res 4      ; points and coins at the start of the stage
cel_masek: .res 1
monety: .res 1          ; coins since the last extra life
zycia_za_monety: .res 1 ; lives that coins have brought on this stage, in all tries,
zycia_w_probie: .res 1  ; and how many the coins of this try are worth
energia_na_starcie: .res 1 ; of this try
premia: .res 1          ; the bonus for time, and the ticks until it loses one
do_premii: .res 1

.segment "CODE"

; Sets the figures that stay from stage to stage.
nowa_gra:
        lda #ZYCIA_NA_START
        sta zycia
        lda #0
        sta monety
        sta punkty
        sta punkty+1
        sta punkty+2
        rts

; Begins a stage, before its first try.
nowy_etap:
        ldx #2
:       lda punkty,x
        sta na_starcie,x
        dex
        bpl :-
        lda monety
        sta na_starcie + 3
        lda #0
        sta zycia_za_monety
        beq nowe_sily

; Forgets a lost try, with its points and coins; the next one begins with full energy.
cofnij_probe:
        jsr bez_zdobyczy
nowe_sily:
        lda #ENERGIA_PELNA
        sta energia
        lda #PREMIA_PELNA
        sta premia
        rts

; Forgets a try that the player begins anew. She keeps the energy that she has, but not what elixirs have added to that of
; the start, since they are there again; out of the swamp it costs some, but not her life. The next try earns no bonus for
; time.
powtorz_probe:
        lda #0
        sta premia
        lda energia
        cmp energia_na_starcie
        bcc :+
        lda energia_na_starcie
:       ldx glebokosc
@bagno: dex
        bmi @gotowe
        sec
        sbc #CENA_BAGNA
        beq @malo
        bcs @bagno
@malo:  lda #1
        bne @bagno
@gotowe:
        sta energia
bez_zdobyczy:
        ldx #2
:       lda na_starcie,x
        sta punkty,x
        dex
        bpl :-
        lda na_starcie + 3
        sta monety
        rts

; Prepares the rules for a try on the board; her energy and the bonus for time are set already. C: there is no heroine.
reguly_start:
        ldx #0
        txa
@czysc:
    .repeat 4, I
        sta pod + I * 256,x
        sta stan + I * 256,x
        sta zapach + I * 256,x
    .endrepeat
        inx
        bne @czysc
        sta klucze
        sta bomby
        sta wynik
        sta efekt
        sta komunikat
        sta maszyna_stoi
        sta pochodnia
        sta otwarte
        sta po_przeskoku
        sta zycia_w_probie
        sta kolej
        sta dorva
        sta dorva+1
        lda energia
        sta energia_na_starcie
        lda #TAKTY_PREMII
        sta do_premii
        lda #$5A                        ; the same random numbers in every try
        sta ziarno
        sta ziarno+1
        jsr oznacz_brzeg
        jsr spisz_plansze
        jsr spisz_magie
        lda dorva
        ora dorva+1
        sec
        beq @nie_ma
        jsr policz_wspolrzedne
        jsr podstaw_dorve
        jsr nowa_kolej
        lda cel_masek
        sta brak_masek
        bne :+
        jsr otworz
:       clc
@nie_ma:
        rts

; Marks the edge: nothing enters it and nothing on it acts.
oznacz_brzeg:
        lda #S_BRZEG
        ldx #KOLUMNY - 1
@poziomo:
        sta stan,x
        sta stan + (WIERSZE - 1) * KOLUMNY,x
        dex
        bpl @poziomo
        lda #<stan
        sta w_stanie
        lda #>stan
        sta w_stanie+1
        ldx #WIERSZE
@pionowo:
        lda #S_BRZEG
        ldy #0
        sta (w_stanie),y
        ldy #KOLUMNY - 1
        sta (w_stanie),y
        clc
        lda w_stanie
        adc #KOLUMNY
        sta w_stanie
        bcc :+
        inc w_stanie+1
:       dex
        bne @pionowo
        rts

; Finds the first heroine inside the edge and numbers the magic objects: odd, even, odd...
spisz_plansze:
        lda #>plansza
        sta adres+1
        lda #>stan
        sta w_stanie+1
        ldy #0                          ; the low byte of the cell, since both begin at a page
        sty adres
        sty w_stanie
        sty numer
@pole:  lda (w_stanie),y
        and #S_BRZEG
        bne @dalej
        lda (adres),y
        and #$7F
        cmp #DORVA
        beq @ona
        cmp #MAGICZNY
        bne @dalej
        lda numer
        sta (w_stanie),y
        eor #1
        sta numer
@dalej: iny
        bne :+
        inc adres+1
        inc w_stanie+1
:       cpy #<POLA
        bne @pole
        lda adres+1
        cmp #>(plansza + POLA)
        bne @pole
        rts
@ona:   lda dorva
        ora dorva+1
        bne @dalej                      ; the first one counts
        lda (adres),y
        and #INV
        sta dorva_inv
        sty dorva
        lda adres+1
        sec
        sbc #>plansza
        sta dorva+1
        bcs @dalej

; One tick.
takt:   jsr takt_dorvy
; The second half of a tick: all other tiles.
takt_innych:
        lda wynik
        bne @koniec
        lda po_przeskoku                ; the other tiles wait while she leaps
        bne @po
        jsr ruszaj
@po:    lda #0
        sta po_przeskoku
        dec do_premii
        bne @koniec
        lda #TAKTY_PREMII
        sta do_premii
        lda premia
        beq @koniec
        dec premia
@koniec:
        rts

; The first half of a tick: the heroine.
takt_dorvy:
        lda #EF_BRAK
        sta efekt
        jmp dorva_takt
