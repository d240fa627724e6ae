; The game: a stage after the other, tries, lives, the end.
.include "atari.inc"
.include "reguly.inc"
.export graj
.importzp numer_etapu, drazek, spust, wynik, efekt, energia, zycia, komunikat
.import wczytaj_etap, ostatni, punkty, punkty_na_starcie, nowa_gra, reguly_start, takt, rysuj_dorve
.import pokaz_plansze, czekaj_klatke, czekaj_klatki, zacznij_panel, rysuj_panel, info_powitanie, info_takt
.import ekran_konca, ekran_wygranej, ekran_bez_dorvy, zagraj, cisza, ucisz_muzyke, dodaj_punkty

CZAS_POWITANIA = 120                    ; frames that a stage waits before it begins by itself
CZAS_SMIERCI = 80
ETAPY     = 32
CH_ESC    = 28
CH_BRAK   = $FF
KLAWISZ_SELECT = 2
KLAWISZ_OPTION = 4

.segment "ZEROPAGE"
licznik: .res 1
klatka:  .res 1         ; the frame that the tick began in
spoznione: .res 1       ; ticks that took longer than their frame: none, and scripts/play-check.sh looks

.segment "CODE"

; Plays from stage numer_etapu on, to the end of the game.
graj:   lda #0
        sta spoznione
        jsr ucisz_muzyke
        jsr nowa_gra
@etap:  ldx #2
@punkty:
        lda punkty,x
        sta punkty_na_starcie,x
        dex
        bpl @punkty
@proba: jsr wczytaj_etap
        jsr reguly_start
        bcc @jest
        jmp ekran_bez_dorvy
@jest:  jsr zacznij_panel
        jsr rysuj_panel
        jsr info_powitanie
        jsr pokaz_plansze
        jsr powitaj
        jsr graj_etap
        lda wynik
        cmp #ETAP_PRZESZLA
        beq @przeszla
        bcc @koniec                     ; given up
        dec zycia
        beq @koniec
        ldx #2                          ; the try is forgotten
@wroc:  lda punkty_na_starcie,x
        sta punkty,x
        dex
        bpl @wroc
        bmi @proba
@przeszla:
        jsr policz_energie
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

; The board stands still until fire or a move, or for a while.
powitaj:
        ldx #CZAS_POWITANIA
@czekaj:
        jsr czekaj_klatke
        lda STICK0
        and #15
        eor #15
        bne @koniec
        lda STRIG0
        beq @koniec
        dex
        bne @czekaj
@koniec:
        rts

; Plays the stage on the board. wynik tells how it ends; 0: the player has given up.
graj_etap:
        lda #CH_BRAK
        sta CH
        lda #1
        sta licznik
@klatka:
        jsr czekaj_klatke
        lda RTCLOK+2
        sta klatka
        lda CH
        cmp #CH_ESC
        beq @poddaje
        lda CONSOL
        and #KLAWISZ_SELECT
        beq @od_nowa
        lda CONSOL
        and #KLAWISZ_OPTION
        beq @pauza
        lda STICK0
        sta drazek
        lda STRIG0
        sta spust
        jsr takt
        lda efekt
        jsr zagraj
        jsr info_takt
        dec licznik                     ; the panel needs no more than every fourth frame
        bne @dalej
        lda #4
        sta licznik
        jsr rysuj_panel
@dalej: lda RTCLOK+2
        cmp klatka
        beq :+
        inc spoznione
:       lda wynik
        beq @klatka
        jsr rysuj_panel
        lda wynik
        cmp #DORVA_GINIE
        bne @gotowe
        jsr rysuj_dorve                 ; her last cry
@ginie: lda #EF_WYBUCH
        jsr zagraj
        ldx #CZAS_SMIERCI
        jmp czekaj_klatki
@od_nowa:
        jsr puszczone
        lda #DORVA_GINIE
        sta wynik
        bne @ginie
@poddaje:
        lda #CH_BRAK
        sta CH
        lda #0
        sta wynik
@gotowe:
        rts
@pauza: lda #KOM_PAUZA
        sta komunikat
        jsr info_takt
        jsr cisza
        jsr puszczone
@stoi:  jsr czekaj_klatke
        lda CONSOL
        and #KLAWISZ_OPTION
        bne @stoi
        jsr puszczone
        jmp @klatka

; Waits until all console keys are up.
puszczone:
        jsr czekaj_klatke
        lda CONSOL
        and #7
        cmp #7
        bne puszczone
        rts

; What is left of her energy turns into points, ten for each.
policz_energie:
        lda energia
        beq @koniec
        dec energia
        lda #$10
        ldx #$00
        jsr dodaj_punkty
        lda energia
        and #3
        bne policz_energie
        lda #EF_MONETA
        jsr zagraj
        jsr rysuj_panel
        jsr czekaj_klatke
        jmp policz_energie
@koniec:
        jsr rysuj_panel
        ldx #40
        jmp czekaj_klatki
