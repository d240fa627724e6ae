; Fonts, made at the start: the text font with Polish capitals, and the panel's digits with icons. Also the character
; set of a world, with a picture for the codes that are no tiles, and the second drawings of tiles that move.
.include "atari.inc"
.include "reguly.inc"
.export zrob_czcionki, wez_zestaw, otworz_wyjscie, ozyw_znaki, wskaz_rysunek
.export czcionka, czcionka_panelu, zestaw
.exportzp dokad

.segment "CZCIONKI"
czcionka: .res 1024     ; the ROM font plus nine Polish capitals
zestaw:          .res 1024              ; the world's tiles
czcionka_panelu: .res 512 ; 64 characters for the wide panel

; The built character sets of the worlds: tiles are characters 0..63, 64 is the open exit, and 64 + n is the second
; drawing of tile n.
.segment "ZNAKI"
swiaty:
        .incbin "FNT01.ORN.ND", 0, 1024
        .incbin "FNT11.ORN.ND", 0, 1024
        .incbin "FNT21.ORN.ND", 0, 1024

.segment "RODATA"
; Polish capitals have the codes of lower-case letters. Each is a plain capital with a mark in the top or bottom row, or
; for L with a stroke in the middle.
polskie:        .byte  97, 99,101,108,110,111,115,120,122   ; A, C, E, L, N, O, S, Z', Z.
podstawa:       .byte  33, 35, 37, 44, 46, 47, 51, 58, 58
gorny:          .byte   0,$0C,  0,  0,$0C,$0C,$0C,$0C,$18
dolny:          .byte $06,  0,$06,  0,  0,  0,  0,  0,  0
LICZBA_POLSKICH = * - dolny
KOD_L = 108
SWIATLO = %00101000                     ; the two pixels of a gateway

; icons of the panel; they have codes of characters that a panel never shows
ikony:
        .byte %00000000, %01111000, %11001100, %11001111, %11001111, %11001101, %01111001, %00000000  ; key
        .byte %00001100, %00010000, %00111100, %01111110, %01111110, %01111110, %00111100, %00000000  ; bomb
        .byte %00000000, %01111110, %11111111, %10011001, %11111111, %01100110, %00111100, %00000000  ; mask
        .byte %00000000, %01101100, %11111110, %11111110, %01111100, %00111000, %00010000, %00000000  ; heart
        .byte %00111000, %01111100, %01010100, %01111100, %00111000, %11111110, %00111000, %01101100  ; life
        .byte %00000000, %11000000, %11111100, %11111111, %11111100, %11000000, %11000000, %11000000  ; flag
        .byte %11111110, %01111100, %00111000, %00010000, %00101000, %01000100, %11111110, %00000000  ; hourglass
        .byte %00100000, %00111000, %01111100, %00111000, %00010000, %00010000, %00010000, %00000000  ; torch
        .byte %11111110, %10000010, %10101010, %10101010, %10101010, %10000010, %11111110, %00000000  ; stopped machine
        .byte %00111000, %01111100, %11101110, %11101110, %11101110, %01111100, %00111000, %00000000  ; coin
    .repeat 9, N
        .byte 0
        .res 5, <($FF00 >> N)
        .byte %11111111, 0                                                                            ; bar of N pixels
    .endrepeat
IKONY_BAJTY = * - ikony
ZERO = 16

; The tiles that move. In every frame two of the first list and one of the second are drawn, so the first change every
; eighth frame and the second every sixteenth.
szybkie: .byte STWOR, STWOR + 1, STRAZNIK, STRAZNIK + 1, TROPICIEL, TROPICIEL + 1, TROPICIEL + 2, TROPICIEL + 3
        .byte OGIEN, POCHODNIA, MIOTNIK, PLUJKA, PROMIENNIK, MIOTACZ, ODPALONA, MAGICZNY
        .assert * - szybkie = 16, error, "two tiles in each of eight frames"
wolne:  .byte WODA, BAGNO, DUCH, STWOREK, MONETA, MASZYNA, ELIKSIR, MASKA
        .assert * - wolne = 8, error, "a tile in each of eight frames"

.segment "BSS"
otwarte_wyjscie: .res 8
blask:  .res 1
strona_swiata: .res 1   ; the page where the built set of the world begins
faza:   .res 1          ; frames since the set was loaded
drugi:  .res 1          ; 2 for the second drawing, 0 for the first: their distance in pages

.segment "ZEROPAGE"
zrodlo: .res 2
dokad:  .res 2

.segment "CODE"

zrob_czcionki:
        ldx #0
@kopia:
    .repeat 4, I
        lda ROMFONT + I * 256,x
        sta czcionka + I * 256,x
    .endrepeat
        inx
        bne @kopia
@panel: lda ROMFONT,x
        sta czcionka_panelu,x
        lda ROMFONT + 256,x
        sta czcionka_panelu + 256,x
        inx
        bne @panel
        lda #$66                        ; a zero without a stroke
        sta czcionka_panelu + ZERO * 8 + 3
        sta czcionka_panelu + ZERO * 8 + 4
        ldx #IKONY_BAJTY
@ikona: lda ikony - 1,x
        sta czcionka_panelu + IKONA * 8 - 1,x
        dex
        bne @ikona
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

; dokad := address of character A (0..127) in the text font. Keeps X.
adres_znaku:
        jsr osiem_bajtow
        clc
        adc #>czcionka
        sta dokad+1
        rts

; dokad := eight times A without its bit 7, since a character has eight bytes; A := dokad+1. Keeps X.
osiem_bajtow:
        ldy #0
        sty dokad+1
        asl
        asl
        rol dokad+1
        asl
        rol dokad+1
        sta dokad
        lda dokad+1
        rts

; Copies the character set of world A (0..2) to where ANTIC reads it: 64 tiles, and a chequer for the other codes.
wez_zestaw:
        asl
        asl
        adc #>swiaty
        sta strona_swiata
        sta zrodlo+1
        lda #>zestaw
        sta dokad+1
        ldy #0
        sty faza
        sty zrodlo
        sty dokad
        ldx #2
@strona:
        lda (zrodlo),y
        sta (dokad),y
        iny
        bne @strona
        inc zrodlo+1
        inc dokad+1
        dex
        bne @strona
        ldy #7
@brama: lda (zrodlo),y
        sta otwarte_wyjscie,y
        dey
        bpl @brama
        iny
@krata: tya
        lsr
        lda #$66
        bcc :+
        lda #$99
:       sta zestaw + 512,y
        sta zestaw + 768,y
        iny
        bne @krata
        rts

; Called once a frame while the exit is open: a light in the gateway goes on and off, visible in any colours.
otworz_wyjscie:
        lda RTCLOK+2
        and #16
        beq :+
        lda #SWIATLO
:       sta blask
        ldx #7
:       lda otwarte_wyjscie,x
        ora blask
        sta zestaw + WYJSCIE * 8,x
        dex
        bpl :-
        rts

; One frame of the tiles that move: gives some of them the drawing that is due.
ozyw_znaki:
        inc faza
        lda faza
        and #8
        lsr
        lsr
        sta drugi
        lda faza
        and #7
        tax
        lda szybkie,x
        jsr rysuj_znak
        lda szybkie + 8,x
        jsr rysuj_znak
        lda faza
        and #16
        lsr
        lsr
        lsr
        sta drugi
        lda wolne,x
; Gives tile A one of its two drawings. Keeps X.
rysuj_znak:
        jsr wskaz_rysunek
        ldy dokad
        sty zrodlo
        and #3
        ora strona_swiata
        ora drugi
        sta zrodlo+1
        ldy #7
:       lda (zrodlo),y
        sta (dokad),y
        dey
        bpl :-
        rts

; dokad := where the drawing of code A is in the set, in either form; A := dokad+1. Keeps X.
wskaz_rysunek:
        jsr osiem_bajtow
        ora #>zestaw
        sta dokad+1
        rts
        .assert <swiaty = 0 && >swiaty & 3 = 0 && >zestaw & 3 = 0, lderror, "character sets begin at a kilobyte"
