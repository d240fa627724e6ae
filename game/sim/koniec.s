; Linked behind the rules: here end their variables.
.export _zp_koniec, _bss_koniec
.segment "ZEROPAGE"
zp:
.segment "BSS"
bss:
.segment "RODATA"
_zp_koniec:  .addr zp
_bss_koniec: .addr bss
