; The other half of SignedPointers.s.
.section __TEXT,__text
.p2align 2
.globl _otherFunction
.private_extern _otherFunction
_otherFunction: ret

.section __DATA,__const
.p2align 3
.globl _sharedTable
.weak_definition _sharedTable
.private_extern _sharedTable
_sharedTable:
    .quad _sharedTable@AUTH(da,9)

.subsections_via_symbols
