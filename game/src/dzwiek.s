; Sound effects: one voice, driven by the vertical blank. An effect that is louder in the list of effects (see
; reguly.inc) drowns a lesser one; the lesser one waits for nothing and is lost.
.include "atari.inc"
.include "reguly.inc"
.export zagraj, graj_dzwiek, cisza

.segment "ZEROPAGE"
ktory:  .res 1          ; the effect that sounds, 0 for none
ton:    .res 1
glos:   .res 1
dlugosc: .res 1

.segment "RODATA"
; By effect: pitch (AUDF), its change a frame, distortion and loudness (AUDC), length in frames. The loudness
; falls towards the end.
;                 -   step dig push shot knock coin take door bomb magic swamp mask pain blast open life
wysokosc: .byte   0,  20,  60, 120,  24,  90,  50,  80, 140, 100,  160,  220,  60,  90,  40, 120,  70
zmiana:   .byte   0,   0,   8,   4,   6,  16, <-6, <-5, <-9,   4,  <-9,    2, <-4,   9,   6, <-5, <-3
barwa:    .byte   0, $82, $86, $C6, $86, $84, $A8, $A8, $C8, $A6,  $AA,  $C6, $AA, $CA, $8F, $AC, $AC
trwanie:  .byte   0,   2,   4,   6,   5,   6,   6,  10,  12,   8,   16,   12,  14,  10,  30,  22,  24
        .assert * - trwanie = EF_ZYCIE + 1, error, "one line an effect"

.segment "CODE"

cisza:  lda #0
        sta ktory
        sta dlugosc
        sta AUDC1
        sta AUDCTL
        rts

; Starts effect A, unless a louder one sounds.
zagraj: cmp ktory
        bcc @nie
        tax
        beq @nie
        sta ktory
        lda wysokosc,x
        sta ton
        lda barwa,x
        sta glos
        lda trwanie,x
        sta dlugosc
@nie:   rts

; One frame of the effect.
graj_dzwiek:
        lda dlugosc
        beq @koniec
        dec dlugosc
        ldx ktory
        lda ton
        sta AUDF1
        clc
        adc zmiana,x
        sta ton
        lda glos
        sta AUDC1
        lda dlugosc
        cmp #8
        bcs @gra
        and #1
        bne @gra
        lda glos
        and #15
        cmp #2
        bcc @gra
        dec glos
@gra:   rts
@koniec:
        sta ktory
        sta AUDC1
        rts
