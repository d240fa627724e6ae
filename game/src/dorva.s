; The heroine: her steps, what she does to the tile that she steps at, what it does to her.
.include "reguly.inc"
.export dorva_takt, zran, zabierz, zglos_efekt, dodaj_punkty, rysuj_dorve
.exportzp dorva, dorva_x, dorva_y, zegar
.export dorva_inv, podstaw_dorve, policz_wspolrzedne, otworz
.importzp drazek, spust, wsk, wpod, wstan, wzap, kolej, maszyna_stoi, pochodnia, otwarte
.importzp wynik, efekt, komunikat, energia, zycia, klucze, bomby, monety, brak_masek, po_przeskoku
.import punkty
.import plansza, sasiad, delta_lo, delta_hi, wskaz_pole, przejdz, przesun, zapal

KIERUNKI_DRAZKA = 4
MONETY_NA_ZYCIE = 20
SZARPNIECIA = 3                         ; tugs until a thicket lets her through
GLEBOKO   = 4                           ; so deep in the swamp she drowns
CO_ELIKSIR = 30
CO_NACZYNIE = 15

.segment "ZEROPAGE"
dorva:   .res 2         ; her cell, 0..799
dorva_x: .res 1
dorva_y: .res 1
zegar:   .res 1         ; number of her latest step, 1..255
kier:    .res 1         ; where she looks
cel_kod: .res 1         ; the code of the tile that she steps at
cel:     .res 2
pod_nia: .res 1
odstep:  .res 1         ; ticks until the next step
bezruch: .res 1
krzyk:   .res 1
ochrona: .res 1
byl_spust: .res 1
byl_drazek: .res 1      ; directions pressed in the tick before
wybrany: .res 1         ; the newest of those that are held
nowy:    .res 1         ; a direction pressed since the last step
chce:    .res 1
glebokosc: .res 1       ; 0 on firm ground, 1 knees, 2 armpits, 3 eyes
tonie:   .res 1
po_bagnie: .res 1
parzysty: .res 1
kolumna_tu: .res 1
ile:     .res 1
zywiol:  .res 1
opor:    .res 1
naczynia: .res 1        ; jars broken so far
tu:      .res 2

.segment "BSS"
dorva_inv: .res 1       ; bit 7 of the tile that she started as

.segment "RODATA"
bity_drazka: .byte %0100, %1000, %0001, %0010           ; left, right, up, down
obraz:       .byte IDZIE_LEWO, IDZIE_PRAWO, IDZIE_GORA, IDZIE_DOL
; what happens at a step to each tile
.linecont +
.define WEJSCIA \
        na_pole, kop, w_pulapke, na_pole, naczynie, mur, mur, mur, \
        zarosla, wyjscie, drzwi, w_wode, maska, klucz, bomba, skrzynia, \
        eliksir, mur, mur, promien, promien, promien, promien, mur, \
        duch, stwor, stwor, stwor, straznik, straznik, ognista, ognista, \
        ognista, ognista, moneta, w_ogien, tropiciel, tropiciel, tropiciel, tropiciel, \
        mur, mur, mur, strzalka, strzalka, kamyk, kamyk, kamyk, \
        kamyk, w_bagno, mur, mur, mur, mur, ognista, magiczny, \
        maszyna, pochodnie, mur, mur, mur, mur, mur, mur
wejscia_lo: .lobytes WEJSCIA
wejscia_hi: .hibytes WEJSCIA
        .assert wejscia_hi - wejscia_lo = 64 && * - wejscia_hi = 64, error, "one entry a tile"

.segment "CODE"

; Sets her at the start of a stage; dorva, dorva_x, dorva_y and dorva_inv are set already.
podstaw_dorve:
        lda #0
        sta odstep
        sta krzyk
        sta ochrona
        sta glebokosc
        sta po_bagnie
        sta zywiol
        sta opor
        sta naczynia
        sta byl_spust
        sta byl_drazek
        sta wybrany
        sta nowy
        lda #1
        sta zegar
        lda #DOL
        sta kier
        lda #BEZRUCH
        sta bezruch
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
:       lda dorva
        ldx dorva+1
        jsr wskaz_pole
        jsr otoczenie
        jsr sprawdz_spust
        jsr sprawdz_drazek
        ldy odstep
        bne @rysuj
        ldx #KIERUNKI_DRAZKA - 1
@kierunek:
        lda chce
        and bity_drazka,x
        bne @krok
        dex
        bpl @kierunek
        lda bezruch
        cmp #BEZRUCH
        bcs @rysuj
        inc bezruch
        bne @rysuj
@krok:  lda #0
        sta nowy
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
        lda obraz,x
@obraz: ora dorva_inv
        sta pod_nia
        lda ochrona                     ; she flickers while nothing wounds her
        and #4
        beq :+
        lda pod_nia
        eor #INV
        sta pod_nia
:       clc
        lda dorva
        sta tu
        lda dorva+1
        adc #>plansza
        sta tu+1
        ldy #0
        lda pod_nia
        sta (tu),y
        rts

; What she stands in works on her: the swamp draws her down, water and fire take energy.
otoczenie:
        lda glebokosc
        beq @zywiol
        inc tonie
        lda tonie
        cmp #TAKTY_BAGNA
        bcc @nic
        jmp zapadnij
@zywiol:
        ldy #TU
        lda (wpod),y
        and #$7F
        ldx #RANA_WODA
        cmp #WODA
        beq @w_nim
        ldx #RANA_OGIEN
        cmp #OGIEN
        bne @suchy
@w_nim: inc zywiol
        lda zywiol
        cmp #TAKTY_ZYWIOLU
        bcc @nic
        txa
        jsr zran_zywiolem
@suchy: lda #0
        sta zywiol
@nic:   rts

; chce := the direction that she is to go. The newest one wins while several are pressed; one that was only tapped
; between two steps is not forgotten.
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
        lda byl_drazek                  ; the newest has been let go
@trzyma:
        sta wybrany
        ldx nowy
        beq @bez
        txa
@bez:   sta chce
        rts

; Fire, once a press: she lays a bomb where she stands. Its fuse starts when she goes.
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

; A step in direction X, whatever comes of it.
zrob_krok:
        stx kier
        lda #KROK
        sta odstep
        lda #0
        sta bezruch
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
        cmp #ZAROSLA
        beq :+
        ldx #0
        stx opor
:       tax
        lda wejscia_lo,x
        sta cel
        lda wejscia_hi,x
        sta cel+1
        jmp (cel)                       ; Y: where to
mur:    rts

; She goes on a tile that stays beneath her.
na_pole:
        dzwiek EF_KROK
na_to:  lda cel_kod
; She goes there, and A is beneath her.
wejdz:  sta pod_nia
        ldy #TU
        lda (wpod),y
        sta (wsk),y
        ldx kier
        ldy sasiad,x
        lda pod_nia
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
        lda pod_nia
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

; The cell at distance Y smells of her newest step.
zostaw_zapach:
        inc zegar
        bne :+
        inc zegar
:       lda zegar
        sta (wzap),y
        rts

; earth: dug, and a trace is left
kop:    dzwiek EF_KOPIE
        lda cel_kod
        and #INV
        ora #SLAD
        bne wejdz

w_pulapke:
        lda #RANA_PULAPKA               ; it snaps once
        jsr zran
        jmp na_puste

; A jar is broken by stepping at it. What is inside goes round: coins, strength, coins, a bomb.
naczynie:
        dzwiek EF_STUK
        lda naczynia
        inc naczynia
        lsr
        bcc @monety
        lsr
        bcc @sila
        jsr dodaj_bombe
        jmp na_puste
@sila:  lda #CO_NACZYNIE
        jsr dodaj_energie
        jmp na_puste
@monety:
        lda #$50
        ldx #$00
        jsr dodaj_punkty
na_puste:
        lda #NIC
        jmp wejdz

; A thicket lets her through after a few tugs; with a torch she sets fire to it.
zarosla:
        lda pochodnia
        bne @pal
        dzwiek EF_KOPIE
        inc opor
        lda opor
        cmp #SZARPNIECIA
        bcc stoi
        lda #0
        sta opor
        beq na_puste
@pal:   jsr zapal
        dzwiek EF_STRZAL
stoi:   rts

wyjscie:
        lda otwarte
        beq @za_malo
        lda #ETAP_PRZESZLA
        sta wynik
        jmp na_to
@za_malo:
        powiedz KOM_MASKI
        rts

drzwi:  lda klucze
        beq @nie
        dec klucze
        dzwiek EF_DRZWI
        jmp na_puste
@nie:   powiedz KOM_KLUCZ
        rts

w_wode: lda #RANA_WODA
        jsr zabierz
        dzwiek EF_BAGNO
        jmp na_to

w_ogien:
        lda #RANA_OGIEN
        jsr zran
        jmp na_to

maska:  lda #$00                        ; 100
        ldx #$01
        jsr dodaj_punkty
        dzwiek EF_MASKA
        lda brak_masek
        beq na_puste
        dec brak_masek
        bne na_puste
        jsr otworz
        jmp na_puste

; The exit opens.
otworz: lda #1
        sta otwarte
        dzwiek EF_OTWARTE
        powiedz KOM_OTWARTE
        rts

klucz:  inc klucze
        bne :+
        dec klucze
:       dzwiek EF_BIERZE
        jmp na_puste

bomba:  jsr dodaj_bombe
        jmp na_puste

dodaj_bombe:
        lda bomby
        cmp #99
        bcs :+
        inc bomby
:       dzwiek EF_BIERZE
        rts

eliksir:
        lda #CO_ELIKSIR
        jsr dodaj_energie
        jmp na_puste

dodaj_energie:
        clc
        adc energia
        cmp #ENERGIA_PELNA + 1
        bcc :+
        lda #ENERGIA_PELNA
:       sta energia
        dzwiek EF_BIERZE
        rts

moneta: lda #$20
        ldx #$00
        jsr dodaj_punkty
        dzwiek EF_MONETA
        inc monety
        lda monety
        cmp #MONETY_NA_ZYCIE
        bcc @dosc
        lda #0
        sta monety
        lda zycia
        cmp #ZYCIA_MAX
        bcs @dosc
        inc zycia
        dzwiek EF_ZYCIE
        powiedz KOM_ZYCIE
@dosc:  jmp na_puste

; The torch burns thickets and keeps ghosts away, to the end of the stage.
pochodnie:
        lda #1
        sta pochodnia
        dzwiek EF_BIERZE
        powiedz KOM_OGIEN
        jmp na_puste

; A touch stops the machine and with it all emitters and launchers; the next one starts it again.
maszyna:
        lda maszyna_stoi
        eor #1
        sta maszyna_stoi
        lda cel_kod
        eor #INV
        sta (wsk),y
        dzwiek EF_DRZWI
        ldx #KOM_RUSZA
        lda maszyna_stoi
        beq :+
        ldx #KOM_STOI
:       stx komunikat
        rts

; A crate goes on to a free cell; a trap, water, fire or swamp is filled by it.
skrzynia:
        ldx kier
        jsr przejdz                     ; the crate's own surroundings
        ldx kier
        ldy sasiad,x
        lda (wstan),y
        and #S_BRZEG
        bne @stoi
        lda (wsk),y
        and #$7F
        beq @dalej                      ; nothing
        cmp #SLAD
        beq @dalej
        cmp #PULAPKA
        beq @gasi
        cmp #OGIEN
        beq @gasi
        cmp #WODA
        beq @zasyp
        cmp #BAGNO
        bne @stoi
@zasyp: lda #NIC                        ; the crate is gone, the cell is ground
        sta (wsk),y
        ldy #TU
        lda (wpod),y
        sta (wsk),y
        jmp @pchnieta
@gasi:  lda #NIC
        sta (wsk),y
@dalej: lda cel_kod
        jsr przesun
@pchnieta:
        dzwiek EF_PCHA
        ldy #TU
        lda (wsk),y                     ; what lay beneath the crate
        sta cel_kod
        lda kier
        eor #1                          ; back to her own surroundings
        tax
        jsr przejdz
        jmp na_to
@stoi:  rts

w_bagno:
        lda #0
        sta tonie
        dzwiek EF_BAGNO
        inc glebokosc
        lda glebokosc
        cmp #GLEBOKO
        bcs utonela
        jmp na_to
zapadnij:                               ; she has stood in it too long
        lda #0
        sta tonie
        dzwiek EF_BAGNO
        inc glebokosc
        lda glebokosc
        cmp #GLEBOKO
        bcc gruntu
utonela:
        dec glebokosc                   ; the last picture stays
        lda #0
        sta energia
        lda #DORVA_GINIE
        sta wynik
gruntu: rts

; A magic object takes her to its other half: the next one on the board for the first, third..., the one before
; for the second, fourth... One without a partner does nothing.
magiczny:
        lda (wstan),y                   ; odd or even, counted at the start of the stage
        and #1
        sta parzysty
        dzwiek EF_MAGIA
        jsr na_to
        lda #1
        sta po_przeskoku
        clc
        lda dorva
        tay
        lda dorva+1
        adc #>plansza
        sta tu+1
        lda #0
        sta tu
        lda parzysty
        bne @wstecz
@dalej: iny                             ; tu and Y: the cell that is looked at
        bne :+
        inc tu+1
        lda tu+1
        cmp #>(plansza + POLA) + 1
        bcs @nie_ma
:       lda (tu),y
        and #$7F
        cmp #MAGICZNY
        bne @dalej
        jsr przenies
        bcc @dalej
        rts
@wstecz:
        dey
        cpy #$FF
        bne :+
        dec tu+1
        lda tu+1
        cmp #>plansza
        bcc @nie_ma
:       lda (tu),y
        and #$7F
        cmp #MAGICZNY
        bne @wstecz
        jsr przenies
        bcc @wstecz
@nie_ma:
        rts

; Takes her to the cell at tu + Y. C = 0: it is none inside the edge. Keeps Y.
przenies:
        sty kolumna_tu
        lda tu+1
        sec
        sbc #>plansza
        tax
        cpx #>POLA
        bcc @na_planszy
        cpy #<POLA
        bcs @nie
@na_planszy:
        tya
        jsr wskaz_pole
        ldy #TU
        lda (wstan),y
        and #S_BRZEG
        bne @nie
        lda (wsk),y
        sta (wpod),y
        jsr zostaw_zapach
        lda kolumna_tu
        sta dorva
        lda tu+1
        sec
        sbc #>plansza
        sta dorva+1
        jsr policz_wspolrzedne
        ldy kolumna_tu
        sec
        rts
@nie:   ldy kolumna_tu
        clc
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

; Creatures that she runs into
duch:   lda pochodnia
        bne bez_rany
        lda #RANA_DUCH
        bne zran
stwor:  lda #RANA_STWOR
        bne zran
straznik:
        lda #RANA_STRAZNIK
        bne zran
tropiciel:
        lda #RANA_TROPICIEL
        bne zran
ognista:
        lda #RANA_OGIEN
        bne zran
; Rays and missiles she can break through.
promien:
        lda #RANA_PROMIEN
        bne przez
strzalka:
        lda #RANA_STRZALKA
        bne przez
kamyk:  lda #RANA_KAMYK
przez:  jsr zran
        ldx kier
        ldy sasiad,x
        lda (wpod),y
        jmp wejdz

; Wounds her by A, unless the last wound is fresh. Keeps Y.
zran:   ldx ochrona
        bne bez_rany
        ldx #TAKTY_OCHRONY
        stx ochrona
; Water and fire wound without giving a rest.
zran_zywiolem:
        ldx #TAKTY_KRZYKU
        stx krzyk
        pha
        dzwiek EF_BOL
        pla
; Takes A of her energy. Without any left she dies.
zabierz:
        sta ile
        lda energia
        sec
        sbc ile
        beq @smierc
        bcs @zyje
@smierc:
        lda #DORVA_GINIE
        sta wynik
        lda #0
@zyje:  sta energia
bez_rany:
        rts

; The tick sounds like A, unless it sounds like something louder already. Keeps X and Y.
zglos_efekt:
        cmp efekt
        bcc :+
        sta efekt
:       rts

; Adds X:A points, four BCD digits. Keeps Y.
dodaj_punkty:
        sed
        clc
        adc punkty+2
        sta punkty+2
        txa
        adc punkty+1
        sta punkty+1
        lda punkty
        adc #0
        sta punkty
        cld
        rts
