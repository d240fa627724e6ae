; The game: one stage after the other, tries, lives, the end.
.include "atari.inc"
.include "reguly.inc"
.include "rekord.inc"
.include "muzyka.inc"
.export graj, takt_gry, pierwszy_etap, pominiete, pytanie, pauza, klawisz_muzyki
.importzp numer_etapu, drazek, spust, wynik, efekt, zycia, otwarte, komunikat
.import wczytaj_etap, ostatni, premia, nowa_gra, nowy_etap, cofnij_probe, powtorz_probe
.import reguly_start, takt_dorvy, takt_innych, rysuj_dorve
.import pokaz_plansze, rysuj_nakladke, mrugnij_nakladka, dojdz, otworz_wyjscie, blysnij, czekaj_klatke, czekaj_klatki
.import linia_info, dwie_cyfry, ozyw_znaki
.import zacznij_panel, rysuj_panel, panel_takt, info_powitanie, info_takt
.import ekran_konca, ekran_wygranej, ekran_bez_dorvy, zagraj, cisza, dodaj_punkty
.import zapisz_etap, zagraj_utwor, muzyka_swiata, ucisz_muzyke, przelacz_muzyke

CZAS_SMIERCI = 50
PREMIA_KOLUMNA = 26                     ; the message has 17 characters, centred in 40; digits come last
CH_ESC    = 28
CH_M      = 37
CH_BRAK   = $FF
CZAS_PYTANIA = 50                       ; frames within which START or ESC has to be pressed again,
DLUZEJ_NTSC = 10                        ; and so many more in a second of NTSC

; the keys of the game, one bit each
KONSOLA   = %0111                       ; START, SELECT, OPTION: the bits of CONSOL, but 1 means pressed
ESC       = %1000
MUZYKA    = %10000                      ; the key M
W_GORZE   = %0100                       ; the bit of SKSTAT that is 1 while no key is down

; values of wynik after graj_etap that the rules don't have
PODDANA   = 0
NOWA_GRA  = 3
OD_NOWA   = 4

.segment "ZEROPAGE"
klatka:  .res 1         ; the frame that the tick began in
spoznione: .res 1       ; ticks that took longer than their frame; scripts/play-check.py expects none

.segment "BSS"
pierwszy_etap: .res 1   ; the stage that the title offers and START begins with: chosen there, or reached in the last game
pominiete: .res 1       ; stages that the game left out, as it began with a later one
powitanie_trwa: .res 1  ; 0 when it is over, 2 while the stick has been held since before
pauza:   .res 1
klawisze: .res 1        ; the keys that are down
byly_klawisze: .res 1   ; those that were down in the frame before
pytanie: .res 1         ; the message that asks for a second press, KOM_BRAK for none
czas_pytania: .res 1

.segment "CODE"

; Plays the stages from numer_etapu on until the game ends.
graj:   lda #0
        sta spoznione
        jsr ucisz_muzyke
        jsr nowa_gra
        ldx numer_etapu
        dex
        stx pominiete
@etap:  jsr nowy_etap
@proba: jsr wczytaj_etap
        jsr reguly_start
        bcc @jest
        jmp ekran_bez_dorvy
@jest:  jsr muzyka_swiata
        jsr zacznij_panel
        jsr rysuj_panel
        jsr info_powitanie
        jsr pokaz_plansze
        jsr graj_etap
        lda wynik
        cmp #ETAP_PRZESZLA
        bcc @koniec
        beq @przeszla
        cmp #NOWA_GRA
        beq @nowa_gra
        bcs @od_nowa
        jsr pokaz_strate
        dec zycia
        beq @koniec
        jsr cofnij_probe
        jmp @proba
@od_nowa:
        jsr cisza
        lda powitanie_trwa              ; nothing has happened yet
        bne @proba
        jsr powtorz_probe
        jmp @proba
@nowa_gra:
        jsr cisza
        lda pierwszy_etap
        sta numer_etapu
        jmp graj
@przeszla:
        jsr zapisz_etap
        jsr policz_premie
        lda ostatni
        bne @wygrana
        inc numer_etapu
        lda numer_etapu
        cmp #ETAPY + 1
        bcc @etap
@wygrana:
        jsr cisza
        lda #1
        sta pierwszy_etap
        jmp ekran_wygranej
@koniec:
        jsr cisza
        lda numer_etapu
        sta pierwszy_etap
        jmp ekran_konca

; Plays the loaded stage. Nothing moves before her first move and during a pause. wynik says how the stage ended.
graj_etap:
        lda #CH_BRAK
        sta CH
        lda #KONSOLA | ESC | MUZYKA
        sta byly_klawisze               ; a key that is held already doesn't count as pressed
        lda #2
        sta powitanie_trwa
        lda #0
        sta pauza
        sta pytanie
        sta czas_pytania
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
        jsr ozyw_znaki
        lda STICK0
        and #15
        eor #15
        beq @puszczony
        lda powitanie_trwa
        lsr
        bcc @klatka
        sta powitanie_trwa
        bcs @klatka
@puszczony:
        lda #1
        sta powitanie_trwa
        bne @klatka
@gra:   lda STICK0
        sta drazek
        lda STRIG0
        sta spust
        jsr takt_gry
        lda efekt
        jsr zagraj
        jsr info_takt
        jsr panel_takt
        lda RTCLOK+2
        cmp klatka
        beq :+
        inc spoznione
:       lda wynik
        beq @klatka
@koniec:
        lda #KOM_BRAK
        sta pytanie
        sta pauza
        jmp rysuj_panel

; A tick with its picture on the board.
takt_gry:
        jsr takt_dorvy
        jsr rysuj_nakladke              ; before the beam gets to the board; the other tiles may come later
        jsr ozyw_znaki
        jsr takt_innych
        lda otwarte
        beq :+
        jmp otworz_wyjscie
:       rts

; The keys mean the same in the greeting, in play and in a pause. START and ESC have to be pressed twice, since once may
; be a slip. C: the try has ended, and wynik says how.
sprawdz_klawisze:
        jsr czytaj_klawisze
        ldx #KOM_NOWA_GRA
        ldy #NOWA_GRA
        lsr
        bcs @zapytaj
        ldy #OD_NOWA
        lsr
        bcs @koniec
        lsr
        bcs @pauza
        ldx #KOM_KONIEC
        ldy #PODDANA
        lsr
        bcs @zapytaj
        lsr
        bcc :+
        jsr przelacz_muzyke
:       lda czas_pytania
        beq @nic
        dec czas_pytania
        bne @nic
        lda #KOM_BRAK                   ; there was no second press
        sta pytanie
        lda pauza
        bne @slowo_pauzy
@gramy: jsr info_powitanie
@nic:   clc
        rts
@zapytaj:
        cpx pytanie
        beq @koniec
        stx pytanie
        lda PAL
        and #NIE_PAL
        beq :+
        lda #DLUZEJ_NTSC
:       clc
        adc #CZAS_PYTANIA
        sta czas_pytania
        bne @powiedz
@pauza: lda #KOM_BRAK
        sta pytanie
        sta czas_pytania
        lda pauza
        eor #1
        sta pauza
        beq @gramy
        jsr cisza
@slowo_pauzy:
        ldx #KOM_PAUZA
@powiedz:
        stx komunikat
        jsr info_takt
        clc
        rts
@koniec:
        sty wynik
        sec
        rts

; A := the keys pressed in this frame. The repeats of a held key don't count.
czytaj_klawisze:
        lda CONSOL
        eor #$FF
        and #KONSOLA
        sta klawisze
        ldx CH
        lda #CH_BRAK
        sta CH
        lda #ESC
        cpx #CH_ESC
        beq @jeszcze
        lda #MUZYKA
        cpx #CH_M
        beq @jeszcze
        lda SKSTAT
        and #W_GORZE
        bne @jest
        lda byly_klawisze               ; some key is down; it is the one that was down before
        and #ESC | MUZYKA
@jeszcze:
        ora klawisze
        sta klawisze
@jest:  lda byly_klawisze
        eor #$FF
        and klawisze
        ldx klawisze
        stx byly_klawisze
        rts

; Where M is the only key.
klawisz_muzyki:
        jsr czytaj_klawisze
        and #MUZYKA
        beq :+
        jmp przelacz_muzyke
:       rts

; A life is lost: shows a flash and a message, and she screams.
pokaz_strate:
        jsr rysuj_dorve
        jsr dojdz
        lda #KOM_STRACILA
        sta komunikat
        jsr info_takt
        jsr cisza
        lda #UTWOR_STRATA
        jsr zagraj_utwor
        lda #EF_WYBUCH
        jsr zagraj
        jsr blysnij
        ldx #CZAS_SMIERCI
        jmp czekaj_klatki

; Writes the bonus for time at the end of its message.
pokaz_premie:
        lda premia
        jsr dwie_cyfry
        stx linia_info + PREMIA_KOLUMNA
        sta linia_info + PREMIA_KOLUMNA + 1
        rts

; Turns what is left of the bonus for time into points, ten for each.
policz_premie:
        lda #UTWOR_PRZESZLA
        jsr zagraj_utwor
        jsr dojdz
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
