; The player of the tunes, a melody on voice 3 and a bass on voice 4, driven by the vertical blank. The tunes are in
; melodie.s.
.include "atari.inc"
.include "muzyka.inc"
.export zagraj_utwor, muzyka_swiata, ucisz_muzyke, przelacz_muzyke, graj_muzyke, wyciszona
.import utwory_lo, utwory_hi, dlugosci, wysokosci, pauza, swiat

NUTA      = %00011111                   ; of a byte of a melody: the pitch, 0 for a rest; the rest is its length
MELODIA   = 0                           ; a voice: index into its registers and into the bytes below
BAS       = 2
NAJCISZEJ = 4                           ; where a note stops fading, in half steps of loudness
KLATKI_NTSC = 6                         ; on NTSC the tune rests in one frame of so many, and so keeps its tempo

.segment "ZEROPAGE"
sekcja: .res 2          ; the next section of the tune
nuta:   .res 2

.segment "BSS"
gra:    .res 1          ; the tune that plays
wyciszona: .res 1       ; not 0: the player wants no music
przerwany: .res 1       ; the tune of a world that another one has broken off, and its next section
przerwana: .res 2
klatki: .res 1          ; frames until the next eighth
osemki: .res 1          ; eighths until the next section
klatka_ntsc: .res 1
nuty:   .res 4          ; what melody and bass go on with
trwa:   .res 1          ; eighths until the next note
sila:   .res 1          ; loudness in half steps
        .res 2
; the head of a tune
tempo:  .res 1          ; frames of an eighth on PAL
osemek: .res 1          ; eighths of a section
glosno: .res 1          ; loudness in half steps
barwa:  .res 1          ; AUDC
        .res 2
GLOWKA  = * - tempo

.segment "CODE"

; The tune of the world, from the section on where it was broken off.
muzyka_swiata:
        lda swiat
        clc
        adc #1
; Starts tune A, unless it plays already.
zagraj_utwor:
        tax
        ldy gra
        cpx gra
        beq @juz
        lda #UTWOR_BRAK
        sta gra                         ; an interrupt may come in the midst of this
        dey
        cpy #UTWOR_TYTUL - 1
        bcs :+
        iny
        sty przerwany
        lda sekcja
        sta przerwana
        lda sekcja+1
        sta przerwana+1
:       lda utwory_lo - 1,x
        sta nuta
        clc
        adc #GLOWKA
        sta sekcja
        lda utwory_hi - 1,x
        sta nuta+1
        adc #0
        sta sekcja+1
        ldy #GLOWKA - 1
@glowka:
        lda (nuta),y
        sta tempo,y
        dey
        bpl @glowka
        cpx przerwany
        bne :+
        lda przerwana
        sta sekcja
        lda przerwana+1
        sta sekcja+1
        iny
        sty przerwany
:       lda #1
        sta klatki
        sta osemki
        stx gra
@juz:   rts

ucisz_muzyke:
        lda #UTWOR_BRAK
        sta gra
        sta przerwany
cisza_muzyki:
        lda #0
        sta AUDC3
        sta AUDC4
        rts

przelacz_muzyke:
        lda wyciszona
        eor #1
        sta wyciszona
        rts

; One frame of the tune.
graj_muzyke:
        lda gra
        beq cisza_muzyki
        lda wyciszona
        ora pauza
        bne cisza_muzyki
        lda PAL
        and #NIE_PAL
        beq @gra
        dec klatka_ntsc
        bpl @gra
        lda #KLATKI_NTSC - 1
        sta klatka_ntsc
        rts
@gra:   dec klatki
        bne @cichnie
        lda tempo
        sta klatki
        dec osemki
        bne @nuty
        jsr nowa_sekcja
        bcc @nuty
        tax
        beq cisza_muzyki
        jmp zagraj_utwor
@nuty:  ldx #BAS
@glos:  dec trwa,x
        bne @trwa
        lda nuty,x
        sta nuta
        lda nuty+1,x
        sta nuta+1
        inc nuty,x
        bne :+
        inc nuty+1,x
:       ldy #0
        lda (nuta),y
        pha
        lsr
        lsr
        lsr
        lsr
        lsr
        tay
        lda dlugosci,y
        sta trwa,x
        pla
        and #NUTA
        beq @sila                       ; a rest
        ldy barwa,x
        cpy #CZYSTY
        beq :+
        adc #NISKIE - 1                 ; carry is set
:       tay
        lda wysokosci - 1,y
        sta AUDF3,x
        lda glosno,x
@sila:  sta sila,x
@trwa:  dex
        dex
        bpl @glos
@cichnie:
        ldx #BAS
@cichszy:
        lda klatki
        lsr
        lda sila,x
        bcs :+                          ; it fades in every other frame
        cmp #NAJCISZEJ
        bcc :+
        dec sila,x
:       lsr
        ora barwa,x
        sta AUDC3,x
        dex
        dex
        bpl @cichszy
        rts

; Begins the next section. C: the tune has ended, and A is the one that follows.
nowa_sekcja:
        ldy #1
        lda (sekcja),y
        beq @po_utworze
        ldy #3
@adres: lda (sekcja),y
        sta nuty,y
        dey
        bpl @adres
        clc
        lda sekcja
        adc #4
        sta sekcja
        bcc :+
        inc sekcja+1
        clc
:       lda osemek
        sta osemki
        lda #1
        sta trwa + MELODIA
        sta trwa + BAS
        rts
@po_utworze:
        sta gra
        dey
        lda (sekcja),y
        sec
        rts
