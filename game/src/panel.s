; The panel and the info line.
;
;   columns    0-1     3     5-6    8-9     11-12   14-19
;   symbols    flag    key   bomb   mask    heart   a head for each life
;   figures    stage   keys  bombs  masks   energy  points
;
;   columns    0-5             7-12            14-15            17-19
;   bars       heart, energy   clock, bonus    torch, machine   coins towards a life
; The upper two bits of a character choose its colour: slots 0 keys, 1 bombs, 2 masks and stage, 3 energy, points.
; The bar of the bonus for time has the colour of masks, to differ from that of energy.
.include "atari.inc"
.include "reguly.inc"
.export zacznij_panel, rysuj_panel, panel_takt, info_powitanie, info_takt
.exportzp zostalo
.importzp energia, zycia, klucze, bomby, brak_masek, pochodnia, maszyna_stoi, komunikat, numer_etapu, napis
.import pytanie, punkty, premia, monety, panel_symboli, panel_cyfr, panel_paskow, linia_info, powitanie
.import pisz, pisz_srodkiem, dwie_cyfry, komunikaty_lo, komunikaty_hi, t_etap_nr

K_ETAP    = 0
K_KLUCZE  = 3
K_BOMBY   = 5
K_MASKI   = 8
K_ENERGIA = 11
K_PUNKTY  = 14
P_ENERGIA = 0
P_CZAS    = 7
P_POCHODNIA = 14
P_MASZYNA = 15
P_MONETY  = 17
SLOT0     = $00
SLOT1     = $40
SLOT2     = $80
SLOT3     = $C0
DLUGOSC   = 5                           ; characters of a bar
NA_ZNAK   = 20                          ; of what it shows, in a character
CZAS_KOMUNIKATU = 120
MALO_ENERGII = 20

.segment "ZEROPAGE"
barwa_cyfr: .res 1
zostalo: .res 1         ; frames for which the message stays

.segment "BSS"
ile:    .res 1          ; what is left of a bar,
znaki:  .res 1          ; in so many characters

.segment "RODATA"
; pixels of a bar's last character, those of a started one rounded up
piksele:
    .repeat NA_ZNAK + 1, I
        .byte (I * 8 + NA_ZNAK - 1) / NA_ZNAK
    .endrepeat

.segment "CODE"

; Empties both lines and sets the symbols.
zacznij_panel:
        lda #0
        ldx #19
@czysc: sta panel_symboli,x
        sta panel_cyfr,x
        sta panel_paskow,x
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
        lda #IKONA_ENERGIA | SLOT3
        sta panel_paskow + P_ENERGIA
        lda #IKONA_CZAS | SLOT2
        sta panel_paskow + P_CZAS
        lda #IKONA_MONETA | SLOT0
        sta panel_paskow + P_MONETY
        rts

; Writes a quarter of the panel, another one in each of four frames.
panel_takt:
        lda RTCLOK+2
        and #3
        beq rysuj_zycia
        cmp #2
        bcc rysuj_liczby
        beq rysuj_punkty
        jmp rysuj_paski

; Writes the whole panel.
rysuj_panel:
        jsr rysuj_liczby
        jsr rysuj_punkty
        jsr rysuj_paski
rysuj_zycia:
        ldx #ZYCIA_MAX - 1
@zycie: lda #0
        cpx zycia
        bcs :+
        lda #IKONA_ZYCIE
:       sta panel_symboli + K_PUNKTY,x
        dex
        bpl @zycie
        ldx #IKONA_ENERGIA              ; the heart blinks when there is little left
        lda energia
        cmp #MALO_ENERGII
        bcs :+
        lda RTCLOK+2
        and #16
        beq :+
        ldx #0
:       stx panel_symboli + K_ENERGIA
        rts
rysuj_liczby:
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
        jmp liczba
rysuj_punkty:
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
rysuj_paski:
        lda #SLOT3
        sta barwa_cyfr
        lda energia
        ldy #P_ENERGIA + 1
        jsr pasek
        lda #SLOT2
        sta barwa_cyfr
        lda premia
        ldy #P_CZAS + 1
        jsr pasek
        lda pochodnia
        beq :+
        lda #IKONA_POCHODNIA | SLOT0
:       sta panel_paskow + P_POCHODNIA
        lda maszyna_stoi
        beq :+
        lda #IKONA_MASZYNA | SLOT1
:       sta panel_paskow + P_MASZYNA
        lda monety
        jsr dwie_cyfry
        stx panel_paskow + P_MONETY + 1
        sta panel_paskow + P_MONETY + 2
        rts

; Writes a bar of colour barwa_cyfr for A, 0..99, at column Y.
pasek:  sta ile
        lda #DLUGOSC
        sta znaki
@znak:  ldx #NA_ZNAK
        lda ile
        sec
        sbc #NA_ZNAK
        bcs @jest
        ldx ile
        lda #0
@jest:  sta ile
        lda piksele,x
        clc
        adc #KRESKI
        ora barwa_cyfr
        sta panel_paskow,y
        iny
        dec znaki
        bne @znak
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

; Called every tick: shows a new message, or while there is a question keeps it for later; after a while the greeting
; replaces it.
info_takt:
        lda komunikat
        beq @czas
        ldx pytanie
        beq info_komunikat
        cpx komunikat
        beq info_komunikat
@czas:  lda zostalo
        beq @nic
        dec zostalo
        beq info_powitanie
@nic:   rts
