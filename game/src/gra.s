; The game: a stage after the other, tries, lives, the end.
.include "atari.inc"
.include "reguly.inc"
.export graj, pierwszy_etap
.importzp numer_etapu, drazek, spust, wynik, efekt, zycia, otwarte, komunikat
.import wczytaj_etap, ostatni, premia, nowa_gra, nowy_etap, cofnij_probe, reguly_start, takt, rysuj_dorve
.import pokaz_plansze, rysuj_nakladke, mrugnij_nakladka, otworz_wyjscie, blysnij, czekaj_klatke, czekaj_klatki
.import linia_info, dwie_cyfry
.import zacznij_panel, rysuj_panel, info_powitanie, info_takt
.import ekran_konca, ekran_wygranej, ekran_bez_dorvy, zagraj, cisza, ucisz_muzyke, dodaj_punkty

CZAS_SMIERCI = 50
PREMIA_KOLUMNA = 26                     ; 17 letters in the middle of 40, the figures last
ETAPY     = 32
CH_ESC    = 28
CH_BRAK   = $FF
KLAWISZE  = %111                        ; START, SELECT, OPTION

; what wynik says beside the rules' own results, once graj_etap has returned
PODDANA   = 0
NOWA_GRA  = 3

.segment "ZEROPAGE"
klatka:  .res 1         ; the frame that the tick began in
spoznione: .res 1       ; ticks that took longer than their frame: none, and scripts/play-check.py looks

.segment "BSS"
pierwszy_etap: .res 1   ; the stage that the player has chosen
do_panelu: .res 1       ; frames until the panel is written again
powitanie_trwa: .res 1
pauza:   .res 1
byly_klawisze: .res 1   ; console keys that were down in the frame before

.segment "CODE"

; Plays from stage numer_etapu on, to the end of the game.
graj:   lda #0
        sta spoznione
        jsr ucisz_muzyke
        jsr nowa_gra
@etap:  jsr nowy_etap
@proba: jsr wczytaj_etap
        jsr reguly_start
        bcc @jest
        jmp ekran_bez_dorvy
@jest:  jsr zacznij_panel
        jsr rysuj_panel
        jsr info_powitanie
        jsr pokaz_plansze
        jsr graj_etap
        lda wynik
        cmp #ETAP_PRZESZLA
        bcc @koniec
        beq @przeszla
        cmp #NOWA_GRA
        beq @od_nowa
        jsr pokaz_strate
        dec zycia
        beq @koniec
        jsr cofnij_probe
        jmp @proba
@od_nowa:
        jsr cisza
        lda pierwszy_etap
        sta numer_etapu
        jmp graj
@przeszla:
        jsr policz_premie
        lda ostatni
        bne @wygrana
        inc numer_etapu
        lda numer_etapu
        cmp #ETAPY + 1
        bcc @etap
@wygrana:
        jsr cisza
        jmp ekran_wygranej
@koniec:
        jsr cisza
        jmp ekran_konca

; Plays the stage on the board, which stands still until her first move and in a pause. wynik tells how it ends.
graj_etap:
        lda #CH_BRAK
        sta CH
        lda #KLAWISZE
        sta byly_klawisze               ; what is held already is no press
        lda #1
        sta do_panelu
        sta powitanie_trwa
        lda #0
        sta pauza
@klatka:
        jsr czekaj_klatke
        lda RTCLOK+2
        sta klatka
        jsr sprawdz_klawisze
        bcs @koniec
        lda pauza
        bne @klatka
        lda powitanie_trwa
        beq @gra
        jsr mrugnij_nakladka
        lda STICK0
        and #15
        eor #15
        beq @klatka
        lda #0
        sta powitanie_trwa
        beq @klatka
@gra:   lda STICK0
        sta drazek
        lda STRIG0
        sta spust
        jsr takt
        jsr rysuj_nakladke
        lda otwarte
        beq :+
        jsr otworz_wyjscie
:       lda efekt
        jsr zagraj
        jsr info_takt
        dec do_panelu                   ; the panel needs no more than every fourth frame
        bne :+
        lda #4
        sta do_panelu
        jsr rysuj_panel
:       lda RTCLOK+2
        cmp klatka
        beq :+
        inc spoznione
:       lda wynik
        beq @klatka
@koniec:
        jmp rysuj_panel

; The keys mean the same in the greeting, in play and in a pause. C: one of them has ended the try, wynik tells how.
sprawdz_klawisze:
        lda CH
        ldx #CH_BRAK
        stx CH
        cmp #CH_ESC
        beq @poddana
        lda CONSOL
        eor #$FF
        and #KLAWISZE
        tax
        eor byly_klawisze               ; down now and not before
        stx byly_klawisze
        and byly_klawisze
        lsr
        bcs @nowa_gra
        lsr
        bcs @od_nowa
        lsr
        bcc @nic
        lda pauza
        eor #1
        sta pauza
        beq @gramy
        jsr cisza
        lda #KOM_PAUZA
        sta komunikat
        jsr info_takt
        clc
        rts
@gramy: jsr info_powitanie
        clc
@nic:   rts
@poddana:
        lda #PODDANA
        beq @koniec
@nowa_gra:
        lda #NOWA_GRA
        bne @koniec
@od_nowa:
        lda #DORVA_GINIE
@koniec:
        sta wynik
        sec
        rts

; A life is lost: a flash, her last cry, a word.
pokaz_strate:
        jsr rysuj_dorve
        jsr rysuj_nakladke
        lda #KOM_STRACILA
        sta komunikat
        jsr info_takt
        jsr cisza
        lda #EF_WYBUCH
        jsr zagraj
        jsr blysnij
        ldx #CZAS_SMIERCI
        jmp czekaj_klatki

; The bonus for time in figures, at the end of its message.
pokaz_premie:
        lda premia
        jsr dwie_cyfry
        stx linia_info + PREMIA_KOLUMNA
        sta linia_info + PREMIA_KOLUMNA + 1
        rts

; What is left of the bonus for time turns into points, ten for each.
policz_premie:
        lda #KOM_PREMIA
        sta komunikat
        jsr info_takt
        jsr pokaz_premie
        ldx #25
        jsr czekaj_klatki
@licz:  lda premia
        beq @koniec
        dec premia
        lda #$10
        ldx #$00
        jsr dodaj_punkty
        lda premia
        and #3
        bne @licz
        jsr pokaz_premie
        lda #EF_MONETA
        jsr zagraj
        jsr rysuj_panel
        jsr czekaj_klatke
        jmp @licz
@koniec:
        jsr rysuj_panel
        ldx #40
        jmp czekaj_klatki
