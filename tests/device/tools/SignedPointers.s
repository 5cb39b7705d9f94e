; Signed pointers of every kind: each key, with and without the address, with addends, to what is here, to what another
; object has and to what a library has; in data that is kept, that is dropped, and that two objects share.
.section __TEXT,__text
.p2align 2
.globl _function
_function: ret
_localFunction: ret

.section __DATA,__const
.p2align 3
.globl _table
_table:
    .quad _localFunction@AUTH(ia,42,addr)
    .quad _imported@AUTH(ib,7)
    .quad (_imported+16)@AUTH(da,0x6ae1,addr)
    .quad (_function+4)@AUTH(db,65535)
    .quad _otherFunction@AUTH(ia,0)
    .quad _sharedTable
    .quad _imported+8
    .quad l_privateTable
l_privateTable: ; of which the linker's map says nothing
    .quad _localFunction@AUTH(ia,0x77)
_droppedTable:
    .quad _localFunction@AUTH(ia,5)

.globl _sharedTable
.weak_definition _sharedTable
.private_extern _sharedTable
_sharedTable:
    .quad _sharedTable@AUTH(da,9)

.section __DATA,__mod_init_func,mod_init_funcs
.p2align 3
    .quad _localFunction@AUTH(ia,0)

.subsections_via_symbols
