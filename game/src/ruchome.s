; Turns: whose turn it is, and what creatures, guards, ghosts, trackers and fire do then.
;
; A turn goes through all cells inside the edge, two rows in a tick, so it takes nine ticks. In one tick at most BUDZET
; tiles act, and the next tick goes on from there: a board full of creatures slows the creatures, never the picture.
.include "reguly.inc"
.export ruszaj, nowa_kolej, zwroc_pole, zapal
.exportzp kod, kolumna, wiersz, budzet
.importzp wsk, wpod, wstan, wzap, kolej, dorva_x, dorva_y, zegar, pochodnia, otwarte
.import plansza, cechy, sasiad, wskaz_pole, przejdz, zbadaj, przesun, licznik, ustaw_licznik, los, wstaw
.import zran, promiennik, promien, miotnik, miotacz, plujka, strzalka, kamyk
.import odpalona, epicentrum, wybuch

WIERSZE_NA_TAKT = 2
BUDZET    = 16
ZASIEG_STWORKA = 10                     ; how far a little creature sees
TURY_BIEGU = 3                          ; once in so many turns a tracker on the scent takes two steps
PALI_SIE  = 5                           ; turns for which a thicket burns: enough to spread to all four sides

.segment "ZEROPAGE"
skan:    .res 2         ; the row that is searched, in plansza
wiersz:  .res 1         ; its number
kolumna: .res 1         ; the column of the cell whose turn it is
kod:     .res 1         ; its code
budzet:  .res 1
rzedy:   .res 1
czyn:    .res 2
kier_tropiciela: .res 1
rana_patrolu: .res 1    ; the energy that a patrol's touch takes
strona:  .res 1
kroki_tropiciela: .res 1 ; steps that a tracker has left in this turn
wiek:    .res 1         ; of a scent, in steps
najmlodszy: .res 1      ; the freshest so far

.segment "RODATA"
; what each tile does when its turn comes
.linecont +
.define CZYNY \
        spi, spi, spi, spi, spi, spi, spi, spi, spi, wyjscie, spi, spi, spi, spi, spi, spi, \
        spi, spi, promiennik, promien, promien, promien, promien, odpalona, \
        duch, stworek, stwor, stwor, straznik, straznik, wybuch, wybuch, \
        wybuch, wybuch, spi, ogien, tropiciel, tropiciel, tropiciel, tropiciel, \
        miotnik, miotacz, plujka, strzalka, strzalka, kamyk, kamyk, kamyk, \
        kamyk, spi, spi, spi, spi, spi, epicentrum, spi, spi, spi, spi, spi, spi, spi, spi, spi
czyny_lo: .lobytes CZYNY
czyny_hi: .hibytes CZYNY
        .assert czyny_hi - czyny_lo = 64 && * - czyny_hi = 64, error, "one act a tile"

.segment "CODE"

; Begins a new turn at the first cell inside the edge.
nowa_kolej:
        lda kolej
        eor #S_KOLEJ
        sta kolej
        lda #<(plansza + KOLUMNY)
        sta skan
        lda #>(plansza + KOLUMNY)
        sta skan+1
        ldx #1
        stx wiersz
        stx kolumna
        rts

; The part of a turn that belongs to one tick.
ruszaj: lda #BUDZET
        sta budzet
        lda #WIERSZE_NA_TAKT
        sta rzedy
@rzad:  ldy kolumna
@pole:  lda (skan),y
        tax
        lda cechy,x
        and #C_CZYNNE
        bne @czynne
@dalej: iny
        cpy #KOLUMNY - 1
        bne @pole
        ldy #1
        sty kolumna
        clc
        lda skan
        adc #KOLUMNY
        sta skan
        bcc :+
        inc skan+1
:       inc wiersz
        lda wiersz
        cmp #WIERSZE - 1
        bcs nowa_kolej                  ; the tick ends with the turn
        dec rzedy
        bne @rzad
        rts

@czynne:
        sty kolumna
        stx kod
        jsr zrob_pole
        ldy kolumna
        dec budzet
        bne @dalej
        inc kolumna                     ; the next tick goes on from the next cell
        cpy #KOLUMNY - 2
        bne @dosc
        dec kolumna                     ; the last cell of a row is looked at again, but doesn't act again
@dosc:  rts

; The tile kod in column kolumna of the row skan acts, unless it has acted in this turn.
zrob_pole:
        tya
        clc
        adc skan
        tay
        lda skan+1
        adc #0
        sec
        sbc #>plansza
        tax
        tya
        jsr wskaz_pole
        ldy #TU
        lda (wstan),y
        eor kolej
        bpl spi
        eor kolej
        eor #S_KOLEJ
        sta (wstan),y
        lda kod
        and #$3F
        tax
        lda czyny_lo,x
        sta czyn
        lda czyny_hi,x
        sta czyn+1
        jmp (czyn)
spi:    rts

; Puts back into this cell what was beneath.
zwroc_pole:
        ldy #TU
        lda (wpod),y
        sta (wsk),y
        rts

; The open exit changes between its two forms, to be seen.
wyjscie:
        lda otwarte
        beq spi
        lda kod
        eor #INV
        sta (wsk),y
        rts

; Creatures go left and right, guards down and up. Both turn back where they can't go on, also from the heroine, whom
; they wound.
stwor:  lda #RANA_STWOR
        sta rana_patrolu
        lda kod
        and #1
        bpl patrol
straznik:
        lda #RANA_STRAZNIK
        sta rana_patrolu
        lda kod
        and #1
        eor #DOL
patrol: tax
        ldy sasiad,x
        jsr zbadaj
        bmi @atak
        and #C_PUSTE
        beq @zwrot
        lda kod
        jmp przesun
@atak:  lda rana_patrolu
        jsr zran
@zwrot: ldy #TU
        lda kod
        eor #1
        sta (wsk),y
        rts

; A little creature sleeps until the heroine comes near in its row; then it grows up and runs towards her.
stworek:
        lda dorva_y
        cmp wiersz
        bne spi
        ldx #STWOR + LEWO
        lda kolumna
        sec
        sbc dorva_x
        bcs @blisko
        eor #$FF
        adc #1
        ldx #STWOR + PRAWO
@blisko:
        cmp #ZASIEG_STWORKA + 1
        bcs spi
        txa
; this cell := tile A, in the form (STD or INV) that the cell had
zmien:  eor kod
        and #$7F
        eor kod
        ldy #TU
        sta (wsk),y
        rts

; A ghost wanders at random, also through earth and thickets. It avoids a heroine with a torch.
duch:   jsr los
        cmp #50                         ; now and then it turns for no reason
        bcc @skrec
        jsr licznik
        and #3
        tax
        ldy sasiad,x
        jsr zbadaj
        bmi @atak
        and #C_DUCHOWE
        beq @skrec
        lda kod
        jmp przesun
@atak:  lda pochodnia
        bne @skrec
        lda #RANA_DUCH
        jmp zran
@skrec: jsr los
        and #3
        jmp ustaw_licznik

; A tracker follows the heroine's scent to where it is fresher. On the scent it is nearly as fast as she is: every third
; turn it takes two steps. Without a scent it goes straight on, and turns at random where it can't.
tropiciel:
        jsr wywesz
        bcc @bladzi
        ldx #1
        jsr licznik
        clc
        adc #1
        cmp #TURY_BIEGU
        bcc :+
        inx
        lda #0
:       stx kroki_tropiciela
        jsr ustaw_licznik
@tropem:
        jsr krok_tropiciela
        bcc @koniec
        dec kroki_tropiciela
        beq @koniec
        ldx kier_tropiciela
        jsr przejdz
        jsr wywesz
        bcs @tropem
@koniec:
        rts
@bladzi:
        lda kod
        and #3
        sta kier_tropiciela
; A tracker's step in direction kier_tropiciela. C: it has gone there; otherwise it has wounded the heroine or turned at
; random.
krok_tropiciela:
        ldx kier_tropiciela
        ldy sasiad,x
        jsr zbadaj
        bmi @atak
        and #C_PUSTE
        beq @zwrot
        jsr @postac
        jsr przesun
        sec
        rts
@zwrot: jsr los
        and #3
        ora #TROPICIEL
        jsr zmien
        clc
        rts
@atak:  jsr @postac
        ldy #TU
        sta (wsk),y
        lda #RANA_TROPICIEL
        jsr zran
        clc
        rts
@postac:
        lda kod
        and #INV
        ora #TROPICIEL
        ora kier_tropiciela
        rts

; C: the scent leads on from this cell, in direction kier_tropiciela.
wywesz: lda #TROP
        sta najmlodszy
        ldy #TU
        lda (wzap),y
        beq :+
        jsr @wiek
        sta najmlodszy
:       lda #$FF
        sta kier_tropiciela
        ldx #DOL
@strona:
        stx strona
        ldy sasiad,x
        lda (wzap),y
        beq @nie
        jsr @wiek
        cmp najmlodszy
        bcs @nie
        sta wiek
        jsr zbadaj
        bmi @tak
        and #C_PUSTE
        beq @nie
@tak:   lda wiek
        sta najmlodszy
        lda strona
        sta kier_tropiciela
@nie:   ldx strona
        dex
        bpl @strona
        lda kier_tropiciela
        eor #$80
        asl                             ; C: a direction has been found
        rts
@wiek:  eor #$FF                        ; A := steps that she has made since the scent A
        sec
        adc zegar
        bcs :+
        adc #TROP                       ; the numbers have started again from 1 since then
:       rts

; Fire spreads to thickets next to it: from a burning thicket to one side after the other, a turn each, until it has
; burnt down; from a painted fire, which burns for ever, to a random side.
ogien:  jsr licznik
        bne :+
        jsr los
:       and #3
        tax
        ldy sasiad,x
        lda (wstan),y
        and #S_BRZEG
        bne @tli
        lda (wsk),y
        and #$7F
        cmp #ZAROSLA
        bne @tli
        jsr zapal
@tli:   jsr licznik
        beq @wieczny
        sec
        sbc #1
        beq @gasnie
        jmp ustaw_licznik
@gasnie:
        lda #NIC
        sta (wsk),y
@wieczny:
        rts

; Sets fire to the thicket at distance Y.
zapal:  lda #OGIEN
        jsr wstaw
        lda #PALI_SIE
        ora kolej
        sta (wstan),y
        rts
