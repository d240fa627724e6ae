; Emitters and their rays, launchers, throwers and spitters, and what these shoot.
.include "reguly.inc"
.export promiennik, promien, miotnik, miotacz, plujka, strzalka, kamyk
.importzp wsk, kod, kolumna, wiersz, dorva_x, dorva_y, maszyna_stoi
.import sasiad, przejdz, zbadaj, przesun, wstaw, licznik, ustaw_licznik, zran, zwroc_pole, zglos_efekt

TURY_PROMIENNIKA = 14                   ; turns from one flash to the next
TURY_PROMIENIA = 5                      ; turns for which a ray shines, which also decides its length
TURY_MIOTACZA = 12
TURY_MIOTNIKA = 9
TURY_PLUJKI = 7
TURY_MRUGANIA = 4                       ; turns of blinking before a shot; even, so that the form stays the same
TURY_CELU = 3                           ; turns from aiming to the shot
CELUJE    = 32                          ; counters above this one count those turns
ZASIEG    = 14                          ; how far a shooter sees

.segment "ZEROPAGE"
kier_strzalu: .res 1
rana_pocisku: .res 1
pocisk: .res 1
kroki_pocisku: .res 1
okres:   .res 1         ; turns from one shot to the next
widzi:   .res 1

.segment "CODE"

; An emitter sends rays to all four sides at once, as long as the machine runs.
promiennik:
        lda #TURY_PROMIENNIKA
        jsr odlicz
        bcc @nie
        ldx #DOL
@strona:
        stx kier_strzalu
        txa
        clc
        adc #PROMIEN
        ldx #RANA_PROMIEN
        jsr wystrzel
        ldx kier_strzalu
        dex
        bpl @strona
@nie:   rts

; Counts one of A turns for an emitter or a launcher, while the machine runs; it blinks in the last ones. C: it shoots.
odlicz: sta okres
        lda maszyna_stoi
        bne @nie
        jsr licznik
        clc
        adc #1
        cmp okres
        bcs @juz
        tax
        adc #TURY_MRUGANIA
        cmp okres
        bcc :+
        jsr mrugnij
:       txa
        jsr ustaw_licznik
@nie:   clc
        rts
@juz:   lda #0
        jsr ustaw_licznik
        sec
        rts

; Gives the tile its other form. Keeps X.
mrugnij:
        ldy #TU
        lda kod
        eor #INV
        sta (wsk),y
        rts

; Puts the missile A into the next cell in direction kier_strzalu, or wounds the heroine by X if she is there.
wystrzel:
        sta pocisk
        stx rana_pocisku
        ldx kier_strzalu
        ldy sasiad,x
        jsr zbadaj
        bmi @trafia
        and #C_PUSTE
        beq @nic
        lda pocisk
        jsr wstaw
        dzwiek EF_STRZAL
@nic:   rts
@trafia:
        lda rana_pocisku
        jmp zran

; A ray makes the next one in its first turn, and goes out after a few turns.
promien:
        jsr licznik
        bne @swieci
        lda kod
        and #$3F
        sec
        sbc #PROMIEN
        sta kier_strzalu
        lda kod
        ldx #RANA_PROMIEN
        jsr wystrzel
        lda #0
@swieci:
        clc
        adc #1
        cmp #TURY_PROMIENIA
        bcs @gasnie
        jmp ustaw_licznik
@gasnie:
        jmp zwroc_pole

; A launcher shoots darts left and right at its own pace, as long as the machine runs.
miotacz:
        lda #TURY_MIOTACZA
        jsr odlicz
        bcc nie_strzela
        ldx #PRAWO
@strona:
        stx kier_strzalu
        txa
        clc
        adc #STRZALKA
        ldx #RANA_STRZALKA
        jsr wystrzel
        ldx kier_strzalu
        dex
        bpl @strona
        rts

; A thrower throws stones at a heroine in its row or column.
miotnik:
        jsr w_wierszu
        bcs :+
        jsr w_kolumnie
:       lda #TURY_MIOTNIKA
        jsr celuj
        bcc nie_strzela
        lda kier_strzalu
        clc
        adc #KAMYK
        ldx #RANA_KAMYK
        jmp wystrzel

; A spitter spits darts at a heroine in its row.
plujka: jsr w_wierszu
        lda #TURY_PLUJKI
        jsr celuj
        bcc nie_strzela
        lda kier_strzalu
        clc
        adc #STRZALKA
        ldx #RANA_STRZALKA
        jmp wystrzel
nie_strzela:
        rts

; One turn of a shooter. C in: it sees the heroine. When it does it takes aim, which its other form shows, and shoots a
; few turns later if it still sees her. Then it rests for A turns. C out: it shoots now.
celuj:  sta okres
        lda #0
        rol
        sta widzi
        jsr licznik
        beq @patrzy
        sec
        sbc #1
        cmp #CELUJE
        beq @strzal
@czeka: jsr ustaw_licznik
@nie:   clc
        rts
@patrzy:
        lda widzi
        beq @nie
        jsr mrugnij
        lda #CELUJE + TURY_CELU
        bne @czeka
@strzal:
        jsr mrugnij
        lda #0
        ldx widzi
        beq @czeka
        lda okres
        jsr ustaw_licznik
        sec
        rts

; C: the heroine is near in this row, in direction kier_strzalu.
w_wierszu:
        lda dorva_y
        cmp wiersz
        bne nie_widac
        lda #LEWO
        sta kier_strzalu
        lda kolumna
        sec
        sbc dorva_x
        jmp odleglosc
; C: the same for this column.
w_kolumnie:
        lda dorva_x
        cmp kolumna
        bne nie_widac
        lda #GORA
        sta kier_strzalu
        lda wiersz
        sec
        sbc dorva_y
odleglosc:
        bcs :+
        inc kier_strzalu                ; the other side
        eor #$FF
        adc #1
:       cmp #ZASIEG
        bcs nie_widac
        sec
        rts
nie_widac:
        clc
        rts

; Darts and stones fly two cells per turn and break at anything in their way.
strzalka:
        lda #RANA_STRZALKA
        sta rana_pocisku
        lda kod
        and #$3F
        sec
        sbc #STRZALKA
        bpl lot
kamyk:  lda #RANA_KAMYK
        sta rana_pocisku
        lda kod
        and #$3F
        sec
        sbc #KAMYK
lot:    sta kier_strzalu
        lda #2
        sta kroki_pocisku
@krok:  ldx kier_strzalu
        ldy sasiad,x
        jsr zbadaj
        bmi @trafia
        and #C_PUSTE
        beq @peka
        lda kod
        jsr przesun
        ldx kier_strzalu
        jsr przejdz
        dec kroki_pocisku
        bne @krok
        rts
@trafia:
        jsr zwroc_pole
        lda rana_pocisku
        jmp zran
@peka:  jmp zwroc_pole
