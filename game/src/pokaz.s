; The demonstration: stage 1 played by its recorded run, to the tune of the title. A game whose first stage isn't the
; sample's has none.
.include "reguly.inc"
.include "rekord.inc"
.export pokaz_gre
.importzp numer_etapu, drazek, spust, wynik, komunikat, zostalo
.import plansza, cel_masek, wczytaj_etap, etap_probny, nowa_gra, nowy_etap, reguly_start
.import pokaz_plansze, takt_gry, dojdz
.import zacznij_panel, rysuj_panel, panel_takt, info_takt, klatka_bez_gracza

KLATKI_PO = 60                          ; frames for which the end is seen
STUKNIECIE = 2                          ; frames of a step in which the stick is pushed

ruch_U    = 1                           ; bits of the stick, 1 while pushed
ruch_D    = 2
ruch_L    = 4
ruch_R    = 8

.macro kroki kierunek, ile
        .byte kierunek << 4 | ile
        .assert ile > 0 && ile < 16, error, "the steps don't fit"
.endmacro

.segment "RODATA"
wzor:   .incbin "DETAP.1", ETAP_PLANSZA, POLA + 1 ; board and goal
        .assert ETAP_CEL = ETAP_PLANSZA + POLA, error, "the goal follows the board"
ruchy:  .include "ruchy.inc"
        .byte 0

.segment "BSS"
wybrany: .res 1         ; the stage that the title offers
ruch:   .res 1          ; which of the moves is being made,
do_konca: .res 1        ; how many of its steps are left,
do_kroku: .res 1        ; and frames until the next step, or the end

.segment "CODE"

; Plays until the run has ended, or the stick moves, or the trigger or START is pressed.
pokaz_gre:
        lda numer_etapu
        sta wybrany
        lda #1
        sta numer_etapu
        jsr wczytaj_etap
        jsr etap_probny
        bcs @powrot
        jsr jest_z_zestawu
        bne @powrot
        jsr nowa_gra
        jsr nowy_etap
        jsr reguly_start
        jsr zacznij_panel
        jsr rysuj_panel
        powiedz KOM_POKAZ
        jsr info_takt
        jsr pokaz_plansze
        lda #0
        sta ruch
@ruch:  ldx ruch
        lda ruchy,x
        beq @koniec
        and #15
        sta do_konca
@krok:  lda #KROK
        sta do_kroku
@klatka:
        jsr klatka_bez_gracza
        bcs @powrot
        jsr klatka_pokazu
        lda wynik
        bne @koniec
        dec do_kroku
        bne @klatka
        dec do_konca
        bne @krok
        inc ruch
        bne @ruch
@koniec:
        jsr dojdz
        lda #KLATKI_PO
        sta do_kroku
@po:    jsr klatka_bez_gracza
        bcs @powrot
        dec do_kroku
        bne @po
@powrot:
        lda wybrany
        sta numer_etapu
        rts

; A tick with the recorded stick. The line says that this is a demonstration whenever it says nothing else.
klatka_pokazu:
        lda zostalo
        cmp #2
        bcs :+
        powiedz KOM_POKAZ
:       ldx ruch
        lda ruchy,x
        lsr
        lsr
        lsr
        lsr
        ldy do_kroku
        cpy #KROK - STUKNIECIE + 1
        bcs :+
        lda #0
:       eor #15
        sta drazek
        lda #1
        sta spust
        jsr takt_gry
        jsr info_takt
        jmp panel_takt

; Z: board and goal are those of the sample's first stage.
jest_z_zestawu:
        ldx #0
@bajt:  lda plansza,x
        cmp wzor,x
        bne @inny
        lda plansza + 256,x
        cmp wzor + 256,x
        bne @inny
        lda plansza + 512,x
        cmp wzor + 512,x
        bne @inny
        lda plansza + POLA - 256,x      ; the rest, and some once more
        cmp wzor + POLA - 256,x
        bne @inny
        inx
        bne @bajt
        lda cel_masek
        cmp wzor + POLA
@inny:  rts
