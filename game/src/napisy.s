; All texts, and how they are written.
.include "reguly.inc"
.include "tekst.inc"
.export pisz, pisz_srodkiem, dwie_cyfry, pisz_bcd, komunikaty_lo, komunikaty_hi
.export t_cel, t_grasz, t_klawisze1, t_klawisze2, t_klawisze3, t_klawisze4, t_koniec, t_wynik, t_wygrana, t_wygrana2, t_brak, t_brak2
.export t_etap_nr, t_nowy, t_dalej, t_wielka, t_wielka2, t_rekord, t_inicjaly, t_litery, t_opisy
.exportzp napis

.segment "ZEROPAGE"
napis:  .res 2          ; where the text goes
skad_pisze: .res 2

.segment "RODATA"
t_cel:       tekst "ZBIERZ MASKI, ZNAJDx WYJsCIE"
t_grasz:     tekst "FIRE LUB START - GRA"
t_nowy:      tekst "< ETAP    >"
t_klawisze1: tekst "JOYSTICK - RUCH   FIRE - BOMBA"
t_klawisze2: tekst "SELECT - OD NOWA  OPTION - PAUZA"
t_klawisze3: tekst "START DWA RAZY - NOWA GRA"
t_klawisze4: tekst "ESC DWA RAZY - KONIEC   M - MUZYKA"
t_koniec:    tekst "KONIEC GRY"
t_wynik:     tekst "PUNKTY 000000"
t_wygrana:   tekst "GRATULACJE!"
t_wygrana2:  tekst "DORVA PRZESZlA OSTATNI ETAP"
t_wielka:    tekst "DORVA PRZESZlA CAla GRe"
t_wielka2:   tekst "OD PIERWSZEGO ETAPU DO OSTATNIEGO!"
t_rekord:    tekst "PREMIA "
t_opisy:     tekst "CO CZEKA NA PLANSZY"
t_inicjaly:  tekst "TWOJE INICJAlY    "
t_litery:    tekst "JOYSTICK - LITERY   FIRE - DALEJ"
t_dalej:     tekst "     FIRE LUB START - DALEJ     "
t_brak:      tekst "NA PLANSZY NIE MA DORVY"
t_brak2:     tekst "POSTAW Ja W EDYTORZE I SPRoBUJ ZNOWU"
t_etap_nr:   tekst "ETAP "

k_klucz:     tekst "DRZWI Sa ZAMKNIeTE - SZUKAJ KLUCZA"
k_maski:     tekst "WYJsCIE ZAMKNIeTE - BRAKUJE MASEK"
k_otwarte:   tekst "WYJsCIE OTWARTE!"
k_bomba:     tekst "NIE MASZ BOMBY"
k_stoi:      tekst "MASZYNA STANelA"
k_rusza:     tekst "MASZYNA RUSZYlA"
k_ogien:     tekst "MASZ POCHODNIe!"
k_zycie:     tekst "DODATKOWE zYCIE!"
k_pauza:     tekst "PAUZA - OPTION: GRAMY DALEJ"
k_stracila:  tekst "TRACISZ zYCIE"
k_premia:    tekst "PREMIA ZA CZAS 00"
k_drzwi:     tekst "DRZWI OTWARTE!"
k_nowa_gra:  tekst "START JESZCZE RAZ - NOWA GRA"
k_koniec:    tekst "ESC JESZCZE RAZ - KONIEC GRY"
k_pokaz:     tekst "POKAZ - FIRE LUB START: GRA"

.linecont +
.define KOMUNIKATY k_klucz, k_klucz, k_maski, k_otwarte, k_bomba, k_stoi, k_rusza, k_ogien, k_zycie, k_pauza, \
        k_stracila, k_premia, k_drzwi, k_nowa_gra, k_koniec, k_pokaz
komunikaty_lo: .lobytes KOMUNIKATY
komunikaty_hi: .hibytes KOMUNIKATY

.segment "CODE"

; Writes the text at A (low), X (high) to the address in napis.
pisz:   sta skad_pisze
        stx skad_pisze+1
        ldy #0
        lda (skad_pisze),y
        tax
        beq @koniec
        inc skad_pisze
        bne @znak
        inc skad_pisze+1
@znak:  lda (skad_pisze),y
        sta (napis),y
        iny
        dex
        bne @znak
@koniec:
        rts

; Writes the text at A (low), X (high) in the middle of the 40 columns from napis on.
pisz_srodkiem:
        sta skad_pisze
        stx skad_pisze+1
        ldy #0
        lda #40
        sec
        sbc (skad_pisze),y
        lsr
        clc
        adc napis
        sta napis
        bcc :+
        inc napis+1
:       lda skad_pisze
        jmp pisz

; A (0..99) as two digits: tens in X, ones in A, as screen codes. Above 99 it shows 99.
dwie_cyfry:
        cmp #100
        bcc :+
        lda #99
:       ldx #16
        sec
@dziesiatki:
        sbc #10
        bcc @reszta
        inx
        bne @dziesiatki
@reszta:
        adc #26
        rts

; Writes the two digits of A, which is in BCD, to napis from column Y on. Y := the column behind them. Keeps X.
pisz_bcd:
        pha
        lsr
        lsr
        lsr
        lsr
        jsr @cyfra
        pla
        and #15
@cyfra: ora #16
        sta (napis),y
        iny
        rts
