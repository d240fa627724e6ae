; The tunes. A tune is a head and its sections; a section is a phrase of the melody and one of the bass, both of the
; same length. A note is one byte: its pitch, and its length in eighths, O2 for two; without one it is an eighth.
.include "muzyka.inc"
.export utwory_lo, utwory_hi, dlugosci, wysokosci

; the lengths
O2        = 1 << 5
O3        = 2 << 5
O4        = 3 << 5
O6        = 4 << 5
O8        = 5 << 5
O12       = 6 << 5
O16       = 7 << 5

; the pitches, from B below C to F two octaves up; C0 is about 131 Hz, on the buzzing bass 33 Hz
.enum
        PAUZA
        H_1
        C0
        Cs0
        D0
        Ds0
        E0
        F0
        Fs0
        G0
        Gs0
        A0
        As0
        H0
        C1
        Cs1
        D1
        Ds1
        E1
        F1
        Fs1
        G1
        Gs1
        A1
        As1
        H1
        C2
        Cs2
        D2
        Ds2
        E2
        F2
.endenum

; the head of a tune: frames of an eighth, eighths of a section, loudness of melody and bass, sound of the bass
.macro utwor tempo, osemek, melodia, bas, barwa_basu
        .byte tempo, osemek, melodia * 2, CZYSTY, bas * 2, barwa_basu
.endmacro

.segment "RODATA"
.define UTWORY las, jaskinie, swiatynia, tytulowa, przeszla, strata, koniec, wygrana
utwory_lo: .lobytes UTWORY
utwory_hi: .hibytes UTWORY

dlugosci: .byte 1, 2, 3, 4, 6, 8, 12, 16

; Divisors of the 64 kHz clock: those of pure tones,
wysokosci:
        .byte 255
        .byte 243, 230, 217, 204, 193, 182, 172, 162, 153, 144, 136, 128
        .byte 121, 114, 108, 102,  96,  91,  85,  81,  76,  72,  68,  64
        .byte  60,  57,  53,  50,  47,  45
; and those of the buzzing bass. Its wave has 15 steps as long as the divisor plus one has no factor of 15. G, B and C1
; are out of tune.
        .assert * - wysokosci = NISKIE, error, "the buzz behind the pure pitches"
        .byte 138
        .byte 130, 121, 115, 108, 102,  97,  91,  85,  81,  76,  72,  67
        .byte  63,  60,  57,  55,  51,  48

; World 1, in G: a walk through the woods.
las:    utwor 10, 32, 6, 4, CZYSTY
        .addr cisza32, las_bas_a
        .addr las_a, las_bas_a
        .addr las_b, las_bas_b
        .addr las_c, las_bas_c
        .addr las_d, las_bas_d
        .addr las_b, las_bas_b
        .addr las_e, las_bas_e
        .addr las_c, las_bas_c
        .addr cisza32, las_bas_e
        .addr las_a, las_bas_a
        .addr las_d, las_bas_d
        .addr las_e, las_bas_e
        .addr las_b, las_bas_b
        potem 1
las_a:  .byte H1|O2, A1, G1,   D1|O2, G1|O2
        .byte A1|O3, G1,       Fs1|O2, D1|O2
        .byte G1|O2, Fs1, E1,  H0|O2, E1|O2
        .byte E1|O2, D1|O6
las_b:  .byte H1|O2, A1, G1,   D1|O2, G1|O2
        .byte A1|O2, H1, A1,   G1|O2, Fs1|O2
        .byte E1|O2, G1|O2,    Fs1|O2, A1|O2
        .byte G1|O6, PAUZA|O2
las_c:  .byte E1, G1, H1|O2,   A1|O2, G1|O2
        .byte E1|O2, C1|O2,    E1|O2, G1|O2
        .byte D1, G1, H1|O2,   D2|O2, H1|O2
        .byte A1|O6, PAUZA|O2
las_d:  .byte C2|O2, H1, A1,   G1|O4
        .byte H1|O2, A1, G1,   D1|O4
        .byte A1, H1, C2|O2,   H1|O2, A1|O2
        .byte Fs1|O2, A1|O2,   D1|O4
las_e:  .byte E1|O8
        .byte Fs1|O6, D1|O2
        .byte G1|O8
        .byte A1|O4, Fs1|O4
las_bas_a:
        .byte G0|O2, D0|O2, G0|O2, D0|O2
        .byte Fs0|O2, D0|O2, A0|O2, D0|O2
        .byte E0|O2, H_1|O2, E0|O2, H_1|O2
        .byte C0|O2, E0|O2, D0|O2, Fs0|O2
las_bas_b:
        .byte G0|O2, D0|O2, G0|O2, D0|O2
        .byte Fs0|O2, D0|O2, A0|O2, D0|O2
        .byte C0|O2, E0|O2, D0|O2, Fs0|O2
        .byte G0|O2, D0|O2, G0|O4
las_bas_c:
        .byte E0|O2, H0|O2, E0|O2, H0|O2
        .byte C0|O2, G0|O2, C0|O2, G0|O2
        .byte G0|O2, D0|O2, G0|O2, H0|O2
        .byte D0|O2, A0|O2, D0|O2, Fs0|O2
las_bas_d:
        .byte C0|O2, G0|O2, E0|O2, G0|O2
        .byte G0|O2, D0|O2, H_1|O2, D0|O2
        .byte A0|O2, E0|O2, C0|O2, E0|O2
        .byte D0|O2, Fs0|O2, A0|O2, Fs0|O2
las_bas_e:
        .byte E0|O3, H0, E0|O4
        .byte H_1|O3, Fs0, D0|O4
        .byte C0|O3, G0, E0|O4
        .byte D0|O3, A0, D0|O4

; World 2, in D minor: drops of water above a slow step in the dark.
jaskinie:
        utwor 12, 32, 6, 4, BURCZY
        .addr cisza32, jask_bas_a
        .addr jask_a, jask_bas_a
        .addr jask_d, jask_bas_c
        .addr jask_b, jask_bas_a
        .addr jask_c, jask_bas_b
        .addr cisza32, jask_bas_a
        .addr jask_a, jask_bas_a
        .addr jask_b, jask_bas_c
        .addr jask_c, jask_bas_b
        .addr jask_d, jask_bas_a
        potem 2
jask_a: .byte PAUZA|O4, D1|O2, E1|O2
        .byte F1|O6, E1|O2
        .byte D1|O4, A0|O4
        .byte PAUZA|O8
jask_b: .byte PAUZA|O2, A1|O3, Gs1, A1|O2
        .byte F1|O4, D1|O4
        .byte PAUZA|O2, As1|O3, A1, G1|O2
        .byte A1|O6, PAUZA|O2
jask_c: .byte F1|O2, G1|O2, F1|O4
        .byte D1|O6, PAUZA|O2
        .byte G1|O2, A1|O2, G1|O4
        .byte E1|O4, Cs1|O4
jask_d: .byte D2|O2, PAUZA|O6
        .byte PAUZA|O4, A1|O2, PAUZA|O2
        .byte PAUZA|O8
        .byte Cs2, PAUZA, A1, PAUZA, E1, PAUZA|O3
jask_bas_a:
        .byte D0|O3, D0, PAUZA|O2, F0|O2
        .byte D0|O3, D0, PAUZA|O2, E0|O2
        .byte D0|O3, D0, PAUZA|O2, As0|O2
        .byte A0|O3, A0, PAUZA|O2, F0|O2
jask_bas_b:
        .byte As0|O3, As0, PAUZA|O2, F0|O2
        .byte As0|O3, As0, PAUZA|O2, D1|O2
        .byte C0|O3, C0, PAUZA|O2, E0|O2
        .byte A0|O3, A0, PAUZA|O2, E0|O2
jask_bas_c:
        .byte D0|O8, D0|O8, As0|O8, A0|O8

; World 3, in C minor: bells in the cold, in three.
swiatynia:
        utwor 11, 24, 6, 4, CZYSTY
        .addr cisza24, mroz_bas_c
        .addr mroz_a, mroz_bas_c
        .addr mroz_b, mroz_bas_a
        .addr mroz_c, mroz_bas_a
        .addr mroz_d, mroz_bas_b
        .addr mroz_a, mroz_bas_a
        .addr mroz_b, mroz_bas_c
        .addr mroz_d, mroz_bas_b
        .addr cisza24, mroz_bas_a
        .addr mroz_c, mroz_bas_a
        .addr mroz_d, mroz_bas_b
        .addr mroz_a, mroz_bas_c
        .addr mroz_c, mroz_bas_c
        .addr mroz_d, mroz_bas_b
        potem 3
mroz_a: .byte C2, G1, Ds1, G1, C2|O2
        .byte C2, Gs1, Ds1, Gs1, C2|O2
        .byte As1, G1, Ds1, G1, As1|O2
        .byte H1, G1, D1, G1, H1|O2
mroz_b: .byte Ds1|O4, D1|O2
        .byte C1|O6
        .byte G1|O4, F1|O2
        .byte D1|O6
mroz_c: .byte C2|O4, As1|O2
        .byte Gs1|O6
        .byte G1|O4, F1|O2
        .byte G1|O6
mroz_d: .byte Gs1|O2, G1, F1, C1|O2
        .byte G1|O2, Ds1, D1, C1|O2
        .byte F1|O2, D1, Ds1, F1|O2
        .byte Ds1|O2, C1|O4
mroz_bas_a:
        .byte C0|O2, G0|O2, G0|O2
        .byte Gs0|O2, Ds0|O2, Ds0|O2
        .byte Ds0|O2, As0|O2, As0|O2
        .byte G0|O2, D0|O2, D0|O2
mroz_bas_b:
        .byte F0|O2, C1|O2, C1|O2
        .byte C0|O2, G0|O2, G0|O2
        .byte G0|O2, D0|O2, D0|O2
        .byte C0|O2, G0|O4
mroz_bas_c:
        .byte C0|O6, Gs0|O6, Ds0|O6, G0|O6

cisza32: .byte PAUZA|O16, PAUZA|O16
cisza24: .byte PAUZA|O12, PAUZA|O12

tytulowa:
        utwor 9, 32, 8, 5, CZYSTY
        .addr tytul_a, tytul_bas_a
        .addr tytul_b, tytul_bas_b
        potem UTWOR_TYTUL
tytul_a: .byte E1, A1|O2, G1,     E1, C1, D1, E1
        .byte F1|O2, E1, D1,     C1|O2, A0, C1
        .byte D1, G1|O2, F1,     D1, H0, C1, D1
        .byte E1|O3, D1,         C1|O2, H0|O2
tytul_b: .byte E1, A1|O2, G1,     E1, C1, D1, E1
        .byte F1|O2, E1, D1,     C1, A0, C1, F1
        .byte E1, D1, H0, D1,    E1|O2, Gs0, H0
        .byte A0|O2, E1|O2,      A1|O4
tytul_bas_a:
        .byte A0|O2, E0|O2, A0|O2, E0|O2
        .byte F0|O2, C0|O2, F0|O2, C0|O2
        .byte G0|O2, D0|O2, G0|O2, D0|O2
        .byte C0|O2, E0|O2, C0|O2, E0|O2
tytul_bas_b:
        .byte A0|O2, E0|O2, A0|O2, E0|O2
        .byte F0|O2, C0|O2, F0|O2, C0|O2
        .byte E0|O2, H_1|O2, E0|O2, H_1|O2
        .byte A0|O2, E0|O2, A0|O4

przeszla:
        utwor 5, 16, 8, 5, CZYSTY
        .addr przeszla_a, przeszla_bas
        potem UTWOR_BRAK
przeszla_a:   .byte C1, E1, G1, C2|O3, G1|O2, C2|O8
przeszla_bas: .byte C0|O3, E0|O3, G0|O2, C1|O8

strata: utwor 5, 12, 8, 5, CZYSTY
        .addr strata_a, strata_bas
        potem UTWOR_BRAK
strata_a:   .byte A1, Gs1, G1, Fs1, F1|O2, D1|O2, A0|O4
strata_bas: .byte D1|O4, F0|O4, D0|O4

koniec: utwor 9, 24, 8, 5, CZYSTY
        .addr koniec_a, koniec_bas
        potem UTWOR_TYTUL
koniec_a:   .byte E1|O3, D1, C1|O2, H0|O2,  A0|O2, C1|O2, H0|O2, Gs0|O2,  A0|O8
koniec_bas: .byte A0|O4, E0|O4,  F0|O4, E0|O4,  A0|O8

wygrana:
        utwor 7, 32, 8, 5, CZYSTY
        .addr wygrana_a, wygrana_bas_a
        .addr wygrana_b, wygrana_bas_b
        .addr wygrana_a, wygrana_bas_a
        .addr wygrana_b, wygrana_bas_b
        potem UTWOR_TYTUL
wygrana_a:
        .byte C1|O2, C1, D1,     E1|O2, C1|O2
        .byte E1|O2, E1, F1,     G1|O4
        .byte A1|O2, G1, F1,     E1|O2, C1|O2
        .byte D1|O2, G1|O2,      G1|O4
wygrana_b:
        .byte C2|O3, H1,         A1|O2, G1|O2
        .byte A1|O3, G1,         F1|O2, E1|O2
        .byte D1|O2, E1, F1,     G1|O2, H1|O2
        .byte C2|O6, PAUZA|O2
wygrana_bas_a:
        .byte C0|O2, G0|O2, C0|O2, G0|O2
        .byte C0|O2, G0|O2, E0|O2, G0|O2
        .byte F0|O2, C1|O2, C0|O2, E0|O2
        .byte G0|O2, D0|O2, G0|O4
wygrana_bas_b:
        .byte C0|O2, E0|O2, F0|O2, C1|O2
        .byte F0|O2, A0|O2, C0|O2, G0|O2
        .byte G0|O2, D0|O2, G0|O2, H0|O2
        .byte C1|O2, G0|O2, C0|O4
