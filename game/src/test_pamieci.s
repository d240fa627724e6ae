; The memory check: runs before anything else of the file is loaded. It switches BASIC off and moves the OS's screen out
; of the way of what follows. On a machine without the four extra banks it shows one line of text and stops. It doesn't
; restore the banks, since the rest of the file fills all four.
.include "atari.inc"
.export sprawdz_pamiec

LICZBA_BANKOW = 4
EDYTOR    = 0                           ; channel 0: the screen editor
OTWORZ    = 3
ZAMKNIJ   = 12
CZYTAJ_PISZ = 12
STRONY_RAM = $C0                        ; memory ends where the OS begins

.segment "TEST"
sprawdz_pamiec:
        lda PORTB
        and #BEZ_BASICA
        bne @banki                      ; BASIC is off already
        lda #GLOWNA
        sta PORTB
        sta BASICF                      ; so RESET leaves it off
        lda #STRONY_RAM
        sta RAMTOP
        lda #ZAMKNIJ                    ; the screen moves to the new end of memory
        jsr na_edytorze
        lda #OTWORZ
        jsr na_edytorze
@banki: ldx #LICZBA_BANKOW - 1
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
        ldy #brak_pamieci_koniec - brak_pamieci - 1
@napis: lda brak_pamieci,y
        sec
        sbc #32                         ; to screen code
        sta (SAVMSC),y
        dey
        bpl @napis
stoj:   jmp stoj

; Command A for the screen editor.
na_edytorze:
        ldx #EDYTOR
        sta ICCOM,x
        lda #<edytor
        sta ICBAL,x
        lda #>edytor
        sta ICBAH,x
        lda #CZYTAJ_PISZ
        sta ICAX1,x
        lda #0
        sta ICAX2,x
        jmp CIOV

edytor: .byte "E:", $9B
banki:  .byte BANK0, BANK1, BANK2, BANK3
brak_pamieci:
        .byte "  TA GRA WYMAGA ATARI 130XE (128 KB)"
brak_pamieci_koniec:
