; The board: its cells, what is beneath them, and how routines look around and move tiles.
;
; The board is its own picture: ANTIC shows the bytes of plansza. Three more arrays belong to it. All four begin at the
; start of a page, so that pointers to the same cell have the same low byte.
;   plansza   what stands in the cell
;   pod       what comes back when it leaves
;   stan      whose turn, edge flag, counter
;   zapach    the heroine's scent: the number of the step that brought her here, 0 for never
.include "reguly.inc"
.export plansza, pod, stan, zapach, cechy, sasiad, delta_lo, delta_hi
.export wskaz_pole, przejdz, zbadaj, przesun, wstaw, licznik, ustaw_licznik, los
.exportzp wsk, wpod, wstan, wzap, kolej, ziarno
.importzp dorva

.segment "PLANSZA"
plansza: .res POLA

.segment "POLA"
pod:    .res 1024
stan:   .res 1024
zapach: .res 1024

.segment "ZEROPAGE"
wsk:    .res 2          ; four pointers to the same cell, minus TU
wpod:   .res 2
wstan:  .res 2
wzap:   .res 2
kolej:  .res 1          ; S_KOLEJ in the current turn
ziarno: .res 2          ; state of the random numbers
pomoc:  .res 1

.segment "RODATA"
sasiad:   .byte TU - 1, TU + 1, TU - KOLUMNY, TU + KOLUMNY   ; by direction
delta_lo: .byte <-1, 1, <-KOLUMNY, KOLUMNY
delta_hi: .byte >-1, 0, >-KOLUMNY, 0

; The properties of all 256 codes: 64 tiles, 64 codes that are no tiles, and the same again for INV.
.macro wlasnosci
        .byte C_PUSTE | C_DUCHOWE | C_KRUSZY                    ;  0 nothing
        .byte C_DUCHOWE | C_KRUSZY                              ;  1 earth
        .byte C_KRUSZY                                          ;  2 trap
        .byte C_PUSTE | C_DUCHOWE | C_KRUSZY                    ;  3 trace
        .byte C_KRUSZY                                          ;  4 jar
        .byte 0, 0                                              ;  5, 6 walls
        .byte C_KRUSZY                                          ;  7 fragile wall
        .byte C_DUCHOWE | C_KRUSZY                              ;  8 thicket
        .byte C_CZYNNE                                          ;  9 exit
        .byte 0, 0, 0, 0                                        ; 10..13 door, water, mask, key
        .byte C_KRUSZY                                          ; 14 bomb
        .byte C_KRUSZY                                          ; 15 crate
        .byte 0                                                 ; 16 elixir
        .byte C_KRUSZY                                          ; 17 block
        .byte C_CZYNNE | C_KRUSZY                               ; 18 emitter
        .byte C_CZYNNE | C_KRUSZY, C_CZYNNE | C_KRUSZY          ; 19..22 rays
        .byte C_CZYNNE | C_KRUSZY, C_CZYNNE | C_KRUSZY
        .byte C_CZYNNE | C_KRUSZY                               ; 23 lit bomb
    .repeat 6
        .byte C_CZYNNE | C_KRUSZY | C_WROGIE                    ; 24..29 ghost, creatures, guards
    .endrepeat
    .repeat 4
        .byte C_CZYNNE | C_KRUSZY                               ; 30..33 explosion
    .endrepeat
        .byte 0                                                 ; 34 coin
        .byte C_CZYNNE | C_KRUSZY                               ; 35 fire
    .repeat 7
        .byte C_CZYNNE | C_KRUSZY | C_WROGIE                    ; 36..42 trackers, shooters
    .endrepeat
    .repeat 6
        .byte C_CZYNNE | C_KRUSZY                               ; 43..48 darts and stones
    .endrepeat
        .byte 0                                                 ; 49 swamp
        .byte C_DORVA, C_DORVA, C_DORVA, C_DORVA                ; 50..53
        .byte C_CZYNNE                                          ; 54 centre of a blast
        .byte 0, 0, 0                                           ; 55..57 magic object, machine, torch
    .repeat 6
        .byte C_DORVA                                           ; 58..63
    .endrepeat
.endmacro

cechy:
    .repeat 2
        wlasnosci
        .res 63, 0
        .byte C_DORVA                                           ; 127 what lies beneath her
    .endrepeat
        .assert * - cechy = 256, error, "cechy must cover every byte"

.segment "CODE"

; Points wsk, wpod, wstan, wzap at the surroundings of the cell at A (low), X (high), which is not on the edge.
wskaz_pole:
        sec
        sbc #TU
        sta wsk
        sta wpod
        sta wstan
        sta wzap
        txa
        sbc #0
        tax
        clc
        adc #>plansza
        sta wsk+1
        txa
        adc #>pod
        sta wpod+1
        txa
        adc #>stan
        sta wstan+1
        txa
        adc #>zapach
        sta wzap+1
        rts

; Moves the four pointers to the next cell in direction X.
przejdz:
        clc
        lda wsk
        adc delta_lo,x
        sta wsk
        sta wpod
        sta wstan
        sta wzap
        lda delta_hi,x
        adc #0
        beq @ta_sama
        sta pomoc                       ; one page forward or back
        ldx #6
@strona:
        clc
        lda wsk+1,x
        adc pomoc
        sta wsk+1,x
        dex
        dex
        bpl @strona
@ta_sama:
        rts

; A := properties of the cell at distance Y; 0 on the edge. Bit 7 (N) is set only for the heroine herself; other tiles
; that look like her are statues. Keeps Y.
zbadaj: lda (wstan),y
        and #S_BRZEG
        bne @mur
        lda (wsk),y
        tax
        lda cechy,x
        bpl @jest
        tya                             ; is it her own cell?
        clc
        adc wsk
        tax
        lda wsk+1
        adc #0
        sbc #>plansza - 1               ; carry is clear
        cmp dorva+1
        bne @mur
        cpx dorva
        bne @mur
        lda #C_DORVA
@jest:  rts
@mur:   lda #0
        rts

; Moves the tile of this cell to the cell at distance Y, where it gets the code A and keeps its counter.
przesun:
        pha
        lda (wsk),y
        sta (wpod),y
        pla
        sta (wsk),y
        sty pomoc
        ldy #TU
        lda (wstan),y
        and #S_LICZNIK
        ora kolej
        pha
        lda (wpod),y
        sta (wsk),y
        ldy pomoc
        pla
        sta (wstan),y
        rts

; Puts a new tile A on the cell at distance Y. It has had its turn, and its counter is 0.
wstaw:  pha
        lda (wsk),y
        sta (wpod),y
        pla
        sta (wsk),y
        lda kolej
        sta (wstan),y
        rts

; A := the counter of this cell. Y := TU.
licznik:
        ldy #TU
        lda (wstan),y
        and #S_LICZNIK
        rts

; The counter of this cell := A (0..63). Y := TU.
ustaw_licznik:
        ldy #TU
        ora kolej
        sta (wstan),y
        rts

; A := a random byte. Keeps X and Y.
los:    lda ziarno
        asl
        rol ziarno+1
        bcc :+
        eor #$2D
:       sta ziarno
        eor ziarno+1
        rts
