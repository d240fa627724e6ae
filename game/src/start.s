; The entry: takes the machine over and runs the title screen.
.include "atari.inc"
.export start
.import zrob_czcionke, tytul

.segment "CODE"
start:
        ldx #$FF
        txs
        cld
        lda #GLOWNA
        sta PORTB
        lda #<start                     ; RESET comes back here
        sta DOSVEC
        lda #>start
        sta DOSVEC+1
        lda #<nic
        sta DOSINI
        lda #>nic
        sta DOSINI+1
        lda #1
        sta BOOTQ
        lda #0
        sta COLDST
        jsr zrob_czcionke
@petla: jsr tytul
        jmp @petla
nic:    rts
