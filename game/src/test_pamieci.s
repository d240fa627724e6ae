; The memory check: runs while the file is still loading, before the first bank is filled.
; A machine without the four extra banks says so in one line and stays there.
.include "atari.inc"
.export sprawdz_pamiec

LICZBA_BANKOW = 4

.segment "TEST"
sprawdz_pamiec:
        ldx #LICZBA_BANKOW - 1
@pisz:  lda banki,x                     ; mark each bank with its own number,
        sta PORTB
        txa
        eor #$A5
        sta OKNO
        dex
        bpl @pisz
        lda #GLOWNA
        sta PORTB
        lda #$5A                        ; and main memory with another mark
        sta OKNO
        ldx #LICZBA_BANKOW - 1
@czytaj:
        lda banki,x
        sta PORTB
        txa
        eor #$A5
        cmp OKNO
        bne @brak
        dex
        bpl @czytaj
        lda #GLOWNA
        sta PORTB
        rts

@brak:  lda #GLOWNA
        sta PORTB
        ldy #komunikat_koniec - komunikat - 1
@napis: lda komunikat,y
        sec
        sbc #32                         ; to screen code
        sta (SAVMSC),y
        dey
        bpl @napis
stoj:   jmp stoj

banki:  .byte BANK0, BANK1, BANK2, BANK3
komunikat:
        .byte "  TA GRA WYMAGA ATARI 130XE (128 KB)"
komunikat_koniec:
