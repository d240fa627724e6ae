; The heroine's overlay: two players, so that she has colours of her own on any board. One is her dress and hair, the
; other her skin; their pixels are as large as those of a tile. For the rules she goes from cell to cell at once; here she
; glides there in as many frames as a step takes. Her cell shows what lies beneath her: it has the code PODLOZE, whose
; character is a copy of the tile's.
.include "atari.inc"
.include "reguly.inc"
.export pokaz_nakladke, wlacz_graczy, rysuj_nakladke, mrugnij_nakladka, schowaj_nakladke, dojdz
.importzp dorva, dorva_x, dorva_y, zegar, ochrona, dokad
.import plansza, pod, zestaw, wskaz_rysunek, czekaj_klatke

PIERWSZA_LINIA = 36                     ; scan line of the board's first row
LEWY_BRZEG = 48                         ; colour clock of its first column
SUKNIA    = $DE                         ; stands out from the ground of every world
CERA      = $2A
BIEL      = $0E                         ; her dress while she flickers, all of her as she blinks before her first move
WYS       = 8

.segment "ZEROPAGE"
wsk_nakladki: .res 2    ; her cell on the board
wiersze: .res 1         ; rows of her shape still to be drawn

; Players at single-line resolution. The missiles would be where the board ends; none are shown.
.segment "GRACZE"
gracz0: .res 256
gracz1: .res 256

.segment "BSS"
linia:  .res 1          ; the scan line where she was drawn
obraz:  .res 1          ; her picture, a tile code
spod:   .res 1          ; the code beneath her
byla_x: .res 1          ; the cell where she was drawn
byla_y: .res 1
krok_w_x: .res 1        ; 1, 0 or -1: the latest step
krok_w_y: .res 1
slizg:  .res 1          ; frames until she gets to her cell

.segment "RODATA"
; what is left of the way, by slizg: in colour clocks of four a column, in scan lines of eight a row
reszta_x: .byte 0, 1, 1, 2, 3, 3
reszta_y: .byte 0, 1, 3, 4, 5, 7
        .assert * - reszta_y = KROK, error, "a step takes KROK frames"
; a shape: eight rows; the left half are pixels of the dress, the right half those of the skin
stojaca:   .byte %01100000, %10010110, %10010110, %01100000, %01101001, %01100000, %11110000, %00000110
krzyczy: .byte %01101001, %00001111, %10010110, %10011001, %01100000, %01100000, %11110000, %00001001
oczy:   .byte %01100000, %10010110, %10010110, %10010110, %00000000, %00000000, %00000000, %00000000
pachy:  .byte %01100000, %10010110, %10010110, %01100000, %01101001, %00000000, %00000000, %00000000
kolana: .byte %01100000, %10010110, %10010110, %01100000, %01101001, %01100000, %00000000, %00000000
; each direction in two frames
w_dol:  .byte %01100000, %10010110, %10010110, %01100000, %01100001, %01101000, %11110000, %00000100
        .byte %01100000, %10010110, %10010110, %01100000, %01101000, %01100001, %11110000, %00000010
w_prawo: .byte %01100000, %11000011, %11000011, %01100000, %01100001, %01100000, %11110000, %00001001
        .byte %01100000, %11000011, %11000011, %01100000, %01000010, %01110000, %11110000, %10010110
w_lewo: .byte %01100000, %00111100, %00111100, %01100000, %01101000, %01100000, %11110000, %00001001
        .byte %01100000, %00111100, %00111100, %01100000, %00100100, %11100000, %11110000, %10010110
w_gore: .byte %01100000, %11110000, %11110000, %01100000, %01100001, %01101000, %11110000, %00000010
        .byte %01100000, %11110000, %11110000, %01100000, %01101000, %01100001, %11110000, %00000100
ksztalty = stojaca
; by code, from PO_OCZY on; the frames of a walk follow each other
wzory:  .byte oczy - ksztalty, pachy - ksztalty, kolana - ksztalty, stojaca - ksztalty
        .res KRZYCZY - PO_BAGNIE - 1, 0
        .byte krzyczy - ksztalty, w_dol - ksztalty, w_prawo - ksztalty, w_lewo - ksztalty, w_gore - ksztalty
        .byte stojaca - ksztalty
        .assert * - wzory = DORVA - PO_OCZY + 1, error, "a shape for each of her pictures"
        .assert w_gore + 2 * WYS - ksztalty <= 256, error, "shapes within an index"

.segment "CODE"

; Starts to show the overlay.
pokaz_nakladke:
        lda #>gracz0 - 4                ; players begin one kilobyte after PMBASE
        sta PMBASE
        lda #0
        tax
@czysc: sta gracz0,x
        sta gracz1,x
        inx
        bne @czysc
        sta linia
        sta slizg
        sta SIZEP0
        sta SIZEP0+1
        lda #1                          ; players in front of the board
        sta GPRIOR
        lda dorva_x                     ; she stands
        sta byla_x
        lda dorva_y
        sta byla_y
        jmp rysuj_nakladke

; GTIA takes the players from the bus, where they are only once ANTIC fetches them.
wlacz_graczy:
        lda #2
        sta GRACTL
        rts

; One frame of blinking, so that nobody has to search for her.
mrugnij_nakladka:
        lda RTCLOK+2
        and #24                         ; a quarter of the time
        beq @biel
        ldx #SUKNIA
        ldy #CERA
        bne @barwy
@biel:  ldx #BIEL
        ldy #BIEL
@barwy: stx PCOLR0
        sty PCOLR0+1
        rts

; Hides the overlay.
schowaj_nakladke:
        lda #0
        sta HPOSP0
        sta HPOSP0+1
        sta GRACTL
        sta GRAFP0
        sta GRAFP0+1
        rts

; Lets her finish her step.
dojdz:  jsr rysuj_nakladke
        jsr czekaj_klatke
        lda slizg
        bne dojdz
        rts

; Draws the overlay where she is in this frame.
rysuj_nakladke:
        ldx linia
        ldy #WYS
        lda #0
@zmaz:  sta gracz0,x
        sta gracz1,x
        inx
        dey
        bne @zmaz
        jsr przesun_sie
        ldx slizg
        lda dorva_y
        asl
        asl
        asl
        adc #PIERWSZA_LINIA
        ldy krok_w_y
        beq @w_pionie
        bmi @w_gore
        sec
        sbc reszta_y,x
        bcs @w_pionie
@w_gore:
        adc reszta_y,x
@w_pionie:
        sta linia
        lda dorva_x
        asl
        asl
        adc #LEWY_BRZEG
        ldy krok_w_x
        beq @w_poziomie
        bmi @w_lewo
        sec
        sbc reszta_x,x
        bcs @w_poziomie
@w_lewo:
        adc reszta_x,x
@w_poziomie:
        sta HPOSP0
        sta HPOSP0+1
        ldx #CERA
        stx PCOLR0+1
        ldx #SUKNIA
        lda ochrona
        and #4
        beq :+
        ldx #BIEL
:       stx PCOLR0
        jsr odslon
        lda obraz
        sec
        sbc #PO_OCZY
        tax
        lda wzory,x
        cpx #IDZIE_DOL - PO_OCZY
        bcc @jest
        cpx #DORVA - PO_OCZY
        bcs @jest
        tay
        lda zegar                       ; the feet change at each step
        lsr
        tya
        bcc @jest
        adc #WYS - 1                    ; carry is set
@jest:  tay
        ldx linia
        lda #WYS
        sta wiersze
@rysuj: lda ksztalty,y
        and #$F0
        sta gracz0,x
        lda ksztalty,y
        asl
        asl
        asl
        asl
        sta gracz1,x
        iny
        inx
        dec wiersze
        bne @rysuj
        rts

; Notices a step and counts the frames that are left of it. A leap further than to a cell next to hers doesn't glide.
przesun_sie:
        lda slizg
        beq :+
        dec slizg
:       lda dorva_x
        sec
        sbc byla_x
        tax
        lda dorva_y
        sec
        sbc byla_y
        tay
        bne @krok
        cpx #0
        beq @stoi
@krok:  stx krok_w_x
        sty krok_w_y
        lda dorva_x
        sta byla_x
        lda dorva_y
        sta byla_y
        lda #0
        inx
        cpx #3
        bcs @skok
        iny
        cpy #3
        bcs @skok
        lda #KROK - 1
@skok:  sta slizg
@stoi:  rts

; Gives her cell the code that shows what lies beneath, in its form, and keeps her picture.
odslon: lda dorva
        sta wsk_nakladki
        lda dorva+1
        clc
        adc #>pod
        sta wsk_nakladki+1
        ldy #0
        lda (wsk_nakladki),y
        sta spod
        lda dorva+1
        adc #>plansza
        sta wsk_nakladki+1
        lda (wsk_nakladki),y
        and #$7F
        cmp #PODLOZE
        beq :+                          ; no tick since
        sta obraz
:       lda spod
        and #INV
        ora #PODLOZE
        sta (wsk_nakladki),y
        lda spod
        jsr wskaz_rysunek
        ldy #7
:       lda (dokad),y
        sta zestaw + PODLOZE * 8,y
        dey
        bpl :-
        rts
