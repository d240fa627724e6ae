; The tiles with their names and effects, in pages: what the title shows when it is left alone.
.include "atari.inc"
.include "reguly.inc"
.include "tekst.inc"
.export pokaz_opisy
.importzp napis
.import logo, ekran, czysc_tekst, pisz_srodkiem, pokaz_opis, ozyw_znaki, klatka_bez_gracza
.import t_opisy, t_grasz

STRONY    = 4
KLATKI_STRONY = 500
LEWY      = 1                           ; screen column of tiles and texts

; One line: up to four tiles, the length of the text with bit 7 set, the text.
.macro opis zawartosc, znak1, znak2, znak3, znak4
        .byte znak1
    .ifnblank znak2
        .byte NIC, znak2
    .endif
    .ifnblank znak3
        .byte NIC, znak3, NIC, znak4
    .endif
        .byte $80 | .strlen(zawartosc)
        .byte zawartosc
        .assert .strlen(zawartosc) <= 40 - LEWY, error, "too long for the line"
.endmacro

.segment "RODATA"
opisy:  opis "MASKA - ZBIERZ TYLE, ILE WYMAGA ETAP", MASKA
        opis "WYJsCIE - OTWORZa JE ZEBRANE MASKI", WYJSCIE
        opis "KLUCZ - OTWIERA JEDNE DRZWI", KLUCZ, DRZWI
        opis "MONETA - DWADZIEsCIA DAJE zYCIE", MONETA
        opis "ELIKSIR - DODAJE 30 ENERGII", ELIKSIR
        opis "NACZYNIE - KRYJE MONETY, SIle, BOMBe", NACZYNIE
        opis "POCHODNIA - PALI ZAROsLA, PlOSZY DUCHY", POCHODNIA
        opis "ZIEMIA - KOPIESZ DROGe SOBIE I INNYM", ZIEMIA, SLAD
        opis "ZAROsLA - PUSZCZa ZA TRZECIM RAZEM", ZAROSLA
        opis "SKRZYNIA - PCHAJ: ZASYPIE WODe I BAGNO", SKRZYNIA
        opis "WODA - KAzDE POLE ZABIERA ENERGIe", WODA
        opis "BAGNO - PO TRZECH POLACH TONIESZ", BAGNO
        opis "PUlAPKA - RANI; ZATRZAsNIE Ja SKRZYNIA", PULAPKA
        opis "OGIEn - RANI, PALI ZAROsLA", OGIEN
        opis "MUR - NIC GO NIE RUSZY", MUR_V, MUR_H
        opis "KRUCHY MUR, BLOK - ROZBIJE JE BOMBA", KRUCHY, BLOK
        opis "BOMBA - PODloz Ja (FIRE) I UCIEKAJ", BOMBA, ODPALONA
        opis "WYBUCH - RANI TAKzE NA POLACH OBOK", WYBUCH, WYBUCH + 1, WYBUCH + 2, WYBUCH + 3
        opis "MAGICZNY PRZEDMIOT - PRZENOSI DO PARY", MAGICZNY
        opis "PROMIENNIK, MIOTACZ - STRZELAJa STALE", PROMIENNIK, MIOTACZ
        opis "MASZYNA - DOTKNIeTA ZATRZYMUJE JE", MASZYNA
        opis "STWoR - CHODZI W LEWO I W PRAWO", STWOR, STWOR + 1
        opis "STRAzNIK - CHODZI W GoRe I W Dol", STRAZNIK, STRAZNIK + 1
        opis "STWOREK - BUDZI SIe I BIEGNIE NA CIEBIE", STWOREK
        opis "DUCH - PRZENIKA ZIEMIe I ZAROsLA", DUCH
        opis "TROPICIEL - IDZIE TWOIM sLADEM", TROPICIEL, TROPICIEL + 1, TROPICIEL + 2, TROPICIEL + 3
        opis "MIOTNIK - RZUCA KAMYKIEM, GDY CIe WIDZI", MIOTNIK, KAMYK + 1
        opis "PLUJKA - STRZELA W SWOIM WIERSZU", PLUJKA, STRZALKA + 1

.segment "ZEROPAGE"
skad:   .res 2          ; the line to be written

.segment "BSS"
strona: .res 1          ; pages that are left
dlugosc: .res 1
do_strony: .res 2       ; frames until the next page

.segment "CODE"

; Shows all pages. C: the stick has moved or the trigger or START been pressed, which ended them.
pokaz_opisy:
        lda #<opisy
        sta skad
        lda #>opisy
        sta skad+1
        lda #STRONY
        sta strona
@strona:
        jsr rysuj_strone
        jsr pokaz_opis
        lda #<KLATKI_STRONY
        sta do_strony
        lda #>KLATKI_STRONY
        sta do_strony+1
@czekaj:
        jsr klatka_bez_gracza
        bcs @koniec
        jsr ozyw_znaki
        lda do_strony
        bne :+
        dec do_strony+1
:       dec do_strony
        bne @czekaj
        lda do_strony+1
        bne @czekaj
        dec strona
        bne @strona
        clc
@koniec:
        rts

; Writes the next page, from skad on.
rysuj_strone:
        jsr czysc_tekst
        pisz_w 7, t_grasz
        lda #<logo
        sta napis
        lda #>logo
        sta napis+1
        lda #<t_opisy
        ldx #>t_opisy
        jsr pisz_srodkiem
        lda #<(logo + 40 + LEWY)
        sta napis
        lda #>(logo + 40 + LEWY)
        sta napis+1
        ldx #OPISY_STRONY
@opis:  ldy #0
@znak:  lda (skad),y
        bmi @tekst
        sta (napis),y
        iny
        bne @znak
@tekst: and #$7F
        sta dlugosc
        iny
        jsr @nizej
        ldy #0
@litera:
        lda (skad),y
        sta (napis),y
        iny
        cpy dlugosc
        bne @litera
        jsr @nizej
        dex
        bne @opis
        rts
@nizej: tya                             ; Y bytes have been read; the next row
        clc
        adc skad
        sta skad
        bcc :+
        inc skad+1
        clc
:       lda napis
        adc #40
        sta napis
        bcc :+
        inc napis+1
:       rts
