; The entry: takes over the machine, then runs title and game by turns.
.include "atari.inc"
.export start
.import zrob_czcionki, zacznij_ekran, cisza, ucisz_muzyke, tytul, graj, pierwszy_etap, pauza, pytanie, wyciszona, zeruj_rekordy

.segment "CODE"
start:  lda #1
        sta pierwszy_etap
        lda #0
        sta wyciszona
        jsr zeruj_rekordy
wznow:  ldx #$FF
        txs
        cld
        lda #GLOWNA
        sta PORTB
        lda #<wznow                     ; RESET comes back here
        sta DOSVEC
        lda #>wznow
        sta DOSVEC+1
        lda #<nic
        sta DOSINI
        lda #>nic
        sta DOSINI+1
        lda #0
        sta COLDST
        sta pauza
        sta pytanie
        lda #1
        sta BOOTQ
        jsr cisza
        jsr ucisz_muzyke
        jsr zrob_czcionki
        jsr zacznij_ekran
@petla: jsr tytul
        jsr graj
        jmp @petla
nic:    rts
