; Text screens: the title, the end of a game, the closing screen, and the message about a board without a heroine.
;
; The three title lines are in a field of 24 columns in the middle of the 40-column screen: a line's start column, 2..12,
; counts from the left edge of that field.
.include "atari.inc"
.include "rekord.inc"
.include "reguly.inc"
.include "muzyka.inc"
.include "tekst.inc"
.export tytul, klatka_ekranu, klatka_bez_gracza, wcisniete, czekaj_na_puszczenie, drazek_liczy, barwa_tekstu, ekran_konca, ekran_wygranej, ekran_bez_dorvy
.importzp numer_etapu, napis
.import pierwszy_etap, pominiete, zagraj_utwor, klawisz_muzyki, tytuly, ekran, logo, stopka, punkty, pisz_srodkiem, dwie_cyfry, pisz_bcd
.import ozyw_znaki
.import czysc_tekst, pokaz_tekst, wez_kolory, czekaj_klatke, wczytaj_etap, wez_etap, etap_probny, powitanie
.import pokaz_opisy, pokaz_gre, zapisz_wynik, wpisz_inicjaly, sa_wyniki, pisz_wyniki, pisz_gwiazdki, pisz_rekord
.import t_cel, t_grasz, t_nowy, t_klawisze1, t_klawisze2, t_klawisze3, t_klawisze4, t_wielka, t_wielka2
.import t_dalej, t_koniec, t_wynik, t_wygrana, t_wygrana2, t_brak, t_brak2

POLE      = 8                           ; screen column of the field's column 0
LINIE     = 3
W_LEWO    = %0100                       ; bits of the stick, 1 while pushed
W_PRAWO   = %1000
KLATKI_WIDOKU = 250                     ; frames for which the title shows the keys, then the best results
WIDOKI    = 4                           ; so many times, then what the tiles do, and a demonstration
WIDOK     = ekran + 10 * 40             ; where it does
WIDOK_BAJTY = 5 * 40
KLATKI_KROKU = 7
PIERWSZE_POWTORZENIE = 25               ; frames for which the stick is held until it counts again,
POWTORZENIE = 5                         ; and from then on
CZAS_EKRANU = 50                        ; frames without fire before it ends a screen, for who still hammers it
POSCIG    = 5                           ; the tracker's distance
PUNKTY    = 7                           ; column of the digits in their text
LOGO_TLO  = 3                           ; screen column of the first letter's left edge

.segment "RODATA"
; DORVA in tiles: five letters of five columns, a bit for each tile
litery: .byte %11110, %10001, %10001, %10001, %11110
        .byte %01110, %10001, %10001, %10001, %01110
        .byte %11110, %10001, %11110, %10010, %10001
        .byte %10001, %10001, %10001, %01010, %00100
        .byte %01110, %10001, %11111, %10001, %10001

.segment "ZEROPAGE"
linijka: .res 2         ; where a row of the logo is written; its low byte, where a title line is

.segment "BSS"
bity:   .res 1
litera: .res 1
rzad:   .res 1          ; the row of the logo; the bytes that are left of a title line
drazek_tytulu: .res 1
czekanie: .res 1        ; frames until stick or fire counts again
droga:  .res 1          ; how far she has come below the logo
do_kroku: .res 1        ; frames until her next step
parzyste: .res 1        ; the two tiles of the frame
nieparzyste: .res 1
poczatek: .res 1
widok:  .res 1          ; which of its views the title shows, and frames until the next one
do_widoku: .res 1
prowadzi: .res 1        ; who walks below the logo, and who follows
goni:   .res 1
cegla:  .res 1          ; what the logo is made of
barwa_tekstu: .res 1    ; the colour behind the text
swieto: .res 1          ; not 0: it changes all the time

.segment "CODE"

; The title screen. Returns when the player starts; numer_etapu is then the chosen stage.
tytul:  lda pierwszy_etap
        sta numer_etapu
        lda #1
        sta do_kroku
        lda #0
        sta droga
        sta barwa_tekstu
        sta swieto
        sta drazek_tytulu
        sta widok
        lda #KLATKI_WIDOKU
        sta do_widoku
        lda #UTWOR_TYTUL
        jsr zagraj_utwor
        lda #IDZIE_PRAWO
        sta prowadzi
        lda #TROPICIEL + PRAWO
        sta goni
        lda #BLOK
        sta cegla
        jsr rysuj_tytul
@czekaj:
        jsr klatka_tytulu
        jsr wcisniete
        bne @drazek
@gra:   jmp czekaj_na_puszczenie
@drazek:
        dec do_widoku
        bne :+
        lda #KLATKI_WIDOKU
        sta do_widoku
        inc widok
        lda widok
        cmp #WIDOKI
        bcc @widok
        jsr pokaz_opisy
        bcs @przerwane
        jsr pokaz_gre
@przerwane:
        jsr wcisniete
        beq @gra
        jsr drazek_liczy                ; a stick that ended it doesn't choose
        lda #0
        sta widok
        jsr rysuj_tytul
        jmp @czekaj
@widok: jsr rysuj_widok
:       jsr etap_probny
        bcs @czekaj
        jsr drazek_liczy
        cmp #W_LEWO
        beq @wstecz
        cmp #W_PRAWO
        bne @czekaj
        ldx numer_etapu
        inx
        cpx #ETAPY + 1
        bcc @etap
        ldx #1
        bne @etap
@wstecz:
        ldx numer_etapu
        dex
        bne @etap
        ldx #ETAPY
@etap:  stx numer_etapu
        stx pierwszy_etap
        jsr wez_etap
        jsr wez_kolory
        jsr nazwij_etap
        lda #0
        sta widok
        lda #KLATKI_WIDOKU
        sta do_widoku
        jsr rysuj_widok
        jmp @czekaj

; A := the directions of the stick that count in this frame, 0 for none: when it moves, and again and again while it is
; held.
drazek_liczy:
        lda STICK0
        eor #15
        ldx #PIERWSZE_POWTORZENIE
        cmp drazek_tytulu
        bne @liczy_sie
        dec czekanie
        bne @nie
        ldx #POWTORZENIE
@liczy_sie:
        stx czekanie
        sta drazek_tytulu
        ora #0
        rts
@nie:   lda #0
        rts

; Shows the title for stage numer_etapu: the logo has the tiles and colours of that stage.
rysuj_tytul:
        jsr wczytaj_etap
        lda #MUR_H
        ldy #MUR_H
        jsr rysuj_logo
        jsr pisz_linie
        pisz_w 6, t_nowy
        jsr etap_probny
        bcc :+
        lda #0
        sta ekran + 6 * 40 + 14         ; no arrows
        sta ekran + 6 * 40 + 24
:       jsr nazwij_etap
        pisz_w 9, t_grasz
        jsr rysuj_widok
        jmp pokaz_tekst

; Writes the number of the chosen stage, its greeting, and what has been achieved.
nazwij_etap:
        lda numer_etapu
        jsr dwie_cyfry
        stx ekran + 6 * 40 + 21
        sta ekran + 6 * 40 + 22
        ldx #31
@znak:  lda powitanie,x
        sta ekran + 7 * 40 + 4,x
        dex
        bpl @znak
        jsr etap_probny
        bcs :+
        jsr pisz_gwiazdki
        jsr pisz_rekord
:       rts

; Writes the keys or, by turns, the best results, if there are any.
rysuj_widok:
        ldx #WIDOK_BAJTY
        lda #0
@czysc: sta WIDOK - 1,x
        dex
        bne @czysc
        jsr sa_wyniki
        beq @klawisze
        lda widok
        lsr
        bcc @klawisze
        jmp pisz_wyniki
@klawisze:
        pisz_w 10, t_cel
        pisz_w 11, t_klawisze1
        pisz_w 12, t_klawisze2
        pisz_w 13, t_klawisze3
        pisz_w 14, t_klawisze4
        rts

; Game over.
ekran_konca:
        lda #WYBUCH
        ldy #WYBUCH + 3
        jsr rysuj_logo
        pisz_w 4, t_koniec
        jsr pisz_wynik
        lda #UTWOR_KONIEC
        jmp czekaj_na_gracza

; The last stage is done.
ekran_wygranej:
        inc swieto
        lda pominiete
        bne @zwykla
        jsr etap_probny
        bcs @zwykla
        lda #TROPICIEL + PRAWO          ; now she follows the tracker
        sta prowadzi
        lda #IDZIE_PRAWO
        sta goni
        lda #MASKA
        sta cegla
        lda #MONETA
        ldy #POCHODNIA
        jsr rysuj_logo
        pisz_w 1, t_wygrana
        pisz_w 3, t_wielka
        pisz_w 5, t_wielka2
        jmp @wynik
@zwykla:
        lda #MASKA
        ldy #MONETA
        jsr rysuj_logo
        pisz_w 3, t_wygrana
        pisz_w 5, t_wygrana2
@wynik:
        jsr pisz_wynik
        lda #UTWOR_WYGRANA
        jmp czekaj_na_gracza

ekran_bez_dorvy:
        lda #ZIEMIA
        ldy #ZIEMIA
        jsr rysuj_logo
        pisz_w 4, t_brak
        pisz_w 6, t_brak2
        lda #UTWOR_TYTUL
; Shows the screen, with tune A, until the trigger or START is pressed, not before it has been let go for a while. A
; result for the table needs initials before.
czekaj_na_gracza:
        jsr zagraj_utwor
        jsr pokaz_tekst
        lda #CZAS_EKRANU
        sta czekanie
@puszczony:
        jsr klatka_ekranu
        jsr wcisniete
        beq @puszczony
        dec czekanie
        bne @puszczony
        jsr zapisz_wynik
        bcs :+
        jsr wpisz_inicjaly
:       pisz_w 12, t_dalej
@czekaj:
        jsr klatka_ekranu
        jsr wcisniete
        bne @czekaj
czekaj_na_puszczenie:
        jsr czekaj_klatke
        jsr wcisniete
        beq czekaj_na_puszczenie
        rts

; Z: the trigger or START is pressed.
wcisniete:
        lda CONSOL
        and #1
        and STRIG0
        rts

; A frame of what the title shows by itself. C: the stick has moved, or the trigger or START been pressed.
klatka_bez_gracza:
        jsr czekaj_klatke
        jsr klawisz_muzyki
        jsr wcisniete
        beq @gracz
        lda STICK0
        eor #15
        cmp #1
        rts
@gracz: sec
        rts

pisz_wynik:
        pisz_w 8, t_wynik
        ldx #0
        ldy #PUNKTY                     ; napis is where the text begins
@cyfry: lda punkty,x
        jsr pisz_bcd
        inx
        cpx #3
        bne @cyfry
        rts

; Prepares an empty text screen between two rows of tiles, A and Y by turns, with the name in blocks at the top.
rysuj_logo:
        sta parzyste
        sty nieparzyste
        jsr czysc_tekst
        ldx #38
@ramka: lda parzyste
        sta logo,x
        sta stopka,x
        lda nieparzyste
        sta logo + 1,x
        sta stopka + 1,x
        dex
        dex
        bpl @ramka
        lda #<(logo + 2 * 40 + LOGO_TLO)
        sta linijka
        lda #>(logo + 2 * 40 + LOGO_TLO)
        sta linijka+1
        lda #0
        sta rzad
@rzad:  lda #0
        sta litera
        ldy #0
@litera:
        lda litera                      ; the letter's row: 5 * litera + rzad
        asl
        asl
        adc litera
        adc rzad
        tax
        lda litery,x
        asl
        asl
        asl
        sta bity
        sty poczatek
@bit:   asl bity
        bcc :+
        lda cegla
        sta (linijka),y
:       iny
        tya
        sec
        sbc poczatek
        cmp #5
        bne @bit
        iny
        iny
        inc litera
        lda litera
        cmp #5
        bne @litera
        clc
        lda linijka
        adc #40
        sta linijka
        bcc :+
        inc linijka+1
:       inc rzad
        lda rzad
        cmp #5
        bne @rzad
        rts

; A frame of a screen at the end of a game.
klatka_ekranu:
        lda swieto
        beq klatka_tytulu
        lda RTCLOK+2                    ; the next hue every 32 frames
        lsr
        and #$F0
        sta barwa_tekstu
; Waits for the next frame of a text screen, whose key is M.
klatka_tytulu:
        jsr czekaj_klatke
        jsr klawisz_muzyki
; Below the name the heroine walks across the screen, followed by a tracker, or the other way round.
idz_pod_logo:
        jsr ozyw_znaki
        dec do_kroku
        bne @nic
        lda #KLATKI_KROKU
        sta do_kroku
        ldx droga
        inx
        cpx #40 + POSCIG
        bcc :+
        ldx #0
:       stx droga
        lda #0
        ldy #39
@czysc: sta logo + (LOGO_WIERSZE - 1) * 40,y
        dey
        bpl @czysc
        cpx #40
        bcs @tropiciel
        lda prowadzi
        sta logo + (LOGO_WIERSZE - 1) * 40,x
@tropiciel:
        cpx #POSCIG
        bcc @nic
        lda goni
        sta logo + (LOGO_WIERSZE - 1) * 40 - POSCIG,x
@nic:   rts

; Writes the three title lines, each from its start column on; 155 fills them up and isn't shown.
pisz_linie:
        ldy #0                          ; Y: the byte of the lines, X: its place on the screen
        tya
@linia: sta linijka
        clc
        adc tytuly,y
        tax
        lda #TYTUL_BAJTY - 1
        sta rzad
@znak:  iny
        lda tytuly,y
        cmp #TYTUL_KONIEC
        beq :+
        sta ekran + POLE,x
        inx
:       dec rzad
        bne @znak
        iny
        lda linijka                     ; two screen lines down
        clc
        adc #2 * 40
        cmp #LINIE * 2 * 40
        bne @linia
        rts
