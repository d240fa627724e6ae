; The heroine: stick and trigger, her steps, what the ground does to her, how she looks. What each tile does when she
; steps at it is in wejscia.s.
.include "reguly.inc"
.export dorva_takt, podstaw_dorve, rysuj_dorve, policz_wspolrzedne, dorva_inv
.export na_pole, na_to, wejdz, mur, zapadnij, zostaw_zapach
.exportzp dorva, dorva_x, dorva_y, zegar, kier, cel_kod, opor, naczynia, krzyk, ochrona, glebokosc
.importzp drazek, spust, wsk, wpod, wstan, kolej, wynik, komunikat, energia, bomby
.import plansza, zapach, sasiad, delta_lo, delta_hi, wskaz_pole, wejscia_lo, wejscia_hi, dotknieta
.import zran, zabierz, zglos_efekt

KIERUNKI_DRAZKA = 4
PIERWSZY_KROK = 10                      ; ticks from the step of a press to the first one of holding, after a rest
ODPOCZYNEK = 2                          ; idle ticks that make a rest
GLEBOKO   = 4                           ; how deep in the swamp she drowns

.segment "ZEROPAGE"
dorva:   .res 2         ; her cell, 0..799
dorva_x: .res 1         ; its column and row
dorva_y: .res 1
zegar:   .res 1         ; number of her latest step, 1..TROP and then from 1 again
kier:    .res 1         ; where she looks
cel_kod: .res 1         ; the code of the tile that she steps at
co_robi: .res 2         ; what it does
na_plansze: .res 1      ; a code on its way to the board
odstep:  .res 1         ; ticks until she can make another step
powtorka: .res 1        ; ticks until a direction that is held makes another step
bezruch: .res 1         ; ticks without a step
krzyk:   .res 1         ; ticks for which she still screams
ochrona: .res 1         ; ticks for which nothing can wound her
byl_spust: .res 1       ; the trigger was pressed in the tick before
byl_drazek: .res 1      ; directions pressed in the tick before
wybrany: .res 1         ; the newest of the directions held
nowy:    .res 1         ; a direction pressed since the last step
chce:    .res 1         ; the directions to choose from
zagrodzona: .res 1      ; not 0: she couldn't go in the direction just tried
glebokosc: .res 1       ; 0 on firm ground, 1 knees, 2 armpits, 3 eyes
tonie:   .res 1         ; ticks since she sank deeper
po_bagnie: .res 1       ; she has just come out of the swamp
brodzi:  .res 1         ; ticks for which she has stood in this water
opor:    .res 1         ; tugs at the same thicket since she came here
naczynia: .res 1        ; jars broken so far
wsk_dorvy: .res 2

.segment "BSS"
dorva_inv: .res 1       ; bit 7 of the tile that stood for her at the start
gdzie_lo: .res TROP     ; the cells of her last steps, by the number of the step
gdzie_hi: .res TROP

.segment "RODATA"
bity_drazka:  .byte %0100, %1000, %0001, %0010          ; left, right, up, down
obraz_kroku:  .byte IDZIE_LEWO, IDZIE_PRAWO, IDZIE_GORA, IDZIE_DOL
.segment "CODE"

; Sets her at the start of a stage; dorva, dorva_x, dorva_y and dorva_inv are set already.
podstaw_dorve:
        ldx #TROP
        lda #0
:       sta gdzie_lo - 1,x
        sta gdzie_hi - 1,x
        dex
        bne :-
        sta odstep
        sta powtorka
        sta krzyk
        sta ochrona
        sta glebokosc
        sta po_bagnie
        sta brodzi
        sta opor
        sta naczynia
        sta byl_drazek
        sta wybrany
        sta nowy
        lda #1
        sta byl_spust                   ; a trigger that is held already has no effect
        sta zegar
        lda #DOL
        sta kier
        lda #BEZRUCH
        sta bezruch
        rts

; Points the four pointers at her own surroundings.
wskaz_dorve:
        lda dorva
        ldx dorva+1
        jmp wskaz_pole

; X := one of the directions A, bits of the stick. Z is clear. Keeps Y.
wez_kierunek:
        sta chce
        ldx #KIERUNKI_DRAZKA
@nie:   dex
        lda chce
        and bity_drazka,x
        beq @nie
        rts

; Her part of a tick.
dorva_takt:
        lda ochrona
        beq :+
        dec ochrona
:       lda krzyk
        beq :+
        dec krzyk
:       lda odstep
        beq :+
        dec odstep
:       lda powtorka
        beq :+
        dec powtorka
:       jsr wskaz_dorve
        jsr otoczenie
        jsr sprawdz_spust
        jsr sprawdz_drazek
        lda odstep
        ora wynik                       ; the ground may have killed her
        bne @rysuj
        ldy #KROK
        lda nowy
        bne @nacisniety                 ; each press is a step
        lda powtorka
        bne @stoi
        lda wybrany
        beq @stoi
        jsr wez_kierunek
        bne @krok
@stoi:  lda bezruch
        cmp #BEZRUCH
        bcs @rysuj
        inc bezruch
        bne @rysuj
@nacisniety:
        ldx #0
        stx dotknieta
        jsr wez_kierunek
        cpx kier
        beq @od_nowa
        lda bezruch                     ; a turn doesn't slow her down
        cmp #ODPOCZYNEK
        bcc @krok
@od_nowa:
        ldy #PIERWSZY_KROK
@krok:  sty powtorka
        lda #0
        sta nowy
        jsr zrob_krok
        lda zagrodzona
        beq @rysuj
        jsr wskaz_dorve                 ; she goes on in another direction that is held
        ldx kier
        lda bity_drazka,x
        eor #15
        and byl_drazek
        beq @rysuj
        jsr wez_kierunek
        jsr zrob_krok
@rysuj:
; Shows her as she is now.
rysuj_dorve:
        lda #PO_BAGNIE
        sec
        sbc glebokosc
        cmp #PO_BAGNIE
        bne @obraz
        lda #KRZYCZY
        ldx krzyk
        bne @obraz
        lda #PO_BAGNIE
        ldx po_bagnie
        bne @obraz
        lda #DORVA
        ldx bezruch
        cpx #BEZRUCH
        bcs @obraz
        ldx kier
        lda obraz_kroku,x
@obraz: ora dorva_inv
        sta na_plansze
        lda ochrona                     ; she flickers while nothing wounds her
        and #4
        beq :+
        lda na_plansze
        eor #INV
        sta na_plansze
:       clc
        lda dorva
        sta wsk_dorvy
        lda dorva+1
        adc #>plansza
        sta wsk_dorvy+1
        ldy #0
        lda na_plansze
        sta (wsk_dorvy),y
        rts

; The effect of what she stands in: the swamp draws her down, fire wounds her, water takes some energy now and then.
otoczenie:
        lda glebokosc
        beq @grunt
        inc tonie
        lda tonie
        cmp #TAKTY_BAGNA
        bcc @nic
        jmp zapadnij
@grunt: ldy #TU
        lda (wpod),y
        and #$7F
        cmp #OGIEN
        beq @pali
        cmp #WODA
        bne @nic
        inc brodzi
        lda brodzi
        cmp #TAKTY_WODY
        bcc @nic
        lda #0
        sta brodzi
        dzwiek EF_WODA
        lda #RANA_WODA
        jmp zabierz
@pali:  lda #RANA_OGIEN
        jmp zran
@nic:   rts

; She sinks a step deeper into the swamp; too deep, and she drowns.
zapadnij:
        lda #0
        sta tonie
        dzwiek EF_BAGNO
        ldx glebokosc
        inx
        cpx #GLEBOKO
        bcs @tonie
        stx glebokosc
        rts
@tonie: lda #0                          ; the last picture stays
        sta energia
        lda #DORVA_GINIE
        sta wynik
        rts

; wybrany := the direction held, of several the newest. nowy := a direction pressed since the last step, so that a tap
; between two steps isn't lost.
sprawdz_drazek:
        lda drazek
        and #15
        eor #15
        tax
        eor byl_drazek                  ; pressed now and not before
        stx byl_drazek
        and byl_drazek
        beq @stare
        sta nowy
        sta wybrany
@stare: lda byl_drazek
        and wybrany
        bne @trzyma
        lda byl_drazek                  ; the newest has been released
@trzyma:
        sta wybrany
        rts

; The trigger, once for each press: she lays a bomb where she stands. Its fuse starts when she leaves.
sprawdz_spust:
        lda spust
        bne @puszczony
        lda byl_spust
        bne @nic
        inc byl_spust
        ldy #TU
        lda (wpod),y
        and #$7F
        beq @mozna
        cmp #SLAD
        bne @nic
@mozna: lda bomby
        beq @brak
        dec bomby
        lda #ODPALONA
        sta (wpod),y
        lda kolej
        sta (wstan),y
        dzwiek EF_BOMBA
        rts
@brak:  powiedz KOM_BOMBA
        rts
@puszczony:
        lda #0
        sta byl_spust
@nic:   rts

; Tries a step in direction X.
zrob_krok:
        stx kier
        lda #KROK
        sta odstep
        lda #0
        sta bezruch
        sta zagrodzona
        ldy sasiad,x
        lda (wstan),y
        and #S_BRZEG
        bne mur
        lda (wsk),y
        sta cel_kod
        and #64
        bne mur
        lda cel_kod
        and #$3F
        tax
        lda wejscia_lo,x
        sta co_robi
        lda wejscia_hi,x
        sta co_robi+1
        jmp (co_robi)                   ; Y: where to
; A tile that bars her way.
mur:    inc zagrodzona
        rts

; She goes there, and the tile stays beneath her.
na_pole:
        dzwiek EF_KROK
na_to:  lda cel_kod
; She goes there, with A beneath her.
wejdz:  sta na_plansze
        ldy #TU
        lda (wpod),y
        sta (wsk),y
        ldx kier
        ldy sasiad,x
        lda na_plansze
        sta (wpod),y
        clc
        lda dorva
        adc delta_lo,x
        sta dorva
        lda dorva+1
        adc delta_hi,x
        sta dorva+1
        lda krok_x,x
        clc
        adc dorva_x
        sta dorva_x
        lda krok_y,x
        clc
        adc dorva_y
        sta dorva_y
        jsr zostaw_zapach
        lda #0
        sta po_bagnie
        sta brodzi
        sta opor
        lda na_plansze
        and #$7F
        cmp #BAGNO
        beq @gotowe
        lda glebokosc
        sta po_bagnie
        lda #0
        sta glebokosc
@gotowe:
        rts
.segment "RODATA"
krok_x: .byte <-1, 1, 0, 0
krok_y: .byte 0, 0, <-1, 1
.segment "CODE"

; Puts the scent of this step into her cell. Step numbers repeat after TROP steps; the cell that still has the same
; number then loses its scent, so no scent lasts longer than its trail.
zostaw_zapach:
        ldx zegar
        inx
        cpx #TROP + 1
        bcc :+
        ldx #1
:       stx zegar
        lda gdzie_lo - 1,x
        sta wsk_dorvy
        lda gdzie_hi - 1,x
        jsr @w_zapachu
        cmp (wsk_dorvy),y
        bne :+
        tya
        sta (wsk_dorvy),y
:       lda dorva
        sta gdzie_lo - 1,x
        sta wsk_dorvy
        lda dorva+1
        sta gdzie_hi - 1,x
        jsr @w_zapachu
        sta (wsk_dorvy),y
        rts
@w_zapachu:
        clc
        adc #>zapach
        sta wsk_dorvy+1
        ldy #0
        txa
        rts

; dorva_x, dorva_y := column and row of the cell dorva.
policz_wspolrzedne:
        lda dorva
        ldx dorva+1
        ldy #0
@wiersz:
        cpx #0
        bne :+
        cmp #KOLUMNY
        bcc @reszta
:       sec
        sbc #KOLUMNY
        bcs :+
        dex
:       iny
        bne @wiersz
@reszta:
        sta dorva_x
        sty dorva_y
        rts
