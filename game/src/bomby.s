; Bombs: the fuse, the blast, and the smoke after it.
.include "reguly.inc"
.export odpalona, epicentrum, wybuch
.importzp wsk, wpod, wstan, kod, kolej, budzet
.import zbadaj, licznik, ustaw_licznik, zran, zwroc_pole, zglos_efekt, dodaj_punkty

LONT      = 9                           ; turns that a fuse burns

.segment "ZEROPAGE"
ktore:  .res 1

.segment "RODATA"
; the nine cells of a blast, its centre last
pola_wybuchu:
        .byte TU, TU-KOLUMNY-1, TU-KOLUMNY, TU-KOLUMNY+1, TU-1, TU+1, TU+KOLUMNY-1, TU+KOLUMNY, TU+KOLUMNY+1
LICZBA_POL = * - pola_wybuchu

.segment "CODE"

; The fuse burns, and the bomb blinks.
odpalona:
        lda kod
        eor #INV
        sta (wsk),y
        jsr licznik
        clc
        adc #1
        cmp #LONT
        bcs @juz
        jmp ustaw_licznik
@juz:   lda #EPICENTRUM
        sta (wsk),y
        lda #0
        jmp ustaw_licznik

; The blast of nine cells. Bombs in reach go off when their turn comes, blocks crack, the heroine is wounded.
epicentrum:
        lsr budzet                      ; it takes as long as several other tiles
        bne :+
        inc budzet
:       dzwiek EF_WYBUCH
        ldx #LICZBA_POL - 1
@pole:  stx ktore
        ldy pola_wybuchu,x
        cpy #TU
        beq @dym                        ; the centre
        jsr zbadaj
        bmi @dorva
        tax
        and #C_KRUSZY
        beq @dalej
        txa
        and #C_WROGIE
        beq @martwe
        lda #$50                        ; a creature: 150
        ldx #$01
        jsr dodaj_punkty
@martwe:
        lda (wsk),y
        and #$7F
        cmp #BOMBA
        beq @lancuch
        cmp #ODPALONA
        beq @lancuch
        cmp #BLOK
        beq @peka
@dym:   lda #NIC
        sta (wpod),y
        lda #WYBUCH
        bne @postaw
@lancuch:
        lda #EPICENTRUM
@postaw:
        sta (wsk),y
        lda kolej
        sta (wstan),y
@dalej: ldx ktore
        dex
        bpl @pole
        rts
@peka:  lda (wsk),y
        and #INV
        ora #KRUCHY
        sta (wsk),y
        bne @dalej
@dorva: lda #RANA_WYBUCH
        jsr zran
        jmp @dalej

; Four stages of an explosion, then nothing.
wybuch: lda kod
        and #$3F
        cmp #WYBUCH + 3
        bcs @koniec
        lda kod
        adc #1
        sta (wsk),y
        rts
@koniec:
        jmp zwroc_pole
