; Loads a stage: copies its record out of its bank.
.include "atari.inc"
.include "rekord.inc"
.include "reguly.inc"
.export wczytaj_etap, etap_probny, wez_etap, ostatni, swiat, powitanie
.exportzp numer_etapu
.import plansza, cel_masek, kolory, wez_zestaw, zgas_ekran

ETAPY_W_BANKU = 16
SWIATY    = 3
ZADEN     = $FF

.segment "ZEROPAGE"
numer_etapu: .res 1     ; 1..32
rekord:  .res 2
gdzie:   .res 2

.segment "BSS"
ostatni: .res 1
swiat:   .res 1
swiat_zestawu: .res 1   ; the world whose tiles are loaded
powitanie: .res 32

.segment "CODE"

; Loads stage numer_etapu to be played. Switches the picture off, since it would show the board while it changes, and
; loads the tiles again, so that the exit is closed.
wczytaj_etap:
        jsr zgas_ekran
        lda #ZADEN
        sta swiat_zestawu
; Loads stage numer_etapu: board, colours, goal, flag, world and greeting, and the tiles if the world changes. The game
; doesn't use the description.
wez_etap:
        ldx #BANK0
        lda numer_etapu
        sec
        sbc #1
        cmp #ETAPY_W_BANKU
        bcc :+
        ldx #BANK1
        sbc #ETAPY_W_BANKU
:       stx PORTB                       ; interrupts may go on: nothing that they need is in the window
        asl
        asl
        adc #>OKNO
        sta rekord+1
        lda #0
        sta rekord
        ldy #ETAP_KOLORY + 11
@kolor: lda (rekord),y
        sta kolory - ETAP_KOLORY,y
        dey
        cpy #ETAP_KOLORY
        bcs @kolor
        lda #<plansza                   ; the board: three pages and a bit, from offset 32 on
        sta gdzie
        lda #>plansza
        sta gdzie+1
        lda #ETAP_PLANSZA
        sta rekord
        ldx #3
        ldy #0
@strona:
        jsr kopiuj_kod
        iny
        bne @strona
        inc rekord+1
        inc gdzie+1
        dex
        bne @strona
@reszta:
        jsr kopiuj_kod
        iny
        cpy #POLA - 768
        bne @reszta
        .assert ETAP_CEL = ETAP_PLANSZA + POLA && ETAP_NAZWA = ETAP_SWIAT + 1, error, "read in one sweep"
        lda (rekord),y                  ; the goal, the flag, the world, the greeting
        sta cel_masek
        iny
        lda (rekord),y
        sta ostatni
        iny
        lda (rekord),y
        cmp #SWIATY
        bcc :+
        lda #0                          ; there is no such world
:       sta swiat
        ldx #0
@litera:
        iny
        lda (rekord),y
        sta powitanie,x
        inx
        cpx #32
        bne @litera
        lda #GLOWNA
        sta PORTB
        lda swiat
        cmp swiat_zestawu
        beq @te_same
        sta swiat_zestawu
        jmp wez_zestaw
@te_same:
        rts

; Copies one cell of the board. PODLOZE means her cell, so one that is painted gets another code that looks and is the same.
kopiuj_kod:
        lda (rekord),y
        ora #INV
        cmp #PODLOZE | INV
        lda (rekord),y
        bcc :+
        sbc #1
:       sta (gdzie),y
        rts

; C: the loaded stage is the first and the last one, as in a test game, so there is nothing to choose or to keep.
etap_probny:
        lda numer_etapu
        eor #1
        bne :+
        lda ostatni
        cmp #1
        rts
:       clc
        rts
