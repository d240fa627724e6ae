; The figures of the game: energy, points, what she carries; also the sound of the tick.
.include "reguly.inc"
.export zran, zabierz, dodaj_energie, dodaj_bombe, dodaj_klucz, dodaj_monete, dodaj_punkty, otworz
.export zglos_efekt, punkty
.importzp krzyk, ochrona, energia, zycia, klucze, bomby, otwarte, wynik, efekt, komunikat
.import monety, zycia_za_monety, zycia_w_probie

MONETY_NA_ZYCIE = 20
BOMBY_MAX = 99

.segment "ZEROPAGE"
ile:    .res 1

.segment "BSS"
punkty: .res 3          ; six BCD digits, the highest first

.segment "CODE"

; Wounds her by A, unless she was wounded a moment ago. Keeps Y.
zran:   ldx ochrona
        bne bez_rany
        ldx #TAKTY_OCHRONY
        stx ochrona
        ldx #TAKTY_KRZYKU
        stx krzyk
        pha
        dzwiek EF_BOL
        pla
; Takes A of her energy. When none is left she dies.
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

; Makes A the sound of the tick, unless it has a more important one. Keeps X and Y.
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

; Gives her A energy.
dodaj_energie:
        clc
        adc energia
        cmp #ENERGIA_PELNA + 1
        bcc :+
        lda #ENERGIA_PELNA
:       sta energia
        dzwiek EF_BIERZE
        rts

dodaj_bombe:
        lda bomby
        cmp #BOMBY_MAX
        bcs :+
        inc bomby
:       dzwiek EF_BIERZE
        rts

dodaj_klucz:
        inc klucze
        bne :+
        dec klucze
:       dzwiek EF_BIERZE
        rts

; A coin: points, and a life for every so many coins, but not one that an earlier try on this stage has earned already.
dodaj_monete:
        lda #$20
        ldx #$00
        jsr dodaj_punkty
        dzwiek EF_MONETA
        inc monety
        lda monety
        cmp #MONETY_NA_ZYCIE
        bcc @dosc
        lda #0
        sta monety
        inc zycia_w_probie
        lda zycia_za_monety
        cmp zycia_w_probie
        bcs @dosc
        lda zycia
        cmp #ZYCIA_MAX
        bcs @dosc
        inc zycia
        inc zycia_za_monety
        dzwiek EF_ZYCIE
        powiedz KOM_ZYCIE
@dosc:  rts

; The exit opens.
otworz: lda #1
        sta otwarte
        dzwiek EF_OTWARTE
        powiedz KOM_OTWARTE
        rts
