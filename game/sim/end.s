; Linked behind the rules, so that their variables end here.
.export _zp_end, _bss_end
.segment "ZEROPAGE"
zp:
.segment "BSS"
bss:
.segment "RODATA"
_zp_end:  .addr zp
_bss_end: .addr bss
