; What the player has achieved since the game was loaded: the best five results, the finished stages and the best bonus
; on each. RESET keeps it. A test game has none of it.
.include "atari.inc"
.include "rekord.inc"
.include "tekst.inc"
.export zeruj_rekordy, zapisz_etap, zapisz_wynik, wpisz_inicjaly, sa_wyniki, pisz_wyniki, pisz_gwiazdki, pisz_rekord
.importzp numer_etapu, napis
.import premia, punkty, ekran, pisz, pisz_srodkiem, dwie_cyfry, pisz_bcd
.import etap_probny, klatka_ekranu, wcisniete, czekaj_na_puszczenie, drazek_liczy, t_rekord, t_inicjaly, t_litery

WPISY     = 5
WPIS      = 6                           ; bytes of a result: three letters, three of points
LITERY    = 3
WIERSZ_WYNIKOW = 10
KOLUMNA_WYNIKOW = 13
INICJALY  = ekran + 10 * 40 + 26        ; behind their text
REKORD    = ekran + 6 * 40 + 27        ; behind the number of the stage
KOLUMNY_REKORDU = 9
GWIAZDKA  = 10
KROPKA    = 14
ODWROTNIE = $80                         ; of a character: dark on light

.segment "RODATA"
alfabet: .byte "AaBCcDEeFGHIJKLlMNnOoPQRSsTUVWXYZxz "
ALFABET = * - alfabet

.segment "BSS"
wyniki: .res WPISY * WPIS
premie: .res ETAPY      ; of each stage: 0, or else it has been finished, and the best bonus plus one
REKORDY = * - wyniki
inicjaly: .res LITERY   ; those entered last
miejsce: .res 1         ; where the new result stands in wyniki
ktora:  .res 1          ; the letter to be chosen; in the table, the digit in front of a result

.segment "CODE"

zeruj_rekordy:
        ldx #REKORDY
        lda #0
@zeruj: sta wyniki - 1,x
        dex
        bne @zeruj
        lda alfabet
        sta inicjaly
        sta inicjaly+1
        sta inicjaly+2
        rts

; The stage has been finished, with the bonus that is left.
zapisz_etap:
        jsr etap_probny
        bcs @nie
        ldx numer_etapu
        ldy premia
        iny
        tya
        cmp premie - 1,x
        bcc @nie
        sta premie - 1,x
@nie:   rts

; Puts the points into the table. C: they are too few, or the game is a test.
zapisz_wynik:
        jsr etap_probny
        bcs @nie
        ldy #0
@szukaj:
        lda wyniki + LITERY + 2,y
        cmp punkty+2
        lda wyniki + LITERY + 1,y
        sbc punkty+1
        lda wyniki + LITERY,y
        sbc punkty
        bcc @tu
        tya
        adc #WPIS - 1                   ; carry is set
        tay
        cpy #WPISY * WPIS
        bcc @szukaj
@nie:   rts
@tu:    sty miejsce
        ldx #(WPISY - 1) * WPIS
@nizej: cpx miejsce
        beq @wpisz
        lda wyniki - 1,x
        sta wyniki + WPIS - 1,x
        dex
        bpl @nizej
@wpisz: ldx #0
@bajt:  lda inicjaly,x
        sta wyniki,y
        lda punkty,x
        sta wyniki + LITERY,y
        iny
        inx
        cpx #LITERY
        bne @bajt
        clc
        rts

; The player chooses the initials of the new result with the stick. START leaves them as they are.
wpisz_inicjaly:
        pisz_w WIERSZ_WYNIKOW, t_inicjaly
        pisz_w 12, t_litery
        lda #0
        sta ktora
        jsr czekaj_na_puszczenie
        jsr drazek_liczy                ; one that is held already doesn't count at once
@klatka:
        jsr pokaz_inicjaly
        jsr klatka_ekranu
        jsr wcisniete
        beq @dalej
        jsr drazek_liczy
        beq @klatka
        ldx ktora
        lsr
        bcs @nastepna
        lsr
        bcs @poprzednia
        lsr
        bcs @wstecz
        cpx #LITERY - 1
        bcs @klatka
        inc ktora
        bne @klatka
@wstecz:
        txa
        beq @klatka
        dec ktora
        bpl @klatka
@nastepna:
        jsr litera
        iny
        cpy #ALFABET
        bcc @zmien
        ldy #0
        beq @zmien
@poprzednia:
        jsr litera
        dey
        bpl @zmien
        ldy #ALFABET - 1
@zmien: lda alfabet,y
        sta wyniki,x
        jmp @klatka
@dalej: lda CONSOL
        lsr
        bcs :+
        lda #LITERY - 1                 ; START: all of them
        sta ktora
:       jsr czekaj_na_puszczenie
        inc ktora
        lda ktora
        cmp #LITERY
        bcc @klatka
; Writes the initials, the one to be chosen dark on light, and keeps them.
pokaz_inicjaly:
        ldx miejsce
        ldy #0
@litera:
        lda wyniki,x
        sta inicjaly,y
        cpy ktora
        bne :+
        ora #ODWROTNIE
:       sta INICJALY,y
        inx
        iny
        cpy #LITERY
        bne @litera
        rts

; X := where the letter to be chosen stands in wyniki, Y := its place in the alphabet.
litera: lda miejsce
        clc
        adc ktora
        tax
        ldy #ALFABET - 1
@szukaj:
        lda alfabet,y
        cmp wyniki,x
        beq @jest
        dey
        bne @szukaj
@jest:  rts

; Z: there are no results yet.
sa_wyniki:
        lda wyniki + LITERY
        ora wyniki + LITERY + 1
        ora wyniki + LITERY + 2
        rts

; Writes the best five.
pisz_wyniki:
        lda #<(ekran + WIERSZ_WYNIKOW * 40 + KOLUMNA_WYNIKOW)
        sta napis
        lda #>(ekran + WIERSZ_WYNIKOW * 40 + KOLUMNA_WYNIKOW)
        sta napis+1
        lda #17                         ; the digit 1
        sta ktora
        ldx #0
@wpis:  lda wyniki + LITERY,x
        ora wyniki + LITERY + 1,x
        ora wyniki + LITERY + 2,x
        beq @koniec                     ; no more results
        ldy #0
        lda ktora
        sta (napis),y
        iny
        lda #KROPKA
        sta (napis),y
        iny
@litera:
        iny
        lda wyniki,x
        sta (napis),y
        inx
        cpy #2 + LITERY
        bne @litera
        iny
        iny
@cyfry: lda wyniki,x
        jsr pisz_bcd
        inx
        cpy #4 + LITERY + 6
        bne @cyfry
        clc
        lda napis
        adc #40
        sta napis
        bcc :+
        inc napis+1
:       inc ktora
        cpx #WPISY * WPIS
        bne @wpis
@koniec:
        rts

; Writes a mark for each stage, a star if it has been finished; that of stage numer_etapu is dark on light.
pisz_gwiazdki:
        ldx #ETAPY
@etap:  ldy #KROPKA
        lda premie - 1,x
        beq :+
        ldy #GWIAZDKA
:       tya
        cpx numer_etapu
        bne :+
        ora #ODWROTNIE
:       sta ekran + 8 * 40 + 3,x
        dex
        bne @etap
        rts

; Writes the best bonus on stage numer_etapu behind its number, if it has been finished.
pisz_rekord:
        lda #0
        ldx #KOLUMNY_REKORDU
@czysc: sta REKORD - 1,x
        dex
        bne @czysc
        ldx numer_etapu
        lda premie - 1,x
        beq @nie
        pha
        lda #<REKORD
        sta napis
        lda #>REKORD
        sta napis+1
        lda #<t_rekord
        ldx #>t_rekord
        jsr pisz
        pla
        sec
        sbc #1
        jsr dwie_cyfry
        stx REKORD + KOLUMNY_REKORDU - 2
        sta REKORD + KOLUMNY_REKORDU - 1
@nie:   rts
