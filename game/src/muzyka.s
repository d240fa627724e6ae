; The tune of the title, on two voices. There is none while a stage is played.
.include "atari.inc"
.export zacznij_muzyke, ucisz_muzyke, graj_muzyke

KROK_MUZYKI = 9                         ; frames of an eighth
GLOSNO_MELODII = 8
GLOSNO_BASU = 5
CZYSTY    = $A0                         ; distortion: none, a pure tone

; pitches: the divisor of the 64 kHz clock, from B below C to A two octaves up; C0 is about 131 Hz
H_1 = 255
C0  = 243
D0  = 217
E0  = 193
F0  = 182
G0  = 162
Gs0 = 153
A0  = 144
H0  = 128
C1  = 121
D1  = 108
E1  = 96
F1  = 91
G1  = 81
A1  = 72
TRWA = 0                                ; the note before is held

.segment "RODATA"
; eight bars of eight eighths
melodia:
        .byte E1, A1, TRWA, G1,     E1, C1, D1, E1
        .byte F1, TRWA, E1, D1,     C1, TRWA, A0, C1
        .byte D1, G1, TRWA, F1,     D1, H0, C1, D1
        .byte E1, TRWA, TRWA, D1,   C1, TRWA, H0, TRWA
        .byte E1, A1, TRWA, G1,     E1, C1, D1, E1
        .byte F1, TRWA, E1, D1,     C1, A0, C1, F1
        .byte E1, D1, H0, D1,       E1, TRWA, Gs0, H0
        .byte A0, TRWA, E1, TRWA,   A1, TRWA, TRWA, TRWA
OSEMEK = * - melodia
; the bass, one note for two eighths
bas:    .byte A0, E0, A0, E0
        .byte F0, C0, F0, C0
        .byte G0, D0, G0, D0
        .byte C0, E0, C0, E0
        .byte A0, E0, A0, E0
        .byte F0, C0, F0, C0
        .byte E0, H_1, E0, H_1
        .byte A0, E0, A0, TRWA
        .assert (* - bas) * 2 = OSEMEK, error, "bass and melody of one length"

.segment "BSS"
gra:    .res 1
osemka: .res 1          ; the eighth that sounds
klatki: .res 1          ; frames until the next one
sila:   .res 1
sila_basu: .res 1

.segment "CODE"

zacznij_muzyke:
        ldx gra
        bne @juz                        ; it plays already, from one text screen to the next
        lda #OSEMEK - 1
        sta osemka
        lda #1
        sta klatki
        sta gra
@juz:   rts

ucisz_muzyke:
        lda #0
        sta gra
        sta AUDC3
        sta AUDC4
        rts

; One frame of the tune.
graj_muzyke:
        lda gra
        beq @nic
        dec klatki
        bne @cichnie
        lda #KROK_MUZYKI
        sta klatki
        ldx osemka
        inx
        cpx #OSEMEK
        bcc :+
        ldx #0
:       stx osemka
        lda melodia,x
        beq @bas
        sta AUDF3
        lda #GLOSNO_MELODII * 2
        sta sila
@bas:   txa
        lsr
        bcs @cichnie                    ; the bass changes at every other eighth
        tax
        lda bas,x
        beq @cichnie
        sta AUDF4
        lda #GLOSNO_BASU * 2
        sta sila_basu
@cichnie:
        lda sila                        ; both fade by half a step of loudness per frame
        lsr
        ora #CZYSTY
        sta AUDC3
        lda sila
        cmp #4
        bcc :+
        dec sila
:       lda sila_basu
        lsr
        ora #CZYSTY
        sta AUDC4
        lda sila_basu
        cmp #3
        bcc @nic
        dec sila_basu
@nic:   rts
