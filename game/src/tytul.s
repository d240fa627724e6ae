; The title screen. The three lines of the builder stand in a field of 24 columns in the middle
; of the 40-column screen: a line's start column 2..12 counts from the left edge of that field.
.include "atari.inc"
.export tytul
.import tytuly, czcionka, czekaj_klatke

POLE      = 8                           ; screen column of the field's column 0
LINIE     = 3

.segment "EKRANY"
ekran:  .res 24 * 40

.segment "LISTY"
lista:  .byte $70, $70, $70
        .byte $42
        .word ekran
        .res 23, $02
        .byte $41
        .word lista

.segment "RODATA"
naglowek_tytulu:
        .byte 36,47,50,54,33            ; DORVA
naglowek_koniec:

.segment "ZEROPAGE"
wsk:    .res 2
wiersz: .res 2

.segment "CODE"
tytul:  jsr czysc
        ldx #naglowek_koniec - naglowek_tytulu - 1
@n:     lda naglowek_tytulu,x
        sta ekran + 5 * 40 + 17,x
        dex
        bpl @n
        jsr pisz_linie
        lda #<lista
        sta SDLSTL
        lda #>lista
        sta SDLSTL+1
        lda #>czcionka
        sta CHBAS
        lda #$0E
        sta COLOR0+1
        lda #$94
        sta COLOR0+2
        lda #$90
        sta COLOR0+4
        lda #$22
        sta SDMCTL
@czekaj:
        jsr czekaj_klatke
        jmp @czekaj

czysc:  lda #0
        tax
@p:     sta ekran,x
        sta ekran + 256,x
        sta ekran + 512,x
        sta ekran + 24 * 40 - 256,x
        inx
        bne @p
        rts

; Writes the three lines, each from its start column on, up to the first 155.
pisz_linie:
        lda #<tytuly
        sta wsk
        lda #>tytuly
        sta wsk+1
        lda #<(ekran + 11 * 40 + POLE)
        sta wiersz
        lda #>(ekran + 11 * 40 + POLE)
        sta wiersz+1
        ldx #LINIE
@linia: ldy #0
        lda (wsk),y
        clc
        adc wiersz                      ; the column, less one for the byte in front of the text
        sta wiersz
        bcc :+
        inc wiersz+1
:       lda wiersz
        bne :+
        dec wiersz+1
:       dec wiersz
        iny
@znak:  lda (wsk),y
        cmp #TYTUL_KONIEC
        beq @koniec
        sta (wiersz),y
        iny
        cpy #TYTUL_BAJTY
        bne @znak
@koniec:
        ldy #0
        sec                             ; back to the left edge, two screen lines down
        lda wiersz
        sbc (wsk),y
        sta wiersz
        bcs :+
        dec wiersz+1
:       clc
        lda wiersz
        adc #81
        sta wiersz
        bcc :+
        inc wiersz+1
:       clc
        lda wsk
        adc #TYTUL_BAJTY
        sta wsk
        bcc :+
        inc wsk+1
:       dex
        bne @linia
        rts
