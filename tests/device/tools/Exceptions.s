; What code with exceptions refers to.
.section __DATA,__const
.p2align 3
.globl _table
_table:
    .quad ___gxx_personality_v0

.subsections_via_symbols
