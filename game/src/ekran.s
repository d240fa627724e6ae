; The display: a display list of our own, the text font with Polish letters, frame timing.
.include "atari.inc"
.export czekaj_klatke, zrob_czcionke, czcionka

.segment "CZCIONKI"
czcionka:       .res 1024               ; the ROM font plus nine Polish capitals

.segment "RODATA"
; Polish capitals stand on the codes of lower-case letters. Each is a plain capital with a mark
; in the top row, in the bottom row, or, for L, a stroke in the middle.
polskie:        .byte  97, 99,101,108,110,111,115,120,122   ; A, C, E, L, N, O, S, Z', Z.
podstawa:       .byte  33, 35, 37, 44, 46, 47, 51, 58, 58
gorny:          .byte   0,$0C,  0,  0,$0C,$0C,$0C,$0C,$18
dolny:          .byte $06,  0,$06,  0,  0,  0,  0,  0,  0
LICZBA_POLSKICH = * - dolny
KOD_L = 108

.segment "ZEROPAGE"
zrodlo: .res 2
dokad:  .res 2

.segment "CODE"

; Waits for the next frame.
czekaj_klatke:
        lda RTCLOK+2
@czekaj:
        cmp RTCLOK+2
        beq @czekaj
        lda #0
        sta ATRACT
        rts

; Copies the ROM font and adds the Polish capitals.
zrob_czcionke:
        ldx #0
@kopia:
    .repeat 4, I
        lda ROMFONT + I * 256,x
        sta czcionka + I * 256,x
    .endrepeat
        inx
        bne @kopia
        ldx #LICZBA_POLSKICH - 1
@litera:
        lda podstawa,x
        jsr adres_znaku
        lda dokad
        sta zrodlo
        lda dokad+1
        sta zrodlo+1
        lda polskie,x
        jsr adres_znaku
        ldy #7
@wiersz:
        lda (zrodlo),y
        sta (dokad),y
        dey
        bpl @wiersz
        ldy #0
        lda gorny,x
        ora (dokad),y
        sta (dokad),y
        ldy #7
        lda dolny,x
        ora (dokad),y
        sta (dokad),y
        lda polskie,x
        cmp #KOD_L
        bne @dalej
        ldy #3                          ; the stroke through L
        lda #$6C
        ora (dokad),y
        sta (dokad),y
        iny
        lda #$70
        ora (dokad),y
        sta (dokad),y
@dalej: dex
        bpl @litera
        rts

; dokad := address of the shape of character A (0..127) in the font. Keeps X.
adres_znaku:
        ldy #0
        sty dokad+1
        asl
        rol dokad+1
        asl
        rol dokad+1
        asl
        rol dokad+1
        sta dokad
        lda dokad+1
        clc
        adc #>czcionka
        sta dokad+1
        rts
