; The panel and the info line.
;
;   columns    0-1     3     5-6    8-9     11-12   14-19
;   symbols    flag    key   bomb   mask    heart   a head for each life
;   figures    stage   keys  bombs  masks   energy  points
; The upper two bits of a character choose its colour: slots 0 keys, 1 bombs, 2 masks and stage, 3 energy, points.
.include "atari.inc"
.include "reguly.inc"
.export zacznij_panel, rysuj_panel, info_powitanie, info_takt
.importzp energia, zycia, klucze, bomby, brak_masek, komunikat, numer_etapu, napis
.import punkty, panel_symboli, panel_cyfr, linia_info, powitanie
.import pisz, pisz_srodkiem, dwie_cyfry, komunikaty_lo, komunikaty_hi, t_etap_nr

K_ETAP    = 0
K_KLUCZE  = 3
K_BOMBY   = 5
K_MASKI   = 8
K_ENERGIA = 11
K_PUNKTY  = 14
SLOT0     = $00
SLOT1     = $40
SLOT2     = $80
SLOT3     = $C0
CZAS_KOMUNIKATU = 120
MALO_ENERGII = 20

.segment "ZEROPAGE"
barwa_cyfr: .res 1
zostalo: .res 1         ; frames for which the message stays

.segment "CODE"

; Empties both lines and sets the symbols.
zacznij_panel:
        lda #0
        ldx #19
@czysc: sta panel_symboli,x
        sta panel_cyfr,x
        dex
        bpl @czysc
        lda #IKONA_ETAP
        sta panel_symboli + K_ETAP
        lda #IKONA_KLUCZ
        sta panel_symboli + K_KLUCZE
        lda #IKONA_BOMBA
        sta panel_symboli + K_BOMBY
        lda #IKONA_MASKA
        sta panel_symboli + K_MASKI
        lda #IKONA_ENERGIA
        sta panel_symboli + K_ENERGIA
        rts

; Writes all figures.
rysuj_panel:
        ldx #ZYCIA_MAX - 1
@zycie: lda #0
        cpx zycia
        bcs :+
        lda #IKONA_ZYCIE
:       sta panel_symboli + K_PUNKTY,x
        dex
        bpl @zycie
        lda klucze
        cmp #10
        bcc :+
        lda #9
:       ora #16 | SLOT0
        sta panel_cyfr + K_KLUCZE
        lda #SLOT1
        sta barwa_cyfr
        lda bomby
        ldy #K_BOMBY
        jsr liczba
        lda #SLOT2
        sta barwa_cyfr
        lda numer_etapu
        ldy #K_ETAP
        jsr liczba
        lda brak_masek
        ldy #K_MASKI
        jsr liczba
        lda #SLOT3
        sta barwa_cyfr
        lda energia
        ldy #K_ENERGIA
        jsr liczba
        ldx #IKONA_ENERGIA              ; the heart blinks when there is little left
        lda energia
        cmp #MALO_ENERGII
        bcs :+
        lda RTCLOK+2
        and #16
        beq :+
        ldx #0
:       stx panel_symboli + K_ENERGIA
        ldx #0
        ldy #K_PUNKTY
@punkty:
        lda punkty,x
        lsr
        lsr
        lsr
        lsr
        ora #16 | SLOT3
        sta panel_cyfr,y
        iny
        lda punkty,x
        and #15
        ora #16 | SLOT3
        sta panel_cyfr,y
        iny
        inx
        cpx #3
        bne @punkty
        rts

; Writes A as two digits of colour barwa_cyfr at column Y.
liczba: jsr dwie_cyfry
        ora barwa_cyfr
        sta panel_cyfr + 1,y
        txa
        ora barwa_cyfr
        sta panel_cyfr,y
        rts

czysc_info:
        lda #0
        sta zostalo
        ldx #39
@p:     sta linia_info,x
        dex
        bpl @p
        lda #<linia_info
        sta napis
        lda #>linia_info
        sta napis+1
        rts

; Fills the info line with the number of the stage and its greeting: 8 + 32 characters.
info_powitanie:
        jsr czysc_info
        lda #<t_etap_nr
        ldx #>t_etap_nr
        jsr pisz
        lda numer_etapu
        jsr dwie_cyfry
        stx linia_info + 5
        sta linia_info + 6
        ldx #31
@znak:  lda powitanie,x
        sta linia_info + 8,x
        dex
        bpl @znak
        rts

; Shows the message komunikat in the middle of the line for a while.
info_komunikat:
        jsr czysc_info
        lda #CZAS_KOMUNIKATU
        sta zostalo
        ldy komunikat
        lda #KOM_BRAK
        sta komunikat
        lda komunikaty_lo,y
        ldx komunikaty_hi,y
        jmp pisz_srodkiem

; Called every tick: shows a new message; after a while the greeting replaces it.
info_takt:
        lda komunikat
        bne info_komunikat
        lda zostalo
        beq @nic
        dec zostalo
        beq info_powitanie
@nic:   rts
