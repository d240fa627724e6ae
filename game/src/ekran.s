; The display: display lists, their interrupts, the vertical blank, frame timing.
;
; The game's screen, top to bottom: the info line (text in slot 10 on slot 11), the board in slots 4..8,
; and the panel on slot 11 with symbols in slot 9 above figures and bars in slots 0..3. An interrupt between two parts
; changes the colours while the beam draws an empty line.
.include "atari.inc"
.include "reguly.inc"
.export zacznij_ekran, zgas_ekran, pokaz_plansze, pokaz_tekst, pokaz_opis, wez_kolory, blysnij, czekaj_klatke, czekaj_klatki, czysc_tekst
.export ekran, logo, stopka, linia_info, panel_symboli, panel_cyfr, panel_paskow, kolory
.import barwa_tekstu, wlacz_graczy
.import pokaz_nakladke, schowaj_nakladke, plansza, czcionka, czcionka_panelu, zestaw, graj_dzwiek, graj_muzyke

.segment "EKRANY"
logo:   .res LOGO_WIERSZE * 40          ; tiles above the text
ekran:  .res TEKST_WIERSZE * 40
stopka: .res 40                         ; tiles below it
linia_info: .res 40
panel_symboli: .res 20
panel_cyfr: .res 20
panel_paskow: .res 20                   ; ANTIC reads it behind the figures

.segment "BSS"
kolory: .res 12                         ; the slots of the stage
obraz:  .res 1          ; what ANTIC fetches for the picture to come
po_liscie: .res 2       ; the first interrupt of the current display list

.segment "LISTY"
PUSTE8  = $70
PUSTE6  = $50
PUSTE4  = $30
PUSTE3  = $20
PUSTE2  = $10
PUSTA   = $00
DLI     = $80
LMS     = $40
TRYB2   = $02                           ; text, 40 columns
TRYB4   = $04                           ; tiles, 40 columns in four colours
TRYB6   = $06                           ; text, 20 columns in four colours
SKOK    = $41

OBRAZ   = $22                           ; playfield of 40 columns
JASNY   = $0C                           ; of a text
GRACZE  = $18                           ; players, at single-line resolution

lista_planszy:
        .byte PUSTE8, PUSTE8, PUSTE2
        .byte LMS | TRYB2
        .word linia_info
        .byte PUSTE2 | DLI
        .byte LMS | TRYB4
        .word plansza
        .res WIERSZE - 2, TRYB4
        .byte TRYB4 | DLI
        .byte PUSTE2
        .byte LMS | TRYB6
        .word panel_symboli
        .byte PUSTA | DLI
        .byte LMS | TRYB6
        .word panel_cyfr
        .byte PUSTA, TRYB6
        .byte PUSTE2, PUSTA | DLI
        .byte SKOK
        .word lista_planszy

lista_tekstu:
        .byte PUSTE8, PUSTE8
        .byte LMS | TRYB4
        .word logo
        .res LOGO_WIERSZE - 2, TRYB4
        .byte TRYB4
        .byte PUSTE2 | DLI, PUSTE4
        .byte LMS | TRYB2
        .word ekran
        .res TEKST_WIERSZE - 6, TRYB2
        .byte PUSTE3                    ; above the keys of the title
        .res 5, TRYB2
        .byte PUSTA | DLI, PUSTA
        .byte LMS | TRYB4
        .word stopka
        .byte SKOK
        .word lista_tekstu

; A heading, tiles and texts by turns, a line below. It shows the memory from logo on.
lista_opisow:
        .byte PUSTE8, PUSTE8
        .byte LMS | TRYB2
        .word logo
    .repeat OPISY_STRONY
        .byte PUSTE6 | DLI, PUSTA, TRYB4
        .byte PUSTA | DLI, PUSTA, TRYB2
    .endrepeat
        .byte PUSTE8, TRYB2
        .byte SKOK
        .word lista_opisow
        .assert ekran = logo + LOGO_WIERSZE * 40, error, "one piece of memory"
        .assert * - lista_planszy < 256, error, "display lists within a page"

.segment "CODE"

; Takes the display over: nothing on the screen yet.
zacznij_ekran:
        lda #0
        sta SDMCTL
        lda #3
        sta SKCTL
        ldx #>co_klatke
        ldy #<co_klatke
        lda #7                          ; deferred vertical blank
        jsr SETVBV
        jsr czekaj_klatke
        lda #$C0
        sta NMIEN
        rts

; Shows the board with info line and panel.
pokaz_plansze:
        lda #<dli_plansza
        ldx #>dli_plansza
        jsr ustaw_dli
        ldx kolory + 10
        stx COLOR0+1
        ldx kolory + 11
        stx COLOR0+2
        ldx kolory + 4
        stx COLOR0
        ldx kolory + 7
        stx COLOR0+3
        ldx kolory + 8
        stx COLOR0+4
        jsr pokaz_nakladke
        lda #OBRAZ | GRACZE
        sta obraz
        ldx #>czcionka
        lda #<lista_planszy
        ldy #>lista_planszy
        jsr pokaz
        jmp wlacz_graczy

; Shows a text screen: logo in the stage's colours, text, a row of tiles.
pokaz_tekst:
        lda #<dli_tekst
        ldx #>dli_tekst
        jsr ustaw_dli
        jsr wez_kolory
        lda #OBRAZ
        sta obraz
        ldx #>zestaw
        lda #<lista_tekstu
        ldy #>lista_tekstu
        bne pokaz

; Shows a page about the tiles.
pokaz_opis:
        lda #<dli_stopka
        ldx #>dli_stopka
        jsr ustaw_dli
        jsr wez_kolory
        lda #JASNY
        sta COLOR0+1
        lda #0
        sta COLOR0+2
        sta COLOR0+4
        lda #OBRAZ
        sta obraz
        ldx #>czcionka
        lda #<lista_opisow
        ldy #>lista_opisow
pokaz:  stx CHBAS
        sta SDLSTL
        sty SDLSTL+1
        lda obraz
        sta SDMCTL
        jmp czekaj_klatke

; Gives the tiles of a text screen the stage's colours.
wez_kolory:
        ldx #4
@kolor: lda kolory + 4,x
        sta COLOR0,x
        dex
        bpl @kolor
        rts

; The interrupts of the next list begin at A (low), X (high).
ustaw_dli:
        pha
        jsr zgas_ekran
        pla
        sta po_liscie
        stx po_liscie+1
        rts

; Switches the picture off until the next one is shown. Keeps X.
zgas_ekran:
        lda #0
        sta SDMCTL
        jsr schowaj_nakladke
        jmp czekaj_klatke

; A flash on the board, fading within a few frames.
blysnij:
        ldx #$0F
@slabiej:
        stx COLOR0+4
        jsr czekaj_klatke
        dex
        bpl @slabiej
        lda kolory + 8
        sta COLOR0+4
        rts

; Clears the text screen.
czysc_tekst:
        lda #0
        tax
@p:     sta logo,x
        sta logo + LOGO_WIERSZE * 40 - 256,x
        sta ekran,x
        sta ekran + 256,x
        sta ekran + TEKST_WIERSZE * 40 - 256,x
        inx
        bne @p
        rts

; Waits for the next frame. Keeps X and Y.
czekaj_klatke:
        lda RTCLOK+2
@czekaj:
        cmp RTCLOK+2
        beq @czekaj
        lda #0
        sta ATRACT
        rts

; Waits X frames.
czekaj_klatki:
        jsr czekaj_klatke
        dex
        bne czekaj_klatki
        rts

; Once a frame: resets the chain of interrupts and plays a frame of effects and tune.
co_klatke: cld                             ; the interrupted program may be adding points in decimal mode
        lda po_liscie
        sta VDSLST
        lda po_liscie+1
        sta VDSLST+1
        jsr graj_dzwiek
        jsr graj_muzyke
        jmp XITVBV

.macro nastepne_dli adres
        lda #<adres
        sta VDSLST
        lda #>adres
        sta VDSLST+1
.endmacro

; info line -> board
dli_plansza:
        pha
        txa
        pha
        tya
        pha
        lda #>zestaw                    ; load everything now: the first line of the board begins soon
        ldx kolory + 5
        ldy kolory + 6
        sta WSYNC
        sta CHBASE
        stx COLPF1
        sty COLPF2
        nastepne_dli dli_symbole
        pla
        tay
        pla
        tax
        pla
        rti

; board -> symbols
dli_symbole:
        pha
        lda kolory + 11
        sta WSYNC
        sta COLBK
        lda kolory + 9
        sta COLPF0
        sta COLPF1
        sta COLPF2
        sta COLPF3
        lda #>czcionka_panelu
        sta CHBASE
        nastepne_dli dli_cyfry
        pla
        rti

; symbols -> figures
dli_cyfry:
        pha
        txa
        pha
        ldx #3
@kolor: lda kolory,x
        sta COLPF0,x
        dex
        bpl @kolor
        nastepne_dli dli_ramka
        pla
        tax
        pla
        rti

; panel -> frame
dli_ramka:
        pha
        lda kolory + 8
        sta WSYNC
        sta COLBK
        pla
        rti

; logo -> text
dli_tekst:
        pha
        lda barwa_tekstu
        sta WSYNC
        sta COLBK
        sta COLPF2
        lda #>czcionka
        sta CHBASE
        lda #JASNY
        sta COLPF1
        nastepne_dli dli_stopka
        pla
        rti

; text -> tiles
dli_stopka:
        pha
        lda kolory + 8
        sta WSYNC
        sta COLBK
        lda #>zestaw
        sta CHBASE
        lda kolory + 5
        sta COLPF1
        lda kolory + 6
        sta COLPF2
        nastepne_dli dli_tekst          ; on a page about the tiles
        pla
        rti
