; What happens when the heroine steps at a tile, one routine for each kind of tile. A routine gets the code in cel_kod,
; the direction in kier, and Y for the tile's cell. It either lets her go there (na_pole, na_to, wejdz) or just returns.
.include "reguly.inc"
.export wejscia_lo, wejscia_hi, spisz_magie, dotknieta
.importzp wsk, wpod, wstan, dorva, dorva_x, dorva_y, kier, cel_kod, opor, naczynia
.importzp klucze, maszyna_stoi, pochodnia, otwarte, brak_masek, wynik, komunikat, po_przeskoku
.import plansza, sasiad, wskaz_pole, przejdz, przesun, zapal
.import na_pole, na_to, wejdz, mur, zapadnij, zostaw_zapach
.import zran, zabierz, dodaj_punkty, dodaj_energie, dodaj_bombe, dodaj_klucz, dodaj_monete, otworz, zglos_efekt

SZARPNIECIA = 3                         ; tugs until a thicket lets her through
CO_ELIKSIR = 30
CO_NACZYNIE = 15

.segment "ZEROPAGE"
parzysty: .res 1        ; the magic object is the second of its pair
wsk_magii: .res 2

.segment "BSS"
szarpana: .res 1        ; the direction of the thicket that she tugs at
dotknieta: .res 1       ; the machine has been touched since the latest press of the stick
magia:  .res WIERSZE    ; by row: not 0 if a magic object is there

.segment "RODATA"
; the routines, by tile
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

; earth: she digs through and leaves a trace
kop:    dzwiek EF_KOPIE
        lda cel_kod
        and #INV
        ora #SLAD
        jmp wejdz

w_pulapke:
        lda #RANA_PULAPKA               ; it snaps once
        jsr zran
        jmp na_puste

; She breaks a jar. What is inside goes in turn: coins, energy, coins, a bomb.
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

; A thicket lets her in after a few tugs; with a torch she sets fire to it.
zarosla:
        lda pochodnia
        bne @pal
        dzwiek EF_KOPIE
        ldx kier
        cpx szarpana
        beq :+
        stx szarpana
        lda #0
        sta opor
:       inc opor
        lda opor
        cmp #SZARPNIECIA
        bcc stoi
        bcs na_puste
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
        jmp mur

drzwi:  lda klucze
        beq @nie
        dec klucze
        dzwiek EF_DRZWI
        powiedz KOM_DRZWI
        jmp na_puste
@nie:   powiedz KOM_KLUCZ
        jmp mur

; Water costs energy. That is no wound, so a recent wound doesn't protect her from it.
w_wode: lda #RANA_WODA
        jsr zabierz
        dzwiek EF_WODA
        jmp na_to

; Nobody can enter a burning thicket before it has burnt down. A painted fire can be entered, and wounds.
w_ogien:
        lda (wstan),y
        and #S_LICZNIK
        bne @pali_sie
        lda #RANA_OGIEN
        jsr zran
        jmp na_to
@pali_sie:
        jmp mur

maska:  lda #$00                        ; 100
        ldx #$01
        jsr dodaj_punkty
        dzwiek EF_MASKA
        lda brak_masek
        beq @juz
        dec brak_masek
        bne @juz
        jsr otworz
@juz:   jmp na_puste

klucz:  jsr dodaj_klucz
        jmp na_puste

bomba:  jsr dodaj_bombe
        jmp na_puste

eliksir:
        lda #CO_ELIKSIR
        jsr dodaj_energie
        jmp na_puste

moneta: jsr dodaj_monete
        jmp na_puste

; The torch burns thickets and keeps ghosts away until the end of the stage.
pochodnie:
        lda #1
        sta pochodnia
        dzwiek EF_BIERZE
        powiedz KOM_OGIEN
        jmp na_puste

; A touch stops the machine, and with it all emitters and launchers; the next touch starts it again. A stick that is
; held on touches it only once.
maszyna:
        lda dotknieta
        bne @juz
        inc dotknieta
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
@juz:   rts

; A crate is pushed to a free cell, or fills a trap, water, fire or swamp.
skrzynia:
        ldx kier
        jsr przejdz                     ; the crate's own surroundings
        ldx kier
        ldy sasiad,x
        lda (wstan),y
        and #S_BRZEG
        bne @nie
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
        bne @nie
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
@nie:   jmp mur

; The swamp: she gets deeper with every step.
w_bagno:
        jsr zapadnij
        lda wynik
        bne @tonie
        jmp na_to
@tonie: rts

; A magic object takes her to its partner: for the first, third... object on the board that is the next one, for the
; second, fourth... the one before. One without a partner does nothing.
magiczny:
        lda (wstan),y                   ; odd or even, counted at the start of the stage
        and #1
        sta parzysty
        dzwiek EF_MAGIA
        jsr na_to
        lda #1
        sta po_przeskoku
        sec
        lda dorva
        sbc dorva_x
        sta wsk_magii
        lda dorva+1
        sbc #0
        clc
        adc #>plansza
        sta wsk_magii+1
        ldx dorva_y                     ; X, Y, wsk_magii: row, column and row on the board of the cell that is examined
        ldy dorva_x
        lda parzysty
        bne @wstecz
@dalej: iny
        cpy #KOLUMNY - 1
        bcs @nizej
        lda (wsk_magii),y
        and #$7F
        cmp #MAGICZNY
        bne @dalej
        beq przenies
@nizej: inx
        cpx #WIERSZE - 1
        bcs @nie_ma
        jsr wiersz_nizej
        lda magia,x
        beq @nizej
        ldy #0
        beq @dalej
@wstecz:
        dey
        beq @wyzej
        lda (wsk_magii),y
        and #$7F
        cmp #MAGICZNY
        bne @wstecz
        beq przenies
@wyzej: dex
        beq @nie_ma
        sec
        lda wsk_magii
        sbc #KOLUMNY
        sta wsk_magii
        bcs :+
        dec wsk_magii+1
:       lda magia,x
        beq @wyzej
        ldy #KOLUMNY - 1
        bne @wstecz
@nie_ma:
        rts

; Takes her to the cell in row X, column Y.
przenies:
        stx dorva_y
        sty dorva_x
        tya
        clc
        adc wsk_magii
        sta dorva
        lda wsk_magii+1
        adc #0
        sec
        sbc #>plansza
        sta dorva+1
        tax
        lda dorva
        jsr wskaz_pole
        ldy #TU
        lda (wsk),y
        sta (wpod),y
        jmp zostaw_zapach

; Notes the rows with magic objects, so that a leap needn't search the whole board.
spisz_magie:
        lda #<plansza
        sta wsk_magii
        lda #>plansza
        sta wsk_magii+1
        ldx #0
@wiersz:
        lda #0
        sta magia,x
        ldy #KOLUMNY - 2
@pole:  lda (wsk_magii),y
        and #$7F
        cmp #MAGICZNY
        bne :+
        sta magia,x
:       dey
        bne @pole
        jsr wiersz_nizej
        inx
        cpx #WIERSZE
        bcc @wiersz
        rts

wiersz_nizej:
        clc
        lda wsk_magii
        adc #KOLUMNY
        sta wsk_magii
        bcc :+
        inc wsk_magii+1
:       rts

; creatures that she runs into
duch:   lda #RANA_DUCH
        ldx pochodnia
        beq rani
        jmp mur
stwor:  lda #RANA_STWOR
        bne rani
straznik:
        lda #RANA_STRAZNIK
        bne rani
tropiciel:
        lda #RANA_TROPICIEL
        bne rani
ognista:
        lda #RANA_OGIEN
rani:   jmp zran

; rays and missiles: she can break through them
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
