; Sound effects on voices 1 and 2, driven by the vertical blank; the tune has the other two. An effect takes the voice
; that is free or has the less important effect (see the list in reguly.inc). If both have more important ones, it is
; dropped.
.include "atari.inc"
.include "reguly.inc"
.export zagraj, graj_dzwiek, cisza

GLOS1 = 0                               ; a voice: index into its registers and into the bytes below
GLOS2 = 2

.segment "ZEROPAGE"
ktory:  .res 1          ; the effect that sounds, 0 for none
ton:    .res 1
        .res 2
glos:   .res 1
dlugosc: .res 1
        .res 2

.segment "RODATA"
; By effect: pitch (AUDF), its change per frame, distortion and loudness (AUDC), length in frames. The loudness falls
; towards the end.
;                 -   step dig push shot knock water coin take door bomb magic swamp mask pain blast open life
wysokosc: .byte   0,  20,  60, 120,  24,  90,    6,  50,  80, 140, 100,  160,  220,  60,  90,  40, 120,  70
zmiana:   .byte   0,   0,   8,   4,   6,  16,    4, <-6, <-5, <-9,   4,  <-9,    2, <-4,   9,   6, <-5, <-3
barwa:    .byte   0, $82, $86, $C6, $86, $84,  $88, $A8, $A8, $C8, $A6,  $AA,  $C6, $AA, $CA, $8F, $AC, $AC
trwanie:  .byte   0,   2,   4,   6,   5,   6,    9,   6,  10,  12,   8,   16,   12,  14,  10,  30,  22,  24
        .assert * - trwanie = EF_ZYCIE + 1, error, "one line an effect"

.segment "CODE"

cisza:  lda #0
        sta ktory + GLOS1
        sta ktory + GLOS2
        sta dlugosc + GLOS1
        sta dlugosc + GLOS2
        sta AUDC1 + GLOS1
        sta AUDC1 + GLOS2
        sta AUDCTL
        rts

; Starts effect A, unless both voices have more important ones.
zagraj: tay
        beq @nie
        ldx #GLOS1
        lda ktory + GLOS2
        cmp ktory + GLOS1
        bcs :+
        ldx #GLOS2
:       tya
        cmp ktory,x
        bcc @nie
        lda wysokosc,y
        sta ton,x
        lda barwa,y
        sta glos,x
        lda trwanie,y
        sta dlugosc,x
        sty ktory,x                     ; last, since an interrupt may come in the middle of this
@nie:   rts

; One frame of the effects.
graj_dzwiek:
        ldx #GLOS2
        jsr @glos
        ldx #GLOS1
@glos:  lda dlugosc,x
        beq @koniec
        dec dlugosc,x
        ldy ktory,x
        lda ton,x
        sta AUDF1,x
        clc
        adc zmiana,y
        sta ton,x
        lda glos,x
        sta AUDC1,x
        lda dlugosc,x
        cmp #8
        bcs @gra
        and #1
        bne @gra
        lda glos,x
        and #15
        cmp #2
        bcc @gra
        dec glos,x
@gra:   rts
@koniec:
        sta ktory,x
        sta AUDC1,x
        rts
